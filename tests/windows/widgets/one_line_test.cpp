// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/one_line.h"

#include "windows/widgets/text_field.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <gtest/gtest.h>

namespace nubivane {

TEST(OneLine, LineEndsBetweenWordsBecomeOneBlank) {
    EXPECT_EQ(asOneLine("Rain\nin the\r\n\r\nnorth"), "Rain in the north");
    EXPECT_EQ(asOneLine("a\tb\vc\fd"), "a b c d");
    EXPECT_EQ(asOneLine(QStringLiteral("a\u2028b\u2029c\u0085d")), "a b c d");
}

TEST(OneLine, NextToABlankAndAtTheEndsNothingIsLeftOfThem) {
    EXPECT_EQ(asOneLine("\r\n secret\n"), " secret");
    EXPECT_EQ(asOneLine("a \n b"), "a  b");
    EXPECT_EQ(asOneLine("\n\n"), "");
}

TEST(OneLine, OtherControlCharactersGo) {
    EXPECT_EQ(asOneLine(QString::fromLatin1("a\0b\x1b[1m\x7f", 8)), "ab[1m");
}

TEST(OneLine, WhatIsOneLineStaysAsItIs) {
    for (const char* text : {"", " two  blanks ", "21\xc2\xb0, \xe2\x82\xac, \xf0\x9f\x8c\xa7"}) {
        EXPECT_EQ(asOneLine(QString::fromUtf8(text)), QString::fromUtf8(text));
    }
}

TEST(OneLine, PastingIntoAFieldGivesOneLineWithTheCursorBehindIt) {
    TextField field;
    field.setText("north south");
    field.setCursorPosition(6);
    QApplication::clipboard()->setText("and\r\nthe\t");
    QTest::keySequence(&field, QKeySequence::Paste);
    EXPECT_EQ(field.text(), "north and the south");
    QTest::keyClicks(&field, "!");
    EXPECT_EQ(field.text(), "north and the! south");
}

}  // namespace nubivane
