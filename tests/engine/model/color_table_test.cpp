// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/color_table.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

#include <set>

namespace nubivane {

namespace {

struct Pair {
    qint32 color;
    const char* webColor;
};

/// The colours behind "none", in their order, written out a second time.
constexpr Pair expectedColors[] = {
    {36607, "#FF8C00"},    {42751, "#FFA500"},    {13026246, "#C0C0C0"}, {16252927, "#FFFFF0"},
    {14612471, "#F5F5DC"}, {16777215, "#FFFFFF"}, {14085119, "#FAEBD7"}, {16316671, "#F8F8FF"},
    {16250871, "#F5F5F5"}, {16775930, "#FFFAFA"}, {16251903, "#FFFAF0"}, {16711680, "#0000FF"},
    {11895362, "#4682B4"}, {14600117, "#B0C4DE"}, {16776183, "#F0F8FF"}, {13523307, "#6A5ACD"},
    {15690107, "#7B68EE"}, {9190474, "#483D8B"},  {16749080, "#1E90FF"}, {15716228, "#87CEEB"},
    {16764804, "#87CEFA"}, {16760320, "#00BFFF"}, {15197109, "#B0E0E6"}, {15195053, "#ADD8E6"},
    {8650752, "#000080"},  {13500416, "#0000CD"}, {7542808, "#191970"},  {15165762, "#4169E1"},
    {9175040, "#00008B"},  {15149196, "#8A2BE2"}, {9221846, "#D2B48C"},  {9234423, "#F0E68C"},
    {16776960, "#00FFFF"}, {16777191, "#E0FFFF"}, {9210368, "#008B8B"},  {16777207, "#F0FFFF"},
    {1599958, "#D2691E"},  {13564927, "#FFFACD"}, {15726591, "#FFF5EE"}, {5406207, "#FF7F50"},
    {8684279, "#F08080"},  {16711935, "#FF00FF"}, {65535, "#FFFF00"},    {15204351, "#FFFFE0"},
    {3264412, "#9ACD32"},  {11919351, "#F5DEB3"}, {11381421, "#A9A9A9"}, {9732723, "#708090"},
    {10259059, "#778899"}, {4869417, "#2F4F4F"},  {14078934, "#D3D3D3"}, {2199147, "#6B8E23"},
    {7039339, "#696969"},  {8684164, "#808080"},  {8650826, "#4B0082"},  {16771047, "#E6E6FA"},
    {16249855, "#FFF0F5"}, {8698590, "#DEB887"},  {14597854, "#D8BFD8"}, {65280, "#00FF00"},
    {15201279, "#FAF0E6"}, {9121234, "#8B2DD2"},  {9175180, "#8B008B"},  {6530807, "#F4A460"},
    {132, "#800000"},      {2707877, "#A0522D"},  {9211581, "#BC8F8F"},  {1066380, "#8B4513"},
    {0, "#000000"},        {14053854, "#DA70D6"}, {14046653, "#BA55D3"}, {55295, "#FFD700"},
    {558781, "#B8860B"},   {14086143, "#FFEFD5"}, {12442623, "#FFDAB9"}, {4350463, "#FF6347"},
    {8650884, "#800080"},  {14578068, "#9370DB"}, {14590686, "#DDA0DD"}, {13550591, "#FFC0CB"},
    {9704703, "#FF1493"},  {15198207, "#FFE4E1"}, {13022975, "#FFB6C1"}, {11889151, "#FF69B4"},
    {255, "#FF0000"},      {17919, "#FF4500"},    {5922254, "#CD5C5C"},  {2697381, "#A52A2A"},
    {2171061, "#B22222"},  {140, "#8B0000"},      {3740894, "#DC143C"},  {7570175, "#FA8072"},
    {8102655, "#FFA07A"},  {8099567, "#E9967A"},  {14082882, "#40E0D0"}, {15724461, "#AFEEEE"},
    {14077696, "#00CED1"}, {14090107, "#7FFFD4"}, {7582265, "#3CB371"},  {65403, "#7CFC00"},
    {8126208, "#00FF7F"},  {2198049, "#228B22"},  {3264305, "#32CD32"},  {9760660, "#90EE90"},
    {5409321, "#2E8B57"},  {9223820, "#8FBC8B"},  {10853978, "#5F9EA0"}, {2713938, "#556B2F"},
    {10288028, "#98FB98"}, {10287872, "#00FA9A"}, {33280, "#008000"},    {11383329, "#20B2AA"},
    {2752429, "#ADFF2F"},  {15696623, "#EE82EE"}, {14024852, "#9400D3"},
};

}  // namespace

TEST(ColorTableTest, TheFirstRowIsNoColour) {
    const ColorTable table;
    EXPECT_EQ(table.rows().size(), 116U);
    EXPECT_EQ(table.rows().front().color, -1);
    EXPECT_STREQ(table.rows().front().webColor, "-1");
    EXPECT_EQ(table.Item("K-1"), "-1");
}

TEST(ColorTableTest, TheOtherRowsStandInTheirOrder) {
    const ColorTable table;
    ASSERT_EQ(std::size(expectedColors), 115U);
    for (std::size_t i = 0; i < std::size(expectedColors); ++i) {
        EXPECT_EQ(table.rows()[i + 1].color, expectedColors[i].color);
        EXPECT_STREQ(table.rows()[i + 1].webColor, expectedColors[i].webColor);
    }
}

TEST(ColorTableTest, EveryRowIsFoundByItsKeyAndByItsNumber) {
    const ColorTable table;
    for (const Pair& pair : expectedColors) {
        EXPECT_EQ(table.Item("K" + QString::number(pair.color)), pair.webColor);
        EXPECT_EQ(table.webColor(pair.color), pair.webColor);
    }
    EXPECT_EQ(table.webColor(-1), "-1");
}

TEST(ColorTableTest, NoColourStandsInTwoRows) {
    const ColorTable table;
    std::set<qint32> colors;
    for (const ColorTable::Row& row : table.rows()) {
        EXPECT_TRUE(colors.insert(row.color).second) << row.color;
    }
}

TEST(ColorTableTest, BlackAndWhiteAreThemselves) {
    const ColorTable table;
    EXPECT_EQ(table.Item("K0"), "#000000");
    EXPECT_EQ(table.Item("K16777215"), "#FFFFFF");
}

TEST(ColorTableTest, TheLastRowIsDarkViolet) {
    const ColorTable table;
    EXPECT_EQ(table.rows().back().color, 14024852);
    EXPECT_STREQ(table.rows().back().webColor, "#9400D3");
}

TEST(ColorTableTest, ValuesAreNotComputedFromTheirKeys) {
    const ColorTable table;
    EXPECT_EQ(table.Item("K36607"), "#FF8C00");
    EXPECT_EQ(table.Item("K13026246"), "#C0C0C0");
    EXPECT_EQ(table.Item("K132"), "#800000");
    EXPECT_EQ(table.Item("K140"), "#8B0000");
}

TEST(ColorTableTest, AForeignColourIsAnError) {
    const ColorTable table;
    for (const qint32 color : {1, 2, -2, 16777214, 12632256}) {
        try {
            table.webColor(color);
            ADD_FAILURE() << color;
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), error_number::InvalidArgument);
        }
    }
}

TEST(ColorTableTest, AKeyOfAnotherFormIsAnError) {
    const ColorTable table;
    for (const char* key : {"", "K", "255", "K 255", "K255 ", "K0255", "K+255", "L255", "KFF",
                            "K4294967295", "K-0"}) {
        EXPECT_THROW(table.Item(key), Error) << key;
    }
}

TEST(ColorTableTest, AKeyIsKAndTheDecimalNumber) {
    EXPECT_EQ(ColorTable::keyOf(255), "K255");
    EXPECT_EQ(ColorTable::keyOf(-1), "K-1");
    EXPECT_EQ(ColorTable::keyOf(0), "K0");
}

}  // namespace nubivane
