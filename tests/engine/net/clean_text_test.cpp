// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/clean_text.h"

#include <gtest/gtest.h>

namespace nubivane::testing {

TEST(CleanText, NoControlCharacterIsLeft) {
    for (int c = 0; c < 0x20; ++c) {
        EXPECT_EQ(cleanText(QByteArray("a") + static_cast<char>(c) + "b"), "a b") << c;
    }
    EXPECT_EQ(cleanText("a\x7f"), "a");
    EXPECT_EQ(cleanText("a\xC2\x80z\xC2\x9Fz"), "a z z");
    EXPECT_EQ(cleanText("550 \x1b]0;title\x07no"), "550 ]0;title no");
}

TEST(CleanText, MarksThatTurnOrHideTextAreTakenOut) {
    EXPECT_EQ(cleanText("a\xE2\x80\xAE"
                        "b\xE2\x80\xA8"
                        "c\xEF\xBB\xBF"
                        "d"),
              "a b c d");
}

TEST(CleanText, OtherTextStays) {
    EXPECT_EQ(cleanText("550 caf\xC3\xA9 \xE2\x82\xAC"), "550 caf\xC3\xA9 \xE2\x82\xAC");
    EXPECT_EQ(cleanText("\xff"), QString(QChar(QChar::ReplacementCharacter)));
    EXPECT_EQ(cleanText(""), "");
}

}  // namespace nubivane::testing
