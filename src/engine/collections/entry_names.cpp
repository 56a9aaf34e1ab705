// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/entry_names.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"

#include <QSet>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t Forbidden[] = u"?*:/\\<>|\"";

bool isForbidden(QChar c) {
    return QStringView(Forbidden).contains(c) || c.category() == QChar::Other_Control ||
           c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

/// Devices of Windows, which bear their names in every folder and with any extension.
bool isReserved(const QString& name) {
    static const QSet<QString> devices = {u"con"_s, u"prn"_s,    u"aux"_s,
                                          u"nul"_s, u"conin$"_s, u"conout$"_s};
    const QString stem = trimBlanks(name.section(u'.', 0, 0)).toLower();
    const bool isPort = stem.size() == 4 &&
                        (stem.startsWith(u"com"_s) || stem.startsWith(u"lpt"_s)) &&
                        QStringView(u"123456789¹²³").contains(stem[3]);
    return isPort || devices.contains(stem);
}

/// Names of all entries of a folder, in lower case.
QSet<QString> entriesOf(const QString& folder) {
    QSet<QString> names;
    for (const QString& name : host_files::fileNames(folder) + host_files::folderNames(folder)) {
        names.insert(name.toLower());
    }
    return names;
}

}  // namespace

bool isValidEntryName(const QString& name) {
    return host_files::isPlainName(name) && name.isValidUtf16() && !isReserved(name) &&
           !name.startsWith(u' ') && !name.endsWith(u' ') && !name.endsWith(u'.') &&
           std::none_of(name.cbegin(), name.cend(), isForbidden);
}

QString validFileName(const QString& name) {
    QString valid = QString::fromUtf8(name.toUtf8());  // half a character becomes a whole one
    for (QChar& c : valid) {
        if (isForbidden(c)) {
            c = u'_';
        }
    }
    return isValidEntryName(valid) ? valid : u'_' + trimBlanks(valid);
}

QString freeFileName(const QString& folder, const QString& name) {
    const QSet<QString> taken = entriesOf(folder);
    QString candidate = name;
    for (int n = 1; taken.contains(candidate.toLower()) && n <= taken.size(); ++n) {
        candidate = uniqueFileName(name, n);
    }
    return candidate;
}

QString newCollectionName(const QString& symbolsFolder) {
    constexpr int MostNumbers = 10000;
    const QSet<QString> taken = entriesOf(symbolsFolder);
    for (int n = 1; n <= MostNumbers; ++n) {
        QString name = u"newCollection"_s + QString::number(n);
        if (!taken.contains(name.toLower())) {
            return name;
        }
    }
    return {};
}

}  // namespace nubivane
