// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/sentence.h"

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

bool isEnded(const QString& text) {
    return text.endsWith(u'.') || text.endsWith(u'!') || text.endsWith(u'?') || text.endsWith(u':');
}

/// File names and options are written as they are.
bool isPlainWord(const QString& word) {
    return std::all_of(word.cbegin(), word.cend(), [](QChar letter) {
        return letter.isLetter() || letter == u',' || letter == u'\'';
    });
}

bool isNumber(const QString& word) {
    return std::all_of(word.cbegin(), word.cend(), [](QChar letter) { return letter.isDigit(); });
}

}  // namespace

QString sentence(const QString& text) {
    const QString trimmed = text.trimmed();
    const qsizetype blank = trimmed.indexOf(u' ');
    const QString word = trimmed.left(blank);
    if (blank < 0 || isNumber(word)) {
        return trimmed;
    }
    const QString begun = isPlainWord(word) ? trimmed[0].toUpper() + trimmed.mid(1) : trimmed;
    return isEnded(begun) ? begun : begun + u'.';
}

}  // namespace nubivane
