// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/dictionary_files.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/user_folders.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

// Several times the largest that are in use.
constexpr qint64 MaxAffixBytes = qint64{32} * 1024 * 1024;
constexpr qint64 MaxWordBytes = qint64{64} * 1024 * 1024;
/// More files in one folder than all languages have.
constexpr qsizetype MaxDictionaries = 1000;

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    throw Error(error_number::FileAccess, u"OpenedDictionary"_s,
                u"The dictionary cannot be used."_s, path + u": "_s + reason);
}

void openChecked(QFile& file, const QString& path, qint64 maxBytes) {
    QString reason;
    if (!openOrdinary(file, path, reason)) {
        refuse(path, reason);
    }
    if (file.size() > maxBytes) {
        refuse(path, u"the file is too large"_s);
    }
}

/// The number of words that the file says to hold makes the library ask for memory.
void checkWordCount(QFile& file, const QString& path) {
    constexpr qint64 LongestCount = 64;
    const QByteArray line = file.readLine(LongestCount).trimmed();
    const QByteArray count = line.startsWith("\xEF\xBB\xBF") ? line.mid(3) : line;
    bool isNumber = false;
    const qint64 words = count.split(' ').first().toLongLong(&isNumber);
    if (!isNumber || words < 1 || words > file.size()) {
        refuse(path, u"the number of its words cannot be"_s);
    }
}

/// So do the lengths of the tables in the affix file, none of which has millions of rows.
void checkTables(QFile& file, const QString& path) {
    static const QRegularExpression hugeNumber(u"(?:^|\\s)\\d{8,}(?:\\s|$)"_s);
    while (!file.atEnd()) {
        if (QString::fromLatin1(file.readLine()).contains(hugeNumber)) {
            refuse(path, u"a table in it cannot be so long"_s);
        }
    }
}

/// The part before the country.
QString bareLanguage(const QString& language) {
    return language.section(u'_', 0, 0);
}

}  // namespace

QStringList dictionaryFolders() {
    const QByteArray shared = qgetenv("XDG_DATA_DIRS");
    QStringList folders = {user_folders::data() + "/hunspell"_L1};
    const QString usual = u"/usr/local/share:/usr/share"_s;
    for (const QString& folder :
         (shared.isEmpty() ? usual : QFile::decodeName(shared)).split(u':')) {
        if (folder.startsWith(u'/')) {
            folders << QDir::cleanPath(folder + "/hunspell"_L1);
        }
    }
    folders.removeDuplicates();
    return folders;
}

std::vector<DictionaryFiles> installedDictionaries(const QStringList& folders) {
    static const QRegularExpression nameOfLanguage(u"^[a-z]{2,3}(_[A-Za-z0-9]{2,16})*$"_s);
    std::vector<DictionaryFiles> installed;
    const auto isKnown = [&installed](const QString& language) {
        return std::any_of(installed.begin(), installed.end(),
                           [&](const DictionaryFiles& each) { return each.language == language; });
    };
    for (const QString& path : folders) {
        const QDir folder(path);
        const QStringList affixes = folder.entryList({u"*.aff"_s}, QDir::Files, QDir::Name);
        for (const QString& name : affixes.first(std::min(affixes.size(), MaxDictionaries))) {
            const QString language = name.chopped(4);
            if (nameOfLanguage.match(language).hasMatch() && !isKnown(language) &&
                folder.exists(language + ".dic"_L1)) {
                installed.push_back(
                    {language, folder.filePath(name), folder.filePath(language + ".dic"_L1)});
            }
        }
    }
    std::sort(
        installed.begin(), installed.end(),
        [](const DictionaryFiles& a, const DictionaryFiles& b) { return a.language < b.language; });
    return installed;
}

std::optional<DictionaryFiles> dictionaryFor(const QString& language, const QString& locale,
                                             const std::vector<DictionaryFiles>& installed) {
    const QString wanted = QString(language).replace(u'-', u'_');
    const QString here = bareLanguage(wanted) + u'_' + locale.section(u'_', 1, 1);
    const auto find = [&installed](const auto& suits) -> std::optional<DictionaryFiles> {
        const auto found = std::find_if(installed.begin(), installed.end(), suits);
        return found == installed.end() ? std::nullopt : std::optional(*found);
    };
    for (const QString& name : {wanted, here}) {
        if (auto found = find([&name](const DictionaryFiles& each) {
                return each.language.compare(name, Qt::CaseInsensitive) == 0;
            })) {
            return found;
        }
    }
    return find([&wanted](const DictionaryFiles& each) {
        return !wanted.isEmpty() && bareLanguage(each.language) == bareLanguage(wanted).toLower();
    });
}

OpenedDictionary::OpenedDictionary(const DictionaryFiles& files) {
    openChecked(affixes_, files.affixes, MaxAffixBytes);
    checkTables(affixes_, files.affixes);
    openChecked(words_, files.words, MaxWordBytes);
    checkWordCount(words_, files.words);
}

QByteArray OpenedDictionary::nameOf(const QFile& file) {
    return "/proc/self/fd/" + QByteArray::number(file.handle());
}

}  // namespace nubivane
