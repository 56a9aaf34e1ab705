// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace nubivane {

/// A dictionary as it is installed: two files of hunspell's format. Host paths.
struct DictionaryFiles {
    QString language;  ///< "en_GB"
    QString affixes;   ///< the ".aff" file
    QString words;     ///< the ".dic" file
};

/// The folders in which dictionaries are installed: "hunspell" in the user's data folder and in
/// those of XDG_DATA_DIRS, the user's first.
QStringList dictionaryFolders();

/// The dictionaries of some folders by the names of their languages; that of an earlier folder
/// hides those of later ones.
std::vector<DictionaryFiles> installedDictionaries(const QStringList& folders);

/// The one for a language such as "it" or "en_GB": by its whole name, else by its language with the
/// country of `locale`, else the first of its language.
std::optional<DictionaryFiles> dictionaryFor(const QString& language, const QString& locale,
                                             const std::vector<DictionaryFiles>& installed);

/// Both files of a dictionary, opened and looked at. Raises `Error` (FileAccess) for what is no
/// ordinary file or too large, and for counts in them that no file of their size can have.
class OpenedDictionary {
  public:
    explicit OpenedDictionary(const DictionaryFiles& files);

    /// Names by which a library opens these very files, whatever lies at their places by now; valid
    /// while this lives.
    QByteArray affixes() const { return nameOf(affixes_); }
    QByteArray words() const { return nameOf(words_); }

  private:
    static QByteArray nameOf(const QFile& file);

    QFile affixes_;
    QFile words_;
};

}  // namespace nubivane
