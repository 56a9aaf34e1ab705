// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

namespace nubivane {

/// A symbol of 32 x 32 at (184, 134), selected.
class Resizing : public testing::CanvasFixture {
  protected:
    void startWithSymbol() {
        start();
        key = placeSymbol({200, 150});
        workspace.ProjectChanged = false;
    }
    QRect onScreen() { return symbolControl(key)->rect; }
    /// The middle of a handle of the selection frame.
    QPoint handle(int horizontal, int vertical) {
        const QRect frame = selection().shpSelector()->rect();
        return {horizontal < 0   ? frame.left()
                : horizontal > 0 ? frame.right()
                                 : frame.center().x(),
                vertical < 0   ? frame.top()
                : vertical > 0 ? frame.bottom()
                               : frame.center().y()};
    }

    QString key;
};

struct HandleCase {
    const char* name;
    int horizontal;
    int vertical;
    QRect outward;  ///< where the symbol stands after a pull of 20 across and 10 along, outwards
};

class ResizingBy : public Resizing, public ::testing::WithParamInterface<HandleCase> {};

TEST_P(ResizingBy, MovesTheSidesOfItsHandleAlone) {
    startWithSymbol();
    const HandleCase& test = GetParam();
    const QPoint start = handle(test.horizontal, test.vertical);
    drag(start, start + QPoint(20 * test.horizontal, 10 * test.vertical));
    EXPECT_EQ(onScreen(), test.outward);
    EXPECT_EQ(symbolRect(key), test.outward);
    EXPECT_EQ(selection().shpSelector()->rect(), test.outward.adjusted(-8, -8, 8, 8));
}

TEST_P(ResizingBy, LeavesTheOppositeSideWhenPulledBeyondIt) {
    startWithSymbol();
    const HandleCase& test = GetParam();
    const QRect before = onScreen();
    const QPoint start = handle(test.horizontal, test.vertical);
    drag(start, start - QPoint(200 * test.horizontal, 200 * test.vertical));
    const QRect after = onScreen();
    EXPECT_EQ(after.width(), test.horizontal ? 8 : 32);
    EXPECT_EQ(after.height(), test.vertical ? 8 : 32);
    EXPECT_EQ(test.horizontal < 0 ? after.right() : after.left(),
              test.horizontal < 0 ? before.right() : before.left());
    EXPECT_EQ(test.vertical < 0 ? after.bottom() : after.top(),
              test.vertical < 0 ? before.bottom() : before.top());
    EXPECT_EQ(symbolRect(key), after);
}

INSTANTIATE_TEST_SUITE_P(Handle, ResizingBy,
                         ::testing::Values(HandleCase{"TopLeft", -1, -1, {164, 124, 52, 42}},
                                           HandleCase{"Top", 0, -1, {184, 124, 32, 42}},
                                           HandleCase{"TopRight", 1, -1, {184, 124, 52, 42}},
                                           HandleCase{"Left", -1, 0, {164, 134, 52, 32}},
                                           HandleCase{"Right", 1, 0, {184, 134, 52, 32}},
                                           HandleCase{"BottomLeft", -1, 1, {164, 134, 52, 42}},
                                           HandleCase{"Bottom", 0, 1, {184, 134, 32, 42}},
                                           HandleCase{"BottomRight", 1, 1, {184, 134, 52, 42}}),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(Resizing, TheSymbolFollowsAtOnceAndTheModelAtTheEnd) {
    startWithSymbol();
    press(handle(1, 1));
    move(handle(1, 1) + QPoint(20, 10));
    EXPECT_EQ(onScreen(), QRect(184, 134, 52, 42));
    EXPECT_EQ(symbolRect(key), QRect(184, 134, 32, 32));
    release({300, 300});
    EXPECT_EQ(symbolRect(key), QRect(184, 134, 52, 42));
}

TEST_F(Resizing, TheSymbolIsShownInItsNewSize) {
    start();
    key = placeSymbol({200, 150}, addStill("red.png", {32, 32}));
    drag(handle(1, 1), handle(1, 1) + QPoint(60, 60));
    EXPECT_EQ(shown({268, 218}), QColor(Qt::red));
}

TEST_F(Resizing, NoAspectRatioIsKept) {
    startWithSymbol();
    drag(handle(1, 1), handle(1, 1) + QPoint(100, -20));
    EXPECT_EQ(symbolRect(key).size(), QSize(132, 12));
}

TEST_F(Resizing, LeavesTheProjectAsUnchangedAsItWas) {
    startWithSymbol();
    drag(handle(1, 1), handle(1, 1) + QPoint(20, 10));
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Resizing, ASymbolMayGrowBeyondTheMap) {
    startWithSymbol();
    drag(handle(-1, -1), {-108, -58});
    EXPECT_EQ(symbolRect(key), QRect(QPoint(-100, -50), QPoint(215, 165)));
}

TEST_F(Resizing, KeepsTheSelection) {
    startWithSymbol();
    drag(handle(0, 1), handle(0, 1) + QPoint(0, 30));
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Symbol);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
    EXPECT_EQ(selection().control(), symbolControl(key));
}

TEST_F(Resizing, APressOnAHandleWithoutAMoveChangesNothing) {
    startWithSymbol();
    click(handle(1, 1) + QPoint(3, 3));
    EXPECT_EQ(symbolRect(key), QRect(184, 134, 32, 32));
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
}

TEST_F(Resizing, AHandleOnTopOfAnotherSpriteIsTheHandle) {
    startWithSymbol();
    const QString other = placeSymbol({224, 174});
    click({186, 136});
    ASSERT_EQ(workspace.Status.CurrentShapeControlKey, key);
    drag(handle(1, 1), handle(1, 1) + QPoint(10, 10));
    EXPECT_EQ(symbolRect(key).size(), QSize(42, 42));
    EXPECT_EQ(symbolRect(other), QRect(208, 158, 32, 32));
}

TEST_F(Resizing, ALabelIsNeverResizedByHand) {
    start();
    const QString label = placeLabel({200, 150});
    const QRect before = labelControl(label)->rect;
    drag(handle(1, 1), handle(1, 1) + QPoint(20, 10));
    EXPECT_EQ(labelControl(label)->rect, before);
    EXPECT_EQ(labels().Item(label).Width, 26);
    EXPECT_EQ(labels().Item(label).Height, 14);
}

TEST_F(Resizing, AResizeUnderWayEndsWithTheFrame) {
    startWithSymbol();
    press(handle(1, 1));
    move(handle(1, 1) + QPoint(20, 10));
    trigger("mnuFrameInsert");
    move({400, 300});
    release({400, 300});
    EXPECT_EQ(symbolRect(key), QRect(184, 134, 32, 32));
    selectTab(1);
    EXPECT_EQ(onScreen(), QRect(184, 134, 32, 32));
}

TEST_F(Resizing, ASymbolOfOnePixelCanStillBeGrabbedAndDragged) {
    start();
    key = placeSymbol({200, 150}, addStill("dot.png", {1, 1}));
    drag({200, 150}, {230, 160});
    EXPECT_EQ(symbolRect(key), QRect(230, 160, 1, 1));
}

TEST_F(Resizing, HandlesOfASymbolInTheCornerAreWholeAndCanBeGrabbed) {
    start();
    key = placeSymbol({16, 16});
    ASSERT_EQ(onScreen().topLeft(), QPoint(0, 0));
    // The white inside of the corner's handle lies on the map, where it can be pressed.
    for (const QPoint inside : {QPoint(1, 1), QPoint(4, 4)}) {
        EXPECT_EQ(shown(inside), QColor(Qt::white)) << inside.x();
    }
    EXPECT_TRUE(selection().shpSelector()->handleAt({3, 3}));
    EXPECT_TRUE(selection().shpSelector()->handleAt({3, 16}));
    drag({3, 3}, {3, 3});
    EXPECT_EQ(onScreen(), QRect(0, 0, 32, 32));
}

}  // namespace nubivane
