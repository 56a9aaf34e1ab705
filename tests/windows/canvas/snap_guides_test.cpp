// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/snap_guides.h"

#include "windows/canvas/many_fixture.h"

namespace nubivane {

namespace {

constexpr QSize Map(400, 300);

SnapGuides guides(std::vector<QRect> others) {
    return {{true, 0}, Map, std::move(others), 5};
}

}  // namespace

TEST(SnapGuidesOf, EdgesDrawEdges) {
    const SnapGuides snap = guides({{100, 50, 40, 40}});
    EXPECT_EQ(snap.snap({103, 200, 10, 10}).offset, QPoint(-3, 0));  // left to left
    EXPECT_EQ(snap.snap({133, 200, 10, 10}).offset, QPoint(-3, 0));  // right to right
    EXPECT_EQ(snap.snap({137, 200, 10, 10}).offset, QPoint(3, 0));   // left to right
    EXPECT_EQ(snap.snap({88, 200, 10, 10}).offset, QPoint(2, 0));    // right to left
    EXPECT_EQ(snap.snap({250, 48, 10, 10}).offset, QPoint(0, 2));    // top to top
}

TEST(SnapGuidesOf, CentresDrawCentres) {
    const SnapGuides snap = guides({{100, 50, 40, 40}});
    EXPECT_EQ(snap.snap({107, 200, 30, 30}).offset, QPoint(-2, 0));
}

TEST(SnapGuidesOf, TheMapsCentreDraws) {
    const auto snapped = guides({}).snap({188, 138, 20, 20});
    EXPECT_EQ(snapped.offset, QPoint(2, 2));
    ASSERT_EQ(snapped.lines.size(), 2U);
    EXPECT_EQ(snapped.lines[0], QLine(200, 0, 200, 300));
    EXPECT_EQ(snapped.lines[1], QLine(0, 150, 400, 150));
}

TEST(SnapGuidesOf, EqualDistancesDraw) {
    const SnapGuides snap = guides({{10, 100, 20, 20}, {60, 100, 20, 20}});
    // As far from the second as that one is from the first: 30 pixels.
    EXPECT_EQ(snap.snap({108, 100, 20, 20}).offset.x(), 2);
    // In the middle between two.
    const SnapGuides between = guides({{10, 100, 20, 20}, {110, 100, 20, 20}});
    EXPECT_EQ(between.snap({57, 105, 25, 20}).offset.x(), 0);
    EXPECT_EQ(between.snap({60, 105, 25, 20}).offset.x(), -3);
}

TEST(SnapGuidesOf, OnesThatAreNotBesideItMakeNoDistances) {
    const SnapGuides snap = guides({{10, 10, 20, 20}, {60, 10, 20, 20}});
    EXPECT_EQ(snap.snap({108, 200, 20, 20}).offset, QPoint(0, 0));
}

TEST(SnapGuidesOf, BeyondTheirReachNothingDraws) {
    const auto snapped = guides({{100, 50, 40, 40}}).snap({20, 220, 30, 30});
    EXPECT_EQ(snapped.offset, QPoint(0, 0));
    EXPECT_TRUE(snapped.lines.empty());
}

TEST(SnapGuidesOf, ALineRunsFromOneToTheOther) {
    const auto snapped = guides({{100, 50, 40, 40}}).snap({103, 200, 10, 33});
    ASSERT_FALSE(snapped.lines.empty());
    EXPECT_EQ(snapped.lines[0], QLine(100, 50, 100, 233));
}

TEST(SnapGuidesOf, AGridDrawsTheCorner) {
    const SnapGuides grid({false, 20}, Map, {}, 5);
    EXPECT_EQ(grid.snap({29, 31, 15, 15}).offset, QPoint(-9, 9));
    EXPECT_TRUE(grid.snap({29, 31, 15, 15}).lines.empty());
    EXPECT_EQ(grid.snap({-12, 40, 15, 15}).offset, QPoint(-8, 0));
}

TEST(SnapGuidesOf, AGuideGoesBeforeTheGrid) {
    const SnapGuides both({true, 20}, Map, {{103, 50, 40, 40}}, 5);
    EXPECT_EQ(both.snap({101, 231, 15, 15}).offset, QPoint(2, 9));
}

using Guided = testing::ManyFixture;

TEST_F(Guided, WithoutTheCommandADragFollowsThePointer) {
    startWithSprites();
    drag({100, 100}, {102, 203});
    EXPECT_EQ(position(first), QPoint(86, 187));
}

TEST_F(Guided, WithItASpriteIsDrawnToTheEdgesOfOthers) {
    startWithSprites();
    trigger("mnuGuides");
    drag({100, 100}, {201, 150});
    EXPECT_EQ(position(first), QPoint(184, 134));
    EXPECT_EQ(settings.text(Setting::Guides), "1");
}

TEST_F(Guided, LinesAreSeenWhileItIsHeld) {
    startWithSprites();
    trigger("mnuGuides");
    send(QEvent::MouseButtonPress, {100, 100}, {});
    send(QEvent::MouseMove, {203, 160}, {});
    EXPECT_FALSE(window().canvas().mouse().marks().lines().empty());
    send(QEvent::MouseButtonRelease, {203, 160}, {});
    EXPECT_TRUE(window().canvas().mouse().marks().lines().empty());
}

TEST_F(Guided, AltHoldsThemOff) {
    startWithSprites();
    trigger("mnuGuides");
    click({100, 100});
    dragWith(Qt::AltModifier, {100, 100}, {203, 150});
    EXPECT_EQ(position(first), QPoint(187, 134));
}

TEST_F(Guided, ManyAreDrawnAsOne) {
    startWithSprites();
    trigger("mnuGuides");
    select({first, second});
    dragWith({}, {100, 100}, {100, 203});
    EXPECT_EQ(position(first).x() + 100, position(second).x());
    EXPECT_EQ(position(first).y(), position(second).y());
}

TEST_F(Guided, AGridTakesTheCornerOfWhatIsDragged) {
    settings.set(Setting::Grid, "25");
    startWithSprites();
    drag({100, 100}, {133, 141});
    EXPECT_EQ(position(first), QPoint(125, 125));
}

TEST_F(Guided, AGridThatCannotBeIsNone) {
    settings.set(Setting::Grid, "100000");
    startWithSprites();
    drag({100, 100}, {133, 141});
    EXPECT_EQ(position(first), QPoint(117, 125));
}

}  // namespace nubivane
