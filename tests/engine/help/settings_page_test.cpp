// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_in_use.h"
#include "support/fixtures.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace nubivane::testing {

namespace {

using namespace Qt::StringLiterals;

constexpr char Numbered[] = "1, 2, ...";  // the keys of a list

/// An entry's names, as documents show them.
using Entry = QStringList;

/// What is read, each entry with the values that its readers take when nothing is stored.
QMap<Entry, QSet<QString>> readEntries() {
    QMap<Entry, QSet<QString>> entries;
    for (const SettingRow& row : settingsTable()) {
        if (isRead(row.setting)) {
            entries[{row.section, row.group, row.key}].insert(row.defaultValue);
        }
    }
    for (const SettingList list : {SettingList::CheckedCollections, SettingList::RecentFiles,
                                   SettingList::FavouriteSymbols, SettingList::RecentSymbols}) {
        const SettingListRow& row = rowOf(list);
        entries[{row.section, row.group, Numbered}].insert("");
    }
    return entries;
}

QString document(const QString& path) {
    return QString::fromUtf8(readFile(QStringLiteral(NUBIVANE_SOURCES "/") + path));
}

/// The rows of the help page.
QMap<Entry, QString> rowsOfPage() {
    QMap<Entry, QString> rows;
    QString section;
    static const QRegularExpression heading("^<h2>(.*)</h2>$");
    static const QRegularExpression row(
        "^<tr><td>(.*)</td><td>(.*)</td><td>(.*)</td><td>(.+)</td></tr>$");
    for (const QString& line : document("help/Settings.htm").split(u'\n')) {
        if (const auto match = heading.match(line); match.hasMatch()) {
            section = match.captured(1);
        }
        if (const auto match = row.match(line); match.hasMatch()) {
            rows.insert({section, match.captured(1), match.captured(2)}, match.captured(3));
        }
    }
    return rows;
}

/// Those of the manual.
QList<Entry> entriesOfManual() {
    QList<Entry> entries;
    QString section;
    static const QRegularExpression heading("^\\.SS \"(Nubivane.*)\"$");
    static const QRegularExpression entry("^\\.BI \"(.*)\" \" (.*)\"$");
    const QString manual = document("packaging/linux/nubivane-cli.1.in");
    for (const QString& line : manual.mid(manual.indexOf(".SH SETTINGS")).split(u'\n')) {
        if (const auto match = heading.match(line); match.hasMatch()) {
            section = match.captured(1).replace("\\e", "\\").replace("@PROJECT_VERSION@", "6.0.0");
        }
        if (const auto match = entry.match(line); match.hasMatch()) {
            entries += Entry{section, match.captured(1), match.captured(2)};
        }
    }
    return entries;
}

}  // namespace

TEST(SettingsInDocuments, TheHelpListsWhatIsReadAndNothingElse) {
    EXPECT_EQ(rowsOfPage().keys(), readEntries().keys());
}

TEST(SettingsInDocuments, TheHelpTellsTheDefaults) {
    const QMap<Entry, QString> rows = rowsOfPage();
    const QMap<Entry, QSet<QString>> entries = readEntries();
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        EXPECT_TRUE(entry.value().contains(rows.value(entry.key())))
            << entry.key().join(" / ").toStdString() << ": "
            << rows.value(entry.key()).toStdString();
    }
}

TEST(SettingsInDocuments, TheManualListsWhatIsReadAndNothingElse) {
    QList<Entry> entries = entriesOfManual();
    std::sort(entries.begin(), entries.end());
    EXPECT_EQ(entries, readEntries().keys());
}

TEST(SettingsInDocuments, ExamplesNameEntriesThatAreRead) {
    static const QRegularExpression example(
        "settings set '([^']*)' ('[^']*'|\\S+) ('[^']*'|\\S+) ");
    int found = 0;
    for (const char* path : {"README.md", "help/CommandLine.htm"}) {
        for (auto matches = example.globalMatch(document(path)); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            const auto plain = [&match](int part) { return match.captured(part).remove(u'\''); };
            EXPECT_TRUE(isRead(plain(1), plain(2), plain(3))) << match.captured().toStdString();
            ++found;
        }
    }
    EXPECT_GE(found, 5) << "README.md and the help have lost their examples";
}

}  // namespace nubivane::testing
