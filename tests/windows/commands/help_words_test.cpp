// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fixtures.h"
#include "windows/commands/commands.h"

#include <QAction>
#include <QDir>
#include <QKeySequence>
#include <QRegularExpression>
#include <QSet>

/// The help's words are those of the program.
namespace nubivane::testing {

namespace {

QString page(const QString& name) {
    return QString::fromUtf8(readFile(QStringLiteral(NUBIVANE_SOURCES "/help/") + name));
}

/// Keys as the help writes them.
QSet<QString> keysOf(const QString& text) {
    static const QRegularExpression key("<span class=\"key\">([^<]*)</span>");
    QSet<QString> keys;
    for (auto matches = key.globalMatch(text); matches.hasNext();) {
        keys.insert(matches.next().captured(1));
    }
    return keys;
}

QSet<QString> shortcuts() {
    QObject owner;
    const Commands commands(&owner);
    QSet<QString> keys;
    for (const CommandRow& row : commandTable()) {
        for (const QKeySequence& shortcut : commands.action(row.name)->shortcuts()) {
            keys.insert(shortcut.toString(QKeySequence::PortableText)
                            .replace("Del", "Delete")
                            .replace("PgUp", "Page Up")
                            .replace("PgDown", "Page Down"));
        }
    }
    return keys;
}

}  // namespace

TEST(HelpWords, EveryShortcutStandsOnThePageOfKeys) {
    const QSet<QString> told = keysOf(page("Keyboard.htm"));
    const QSet<QString> keys = shortcuts();
    ASSERT_GE(keys.size(), 10);
    for (const QString& key : keys) {
        EXPECT_TRUE(told.contains(key)) << key.toStdString();
    }
    EXPECT_TRUE(told.contains("Page Up"));
    EXPECT_TRUE(told.contains("Page Down"));
}

TEST(HelpWords, NoPageNamesAShortcutThatThereIsNot) {
    QSet<QString> known = shortcuts();
    // Keys of the help's own window, of the windows of collections, of the tabs and of browsers.
    for (const char* key : {"Ctrl+F", "Ctrl++", "Ctrl+-", "Ctrl+0", "Ctrl+N", "Ctrl+I",
                            "Ctrl+Shift+Left", "Ctrl+Shift+Right", "Ctrl+F5"}) {
        known.insert(key);
    }
    for (const QString& name :
         QDir(QStringLiteral(NUBIVANE_SOURCES "/help")).entryList({"*.htm"}, QDir::Files)) {
        for (const QString& key : keysOf(page(name))) {
            if (key.startsWith("Ctrl+")) {
                EXPECT_TRUE(known.contains(key)) << name.toStdString() << ": " << key.toStdString();
            }
        }
    }
}

TEST(HelpWords, EveryCommandOfAMenuStandsOnThePageOfMenus) {
    const QString menus = page("Menus.htm");
    for (const CommandRow& row : commandTable()) {
        if (QLatin1String(row.name).startsWith(QLatin1String("mnu"))) {
            const QString caption = QString(row.caption).remove('&').remove("...");
            EXPECT_TRUE(menus.contains(caption)) << row.name << ": " << caption.toStdString();
        }
    }
}

}  // namespace nubivane::testing
