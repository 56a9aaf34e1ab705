// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/spelling/spelling.h"
#include "support/fixtures.h"

namespace nubivane::testing {

/// English ("rain", "rains", "don't" and a few more) and Italian ("pioggia", "sole", "citta" with
/// its accent) as they are installed in a folder.
inline QString dictionariesForTests() {
    return testFile("engine/spelling/dictionaries");
}

/// Words of a text that are misspelt.
inline QStringList misspeltIn(Spelling& spelling, const QString& text) {
    QStringList words;
    for (const WordPlace& place : spelling.misspelt(text)) {
        words << text.mid(place.start, place.length);
    }
    return words;
}

}  // namespace nubivane::testing
