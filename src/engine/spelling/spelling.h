// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/spelling/dictionary.h"
#include "engine/spelling/own_words.h"
#include "engine/spelling/words.h"

#include <QHash>

#include <memory>

namespace nubivane {

class SettingsStore;

/// The spelling of forecast texts, in the language of the settings: that which was chosen for it,
/// else that of the page, else the system's. Without a dictionary for it nothing is misspelt. The
/// dictionary is read when it is first needed.
class Spelling {
  public:
    /// Where dictionaries are installed and where the file of added words is; host paths.
    struct Places {
        QStringList dictionaries;
        QString ownWords;
    };
    /// Those of this user and this system.
    static Places standardPlaces();

    /// In the place of a language: no text is checked.
    static QString none() { return QStringLiteral("none"); }

    Spelling(SettingsStore& settings, Places places);

    /// The languages whose dictionaries are installed.
    QStringList languages() const;
    /// That by which texts are checked; empty where none is.
    QString language() const;
    /// Another one from now on, or `none`.
    void setLanguage(const QString& language);

    std::vector<WordPlace> misspelt(const QString& text);
    QStringList suggestions(const QString& word);
    /// A word is right from now on. Raises `Error` (FileAccess) when it cannot be kept.
    void add(const QString& word);

  private:
    std::optional<DictionaryFiles> chosen() const;
    Dictionary* dictionary();
    bool isRight(const QString& word);

    SettingsStore& settings_;
    std::vector<DictionaryFiles> installed_;
    OwnWords own_;
    std::unique_ptr<Dictionary> dictionary_;
    QString read_;  ///< the language of the dictionary that was read, or could not be
    QHash<QString, bool> judged_;
};

}  // namespace nubivane
