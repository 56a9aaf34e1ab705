// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/sentence.h"

#include "engine/core/error.h"

#include <gtest/gtest.h>

namespace nubivane {

using namespace Qt::StringLiterals;

TEST(Sentence, BeginsLargeAndEndsInAFullStop) {
    EXPECT_EQ(sentence(u"there is no such file"_s), u"There is no such file.");
    EXPECT_EQ(sentence(u"it's \"-\" alone"_s), u"It's \"-\" alone.");
    EXPECT_EQ(sentence(u" \u00E9t\u00E9 comme hiver\n"_s), u"\u00C9t\u00E9 comme hiver.");
}

TEST(Sentence, OneThatIsEndedStaysSo) {
    for (const QString& whole : {u"What is that?"_s, u"Stop it!"_s, u"It is so."_s}) {
        EXPECT_EQ(sentence(whole), whole);
    }
}

TEST(Sentence, APathOrAnOptionStaysAsItIs) {
    EXPECT_EQ(sentence(u"/home/ann/x.pdf"_s), u"/home/ann/x.pdf");
    EXPECT_EQ(sentence(u"x.pdf: disk full"_s), u"x.pdf: disk full.");
    EXPECT_EQ(sentence(u"--width is wrong"_s), u"--width is wrong.");
    EXPECT_EQ(sentence(u"550 no such folder"_s), u"550 no such folder");
    EXPECT_EQ(sentence({}), u"");
}

TEST(Sentence, ADescriptionAndItsCauseAreTwo) {
    EXPECT_STREQ(
        Error(9, u"list"_s, u"There is no Frame \"9\""_s, u"it has Frames 1 to 5"_s).what(),
        "There is no Frame \"9\". It has Frames 1 to 5.");
}

}  // namespace nubivane
