// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/words.h"

#include "support/fixtures.h"

namespace nubivane::testing {

namespace {

QStringList words(const QString& text) {
    QStringList found;
    for (const WordPlace& place : wordsIn(text)) {
        found << text.mid(place.start, place.length);
    }
    return found;
}

}  // namespace

TEST(WordsIn, AreLettersBetweenOtherSigns) {
    EXPECT_EQ(words("Rain, later sun."), QStringList({"Rain", "later", "sun"}));
    EXPECT_EQ(words("south-east (gales)/fog"), QStringList({"south", "east", "gales", "fog"}));
    EXPECT_EQ(words(""), QStringList());
    EXPECT_EQ(words(" \t\n "), QStringList());
}

TEST(WordsIn, StandWhereTheyAreTold) {
    const std::vector<WordPlace> places = wordsIn("a bit, wet");
    ASSERT_EQ(places.size(), 2U);
    EXPECT_EQ(places[0], (WordPlace{2, 3}));
    EXPECT_EQ(places[1], (WordPlace{7, 3}));
}

TEST(WordsIn, HaveApostrophesWithinButNotAround) {
    EXPECT_EQ(words("don't 'bright' l\u2019alba"), QStringList({"don't", "bright", "l\u2019alba"}));
}

TEST(WordsIn, AreInAnyScript) {
    EXPECT_EQ(words("wölkig \u043E\u0431\u043B\u0430\u0447\u043D\u043E"),
              QStringList({"wölkig", "\u043E\u0431\u043B\u0430\u0447\u043D\u043E"}));
}

TEST(WordsIn, AreNeitherNumbersNorAbbreviations) {
    EXPECT_EQ(words("12 20kt 3rd CO2 NNW UTC x y"), QStringList());
    EXPECT_EQ(words("NW wind"), QStringList("wind"));
}

TEST(WordsIn, AreNoPartsOfAddresses) {
    EXPECT_EQ(words("see https://example.org/wetter or www.example.org by me@example.org"),
              QStringList({"see", "or", "by"}));
}

}  // namespace nubivane::testing
