// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/spelling.h"

#include "engine/core/error.h"
#include "engine/core/settings_store.h"
#include "engine/core/user_folders.h"

#include <QLocale>

#include <algorithm>
#include <iterator>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Words whose verdict is kept; texts have fewer.
constexpr qsizetype MostJudged = 20000;

}  // namespace

Spelling::Places Spelling::standardPlaces() {
    return {dictionaryFolders(), user_folders::data() + "/Nubivane/Words.txt"_L1};
}

Spelling::Spelling(SettingsStore& settings, Places places)
    : settings_(settings),
      installed_(installedDictionaries(places.dictionaries)),
      own_(places.ownWords) {}

QStringList Spelling::languages() const {
    QStringList names;
    std::transform(installed_.begin(), installed_.end(), std::back_inserter(names),
                   [](const DictionaryFiles& each) { return each.language; });
    return names;
}

std::optional<DictionaryFiles> Spelling::chosen() const {
    const QString system = QLocale::system().name();
    for (const QString& wanted :
         {settings_.text(Setting::Spelling), settings_.text(Setting::PageLanguage), system}) {
        if (wanted == none()) {
            return std::nullopt;
        }
        if (!wanted.trimmed().isEmpty()) {
            return dictionaryFor(wanted, system, installed_);
        }
    }
    return std::nullopt;
}

QString Spelling::language() const {
    const auto files = chosen();
    return files ? files->language : QString();
}

void Spelling::setLanguage(const QString& language) {
    settings_.set(Setting::Spelling, language);
}

/// One that cannot be used is as good as none.
Dictionary* Spelling::dictionary() {
    const auto files = chosen();
    const QString wanted = files ? files->language : QString();
    if (std::exchange(read_, wanted) != wanted) {
        judged_.clear();
        dictionary_.reset();
        try {
            dictionary_ = files ? std::make_unique<Dictionary>(*files) : nullptr;
        } catch (const Error&) {
            dictionary_.reset();
        }
    }
    return dictionary_.get();
}

bool Spelling::isRight(const QString& word) {
    if (own_.contains(word)) {
        return true;
    }
    const auto known = judged_.constFind(word);
    if (known != judged_.constEnd()) {
        return *known;
    }
    if (judged_.size() >= MostJudged) {
        judged_.clear();
    }
    return *judged_.insert(word, dictionary_->knows(word));
}

std::vector<WordPlace> Spelling::misspelt(const QString& text) {
    if (!dictionary()) {
        return {};
    }
    std::vector<WordPlace> words = wordsIn(text);
    std::erase_if(
        words, [&](const WordPlace& word) { return isRight(text.mid(word.start, word.length)); });
    return words;
}

QStringList Spelling::suggestions(const QString& word) {
    Dictionary* words = dictionary();
    return words ? words->suggestions(word) : QStringList();
}

void Spelling::add(const QString& word) {
    own_.add(word);
}

}  // namespace nubivane
