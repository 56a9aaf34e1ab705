// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/dictionary.h"

#include "engine/core/error.h"

#include <exception>
#include <hunspell.hxx>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestWord = 80;
constexpr qsizetype MostSuggestions = 6;

[[noreturn]] void refuse(const DictionaryFiles& files, const QString& reason) {
    throw Error(error_number::FileAccess, u"Dictionary"_s, u"The dictionary cannot be used."_s,
                files.affixes + u": "_s + reason);
}

std::unique_ptr<Hunspell> read(const DictionaryFiles& files) {
    const OpenedDictionary opened(files);
    try {
        return std::make_unique<Hunspell>(opened.affixes().constData(), opened.words().constData());
    } catch (const std::exception& error) {
        refuse(files, QString::fromUtf8(error.what()));
    }
}

/// The name that everybody else has for an encoding of the affix files.
QByteArray encodingOf(const Hunspell& words) {
    const QByteArray name = const_cast<Hunspell&>(words).get_dict_encoding().c_str();
    constexpr char Windows[] = "microsoft-cp";
    return name.startsWith(Windows) ? "windows-" + name.mid(sizeof Windows - 1) : name;
}

}  // namespace

Dictionary::Dictionary(const DictionaryFiles& files)
    : words_(read(files)),
      encoder_(encodingOf(*words_).constData()),
      decoder_(encodingOf(*words_).constData()) {
    if (!encoder_.isValid() || !decoder_.isValid()) {
        refuse(files, u"its letters are written in an unknown way"_s);
    }
}

Dictionary::~Dictionary() = default;

/// Dictionaries write the apostrophe as typewriters do.
std::optional<std::string> Dictionary::encoded(const QString& word) {
    constexpr char16_t Apostrophe = 0x2019;
    if (word.isEmpty() || word.size() > LongestWord) {
        return std::nullopt;
    }
    encoder_.resetState();
    const QByteArray bytes = encoder_.encode(QString(word).replace(Apostrophe, u'\''));
    return encoder_.hasError() ? std::nullopt : std::optional(bytes.toStdString());
}

bool Dictionary::knows(const QString& word) {
    const auto bytes = encoded(word);
    return !bytes || words_->spell(*bytes);
}

QStringList Dictionary::suggestions(const QString& word) {
    QStringList found;
    if (const auto bytes = encoded(word)) {
        for (const std::string& each : words_->suggest(*bytes)) {
            if (found.size() == MostSuggestions) {
                break;
            }
            decoder_.resetState();
            found << decoder_.decode(
                QByteArrayView(each.data(), static_cast<qsizetype>(each.size())));
        }
    }
    return found;
}

}  // namespace nubivane
