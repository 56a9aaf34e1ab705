// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/spelling/dictionary_files.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <memory>

class Hunspell;

namespace nubivane {

/// The words of a language, with all their endings.
class Dictionary {
  public:
    /// Reads an installed dictionary. Raises `Error` (FileAccess) for one that cannot be used.
    explicit Dictionary(const DictionaryFiles& files);
    ~Dictionary();
    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    /// True also for a word that cannot be judged: too long, or with letters that the language does
    /// not have.
    bool knows(const QString& word);
    /// Words that may have been meant, the likeliest first.
    QStringList suggestions(const QString& word);

  private:
    std::optional<std::string> encoded(const QString& word);

    std::unique_ptr<Hunspell> words_;
    QStringEncoder encoder_;
    QStringDecoder decoder_;
};

}  // namespace nubivane
