// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/text_style.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

namespace nubivane {

namespace {

/// Titles, subtitles and labels have the same properties by name.
template <class Styled>
class TextStyle : public ::testing::Test {
  protected:
    TextStyle() {
        object.BackColor = NoColor;
        object.Font.Color = 0;
        object.Font.Name = "Arial";
        object.Font.Size = 12;
    }

    QString style() const { return buildTextStyle(object, colors); }

    Styled object;
    ColorTable colors;
};

using StyledObjects = ::testing::Types<cTitle, cSubtitle, cLabel>;

}  // namespace

TYPED_TEST_SUITE(TextStyle, StyledObjects);

TYPED_TEST(TextStyle, WithoutBackgroundOnlyColourAndFont) {
    EXPECT_EQ(this->style(), " COLOR: #000000; FONT-FAMILY: Arial; FONT-SIZE: 12pt;");
}

TYPED_TEST(TextStyle, TheBackgroundStandsFirst) {
    this->object.BackColor = 65535;
    EXPECT_EQ(this->style(),
              " BACKGROUND-COLOR: #FFFF00; COLOR: #000000; FONT-FAMILY: Arial; FONT-SIZE: 12pt;");
}

TYPED_TEST(TextStyle, ItalicStandsBeforeBold) {
    this->object.Font.Bold = true;
    this->object.Font.Italic = true;
    EXPECT_TRUE(this->style().endsWith(" FONT-STYLE: italic; FONT-WEIGHT: bold;"));
}

TYPED_TEST(TextStyle, ItalicAndBoldEachAlone) {
    this->object.Font.Bold = true;
    EXPECT_TRUE(this->style().endsWith("12pt; FONT-WEIGHT: bold;"));
    this->object.Font.Bold = false;
    this->object.Font.Italic = true;
    EXPECT_TRUE(this->style().endsWith("12pt; FONT-STYLE: italic;"));
}

TYPED_TEST(TextStyle, TheDecorationEndsTheStyle) {
    this->object.Font.Bold = true;
    this->object.Font.Underline = true;
    EXPECT_TRUE(this->style().endsWith(" FONT-WEIGHT: bold; TEXT-DECORATION: underline;"));
}

TYPED_TEST(TextStyle, DecorationsStandInAFixedOrder) {
    auto& styled = this->object;
    EXPECT_EQ(textDecoration(styled.Font), "");
    styled.Font.Strikeout = true;
    EXPECT_EQ(textDecoration(styled.Font), " TEXT-DECORATION: line-through;");
    styled.Font.Overline = true;
    EXPECT_EQ(textDecoration(styled.Font), " TEXT-DECORATION: overline; line-through;");
    styled.Font.Underline = true;
    EXPECT_EQ(textDecoration(styled.Font), " TEXT-DECORATION: underline; overline; line-through;");
    styled.Font.Overline = false;
    EXPECT_EQ(textDecoration(styled.Font), " TEXT-DECORATION: underline; line-through;");
}

TYPED_TEST(TextStyle, ColoursAreThoseOfTheTableNotOfTheNumber) {
    this->object.Font.Color = 132;  // spells #840000
    EXPECT_TRUE(this->style().startsWith(" COLOR: #800000;"));
}

TYPED_TEST(TextStyle, AForeignColourIsAnError) {
    this->object.Font.Color = 123;
    EXPECT_THROW(this->style(), Error);
    this->object.Font.Color = 0;
    this->object.BackColor = 123;
    EXPECT_THROW(this->style(), Error);
}

namespace {

class FontElement : public ::testing::Test {
  protected:
    FontElement() {
        item.Font.Name = "Verdana";
        item.Font.Size = 9;
        item.Font.Color = NoColor;
        item.BackColor = NoColor;
        item.Text = "Rain";
    }

    QString element() const { return buildFontElement(item, colors); }

    TextItem item;
    ColorTable colors;
};

}  // namespace

TEST_F(FontElement, WithoutColoursOnlyTheFont) {
    EXPECT_EQ(element(), "  <FONT style=\" FONT-FAMILY: Verdana; FONT-SIZE: 9pt;\">Rain</FONT>");
}

TEST_F(FontElement, ForeColourStandsBeforeBackColour) {
    item.Font.Color = 255;
    item.BackColor = White;
    EXPECT_EQ(element(),
              "  <FONT style=\" FONT-FAMILY: Verdana; FONT-SIZE: 9pt; COLOR: #FF0000; "
              "BACKGROUND-COLOR: #FFFFFF;\">Rain</FONT>");
}

TEST_F(FontElement, BoldStandsBeforeItalicTheOtherWayRoundThanInStyles) {
    item.Font.Bold = true;
    item.Font.Italic = true;
    item.Font.Overline = true;
    EXPECT_EQ(element(),
              "  <FONT style=\" FONT-FAMILY: Verdana; FONT-SIZE: 9pt; FONT-WEIGHT: bold; "
              "FONT-STYLE: italic; TEXT-DECORATION: overline;\">Rain</FONT>");
}

TEST_F(FontElement, TextsAreNotEscaped) {
    item.Text = "<B>5 > 3 & \"so\"</B>";
    EXPECT_TRUE(element().endsWith("\"><B>5 > 3 & \"so\"</B></FONT>"));
}

TEST_F(FontElement, AForeignColourIsAnError) {
    item.Font.Color = 123;
    EXPECT_THROW(element(), Error);
    item.Font.Color = NoColor;
    item.BackColor = 123;
    EXPECT_THROW(element(), Error);
}

TEST(Alignment, KnownValuesAndOthers) {
    EXPECT_EQ(alignment(0), " TEXT-ALIGN: left;");
    EXPECT_EQ(alignment(1), " TEXT-ALIGN: right;");
    EXPECT_EQ(alignment(2), " TEXT-ALIGN: center;");
    EXPECT_EQ(alignment(3), "");
    EXPECT_EQ(alignment(-1), "");
}

TEST(BorderStyle, KnownValuesAndOthers) {
    EXPECT_EQ(borderStyle(0), "");
    EXPECT_EQ(borderStyle(1), " solid;");
    EXPECT_EQ(borderStyle(2), " double;");
    EXPECT_EQ(borderStyle(3), " groove;");
    EXPECT_EQ(borderStyle(4), " ridge;");
    EXPECT_EQ(borderStyle(5), " inset;");
    EXPECT_EQ(borderStyle(6), " outset;");
    EXPECT_EQ(borderStyle(7), "");
    EXPECT_EQ(borderStyle(-1), "");
}

}  // namespace nubivane
