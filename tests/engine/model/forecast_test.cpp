// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/forecast.h"

#include "engine/model/frames.h"
#include "engine/model/slot_names.h"
#include "support/fixtures.h"

namespace nubivane {

namespace {

template <class List>
auto& addItem(List& list) {
    return list.add({.Font = {.Name = "Verdana",
                              .Size = 10,
                              .Bold = true,
                              .Underline = true,
                              .Strikeout = true,
                              .Color = 65280},
                     .IndexFontSize = 3,
                     .BackColor = 255,
                     .Text = "a text"});
}

const QStringList lineSlots = {
    "textKey",       "Border",       "BorderColor",       "FontBold",  "FontItalic",
    "FontUnderline", "FontOverline", "FontStrikethourht", "Forecolor", "BackColor",
    "FontName",      "FontSize",     "IndexFontSize",     "Align",     "Text"};

void expectLineDefaults(const TextLine& line, qint16 fontSize) {
    EXPECT_EQ(line.textKey, "");
    EXPECT_EQ(line.Border, 0);
    EXPECT_EQ(line.BorderColor, 0);
    EXPECT_FALSE(line.Font.Bold);
    EXPECT_FALSE(line.Font.Italic);
    EXPECT_FALSE(line.Font.Underline);
    EXPECT_FALSE(line.Font.Overline);
    EXPECT_FALSE(line.Font.Strikeout);
    EXPECT_EQ(line.Font.Color, 0);
    EXPECT_EQ(line.BackColor, -1);
    EXPECT_EQ(line.Font.Name, "Arial");
    EXPECT_EQ(line.Font.Size, fontSize);
    EXPECT_EQ(line.IndexFontSize, 0);
    EXPECT_EQ(line.Align, 0);
    EXPECT_EQ(line.Text, "");
}

void expectItemDefaults(const TextItem& item) {
    EXPECT_EQ(item.Font.Name, "Arial");
    EXPECT_EQ(item.Font.Size, 8);
    EXPECT_EQ(item.IndexFontSize, 0);
    EXPECT_FALSE(item.Font.Bold);
    EXPECT_FALSE(item.Font.Italic);
    EXPECT_FALSE(item.Font.Underline);
    EXPECT_FALSE(item.Font.Overline);
    EXPECT_FALSE(item.Font.Strikeout);
    EXPECT_EQ(item.Font.Color, 0);
    EXPECT_EQ(item.BackColor, 16777215);
    EXPECT_EQ(item.Text, "");
}

}  // namespace

TEST(Forecast, AnEmptyFrameHasABoxTwoLinesAndTwoEmptyLists) {
    cFrame frame;
    cForecast& forecast = frame.Texts().Forecast();
    EXPECT_EQ(forecast.Div().BackColor, -1);
    EXPECT_EQ(forecast.Div().Border, 0);
    EXPECT_EQ(forecast.Div().BorderColor, 16777215);
    EXPECT_EQ(forecast.Header().Count(), 0);
    EXPECT_EQ(forecast.Body().Count(), 0);
}

TEST(Forecast, AFreshTitleHasSize24) {
    expectLineDefaults(cTitle(), 24);
}

TEST(Forecast, AFreshSubtitleIsArial14WithoutBackground) {
    expectLineDefaults(cSubtitle(), 14);
}

TEST(Forecast, AFreshItemHasAWhiteBackgroundAndBlackText) {
    expectItemDefaults(cHeaderAttribute());
    expectItemDefaults(cBodyAttribute());
}

TEST(Forecast, PropertiesStandInTheirOrder) {
    EXPECT_EQ(testing::slotsOf(cDiv()), QStringList({"BackColor", "Border", "BorderColor"}));
    EXPECT_EQ(testing::slotsOf(cTitle()), lineSlots);
    EXPECT_EQ(testing::slotsOf(cSubtitle()), lineSlots);
    EXPECT_EQ(testing::slotsOf(cHeaderAttribute()),
              QStringList({"textKey", "FontName", "FontSize", "FontBold", "FontUnderline",
                           "FontOverline", "FontStrikethourht", "FontItalic", "Forecolor",
                           "BackColor", "IndexFontSize", "Text"}));
    EXPECT_EQ(testing::slotsOf(cBodyAttribute()),
              QStringList({"textKey", "FontBold", "FontUnderline", "FontOverline",
                           "FontStrikethourht", "FontItalic", "Forecolor", "BackColor", "FontName",
                           "FontSize", "IndexFontSize", "Text"}));
}

template <class List>
class ForecastList : public ::testing::Test {};
using Lists = ::testing::Types<cHeader, cBody>;
TYPED_TEST_SUITE(ForecastList, Lists);

TYPED_TEST(ForecastList, AddSetsEveryArgument) {
    TypeParam list;
    const auto& item = addItem(list);
    EXPECT_EQ(item.BackColor, 255);
    EXPECT_EQ(item.Font.Color, 65280);
    EXPECT_EQ(item.Font.Name, "Verdana");
    EXPECT_EQ(item.Font.Size, 10);
    EXPECT_EQ(item.IndexFontSize, 3);
    EXPECT_TRUE(item.Font.Bold);
    EXPECT_FALSE(item.Font.Italic);
    EXPECT_TRUE(item.Font.Underline);
    EXPECT_FALSE(item.Font.Overline);
    EXPECT_TRUE(item.Font.Strikeout);
    EXPECT_EQ(item.Text, "a text");
    EXPECT_EQ(&list.Item(1), &item);
    EXPECT_EQ(&list.Item(item.textKey), &item);
}

TYPED_TEST(ForecastList, ItalicAndOverlineHaveAPlaceOfTheirOwn) {
    TypeParam list;
    const auto& item =
        list.add({.Font = {.Size = 8, .Italic = true, .Overline = true}, .BackColor = 0});
    EXPECT_FALSE(item.Font.Bold);
    EXPECT_TRUE(item.Font.Italic);
    EXPECT_FALSE(item.Font.Underline);
    EXPECT_TRUE(item.Font.Overline);
    EXPECT_FALSE(item.Font.Strikeout);
}

TYPED_TEST(ForecastList, TheListDecidesOnTheKey) {
    TypeParam list;
    const QString firstKey = addItem(list).textKey;
    const int first = firstKey.mid(2).toInt();
    EXPECT_EQ(list.add({.textKey = firstKey}).textKey, "K-" + QString::number(first + 1));
}

TYPED_TEST(ForecastList, PositionsCloseUpOnRemove) {
    TypeParam list;
    addItem(list).Text = "one";
    addItem(list).Text = "two";
    addItem(list).Text = "three";
    list.Remove(2);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(2).Text, "three");
}

TYPED_TEST(ForecastList, UnknownKeysAndPositionsAreErrors) {
    TypeParam list;
    EXPECT_THROW(list.Item(1), Error);
    EXPECT_THROW(list.Item("K-0"), Error);
    EXPECT_THROW(list.Remove(0), Error);
    EXPECT_THROW(list.Remove("K-1"), Error);
}

TEST(Forecast, TheFirstHeaderItemIsK0AndItsNumberIsNotIssuedAgain) {
    cHeader header;
    EXPECT_EQ(addItem(header).textKey, "K-0");
    header.Remove("K-0");
    EXPECT_EQ(addItem(header).textKey, "K-1");
}

TEST(Forecast, TheFirstBodyItemIsK1) {
    cBody body;
    EXPECT_EQ(addItem(body).textKey, "K-1");
    EXPECT_EQ(addItem(body).textKey, "K-2");
}

}  // namespace nubivane
