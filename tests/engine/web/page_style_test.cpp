// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_style.h"

#include "support/fixtures.h"

namespace nubivane::testing {

namespace {

/// The classes that place the tooltip of a symbol with this middle, on a map of 100 x 100 pixels.
QString classesAt(QPoint middle, bool hasTooltip = true) {
    PageContent content;
    content.map = {100, 100};
    PageStyle style(content);
    const QString all = style.ofSymbol({middle - QPoint(5, 5), QSize(10, 10)}, hasTooltip);
    EXPECT_TRUE(all.startsWith("s s1"));
    return all.mid(4);
}

}  // namespace

TEST(Tooltips, OpenTowardsTheMiddleOfTheMapFromItsOuterParts) {
    EXPECT_EQ(classesAt({50, 50}), "");
    EXPECT_EQ(classesAt({29, 50}), " left");
    EXPECT_EQ(classesAt({30, 50}), "");
    EXPECT_EQ(classesAt({70, 50}), "");
    EXPECT_EQ(classesAt({71, 50}), " right");
    EXPECT_EQ(classesAt({50, 29}), " low");
    EXPECT_EQ(classesAt({50, 30}), "");
    EXPECT_EQ(classesAt({50, 95}), "");
    EXPECT_EQ(classesAt({5, 5}), " left low");
}

TEST(Tooltips, ThatAreNotThereNeedNoSide) {
    EXPECT_EQ(classesAt({5, 5}, false), "");
}

}  // namespace nubivane::testing
