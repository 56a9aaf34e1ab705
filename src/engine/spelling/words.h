// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace nubivane {

/// Where a word stands in a text.
struct WordPlace {
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype end() const { return start + length; }
    bool operator==(const WordPlace&) const = default;
};

/// The words of a text that a dictionary can judge: letters, with apostrophes between them. What
/// has digits in it, stands in capitals alone ("NNW"), or is a letter by itself is none, nor is a
/// part of an address.
std::vector<WordPlace> wordsIn(const QString& text);

}  // namespace nubivane
