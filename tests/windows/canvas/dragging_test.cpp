// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

namespace nubivane {

/// A symbol of 32 x 32 at (84, 84) and a label on a map of 502 x 402 with its frame.
class Dragging : public testing::CanvasFixture {
  protected:
    void startWithSprites() {
        start();
        symbol = placeSymbol({100, 100});
        label = placeLabel({300, 100});
        window().clearSelection();
        workspace.ProjectChanged = false;
    }

    QString symbol;
    QString label;
};

TEST_F(Dragging, TheSpriteFollowsThePointerAtTheSpotWhereItWasPressed) {
    startWithSprites();
    press({90, 95});
    move({150, 175});
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(144, 164, 32, 32));
    move({151, 174});
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(145, 163, 32, 32));
    release({151, 174});
}

TEST_F(Dragging, TheModelTakesTheNewPlaceAtTheRelease) {
    startWithSprites();
    press({100, 100});
    move({160, 180});
    EXPECT_EQ(symbolRect(symbol), QRect(84, 84, 32, 32));
    EXPECT_FALSE(workspace.ProjectChanged);
    release({160, 180});
    EXPECT_EQ(symbolRect(symbol), QRect(144, 164, 32, 32));
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(Dragging, ALabelIsDraggedLikeASymbol) {
    startWithSprites();
    const QRect before = labelControl(label)->rect;
    drag({300, 100}, {330, 140});
    EXPECT_EQ(labelControl(label)->rect, before.translated(30, 40));
    EXPECT_EQ(labelPosition(label), before.topLeft() + QPoint(30, 40));
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Label);
}

TEST_F(Dragging, TheSelectionFrameIsAbsentUntilTheRelease) {
    startWithSprites();
    click({100, 100});
    ASSERT_NE(selection().shpSelector(), nullptr);
    press({100, 100});
    EXPECT_EQ(selection().shpSelector(), nullptr);
    move({150, 150});
    EXPECT_EQ(selection().shpSelector(), nullptr);
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::None);
    release({150, 150});
    ASSERT_NE(selection().shpSelector(), nullptr);
    EXPECT_EQ(selection().shpSelector()->rect(), QRect(126, 126, 48, 48));
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, symbol);
}

TEST_F(Dragging, ASpriteMayLeaveTheMapWhileItIsDragged) {
    startWithSprites();
    press({100, 100});
    move({-100, 700});
    EXPECT_EQ(symbolControl(symbol)->rect.topLeft(), QPoint(-116, 684));
    release({-100, 700});
}

TEST_F(Dragging, AReleaseEntirelyLeftOfTheMapPutsTheSpriteAtItsLeftEdge) {
    startWithSprites();
    drag({100, 100}, {-200, 100});
    EXPECT_EQ(symbolRect(symbol), QRect(0, 84, 32, 32));
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(0, 84, 32, 32));
}

TEST_F(Dragging, AReleaseAboveTheMapPutsTheSpriteAtItsUpperEdge) {
    startWithSprites();
    drag({100, 100}, {100, -50});
    EXPECT_EQ(symbolRect(symbol), QRect(84, 0, 32, 32));
}

TEST_F(Dragging, AReleaseBeyondTheLowerRightCornerPutsTheSpriteIntoIt) {
    startWithSprites();
    drag({100, 100}, {900, 900});
    EXPECT_EQ(symbolRect(symbol), QRect(502 - 32, 402 - 32, 32, 32));
    EXPECT_EQ(symbolControl(symbol)->rect, symbolRect(symbol));
}

TEST_F(Dragging, AReleaseThatJustFitsIsLeftAlone) {
    startWithSprites();
    drag({100, 100}, {16, 16});
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(0, 0));
    drag({16, 16}, {486, 386});
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(470, 370));
    drag({486, 386}, {485, 385});
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(469, 369));
}

TEST_F(Dragging, ASpriteWiderThanTheMapGetsANegativePositionFromTheRightEdge) {
    startWithSprites();
    const QString wide = placeSymbol({250, 200}, addStill("wide.png", {600, 20}));
    drag({250, 200}, {260, 200});
    EXPECT_EQ(symbolRect(wide).x(), 502 - 600);
    EXPECT_EQ(symbolControl(wide)->rect.x(), 502 - 600);
}

TEST_F(Dragging, AClickWithoutAMoveSelectsAndMarksTheProjectChanged) {
    startWithSprites();
    click({100, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, symbol);
    EXPECT_EQ(symbolRect(symbol), QRect(84, 84, 32, 32));
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(Dragging, TheReleaseOfAnotherButtonDoesNotEndADrag) {
    startWithSprites();
    press({100, 100});
    move({150, 150});
    release({150, 150}, Qt::MiddleButton);
    EXPECT_FALSE(workspace.ProjectChanged);
    move({160, 160});
    release({160, 160});
    EXPECT_EQ(symbolRect(symbol), QRect(144, 144, 32, 32));
}

TEST_F(Dragging, AMoveWithoutTheButtonDragsNothing) {
    startWithSprites();
    click({100, 100});
    QTest::mouseMove(&canvas(), {200, 200});
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(84, 84, 32, 32));
}

TEST_F(Dragging, TheMiddleButtonStartsNoDrag) {
    startWithSprites();
    press({100, 100}, Qt::MiddleButton);
    move({150, 150});
    release({150, 150}, Qt::MiddleButton);
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(84, 84, 32, 32));
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Dragging, OnlyTheDraggedOneOfTwoSpritesMoves) {
    startWithSprites();
    const QString other = placeSymbol({110, 100});
    drag({120, 100}, {220, 200});
    EXPECT_EQ(symbolRect(symbol), QRect(84, 84, 32, 32));
    EXPECT_EQ(symbolRect(other), QRect(194, 184, 32, 32));
}

TEST_F(Dragging, ASymbolWithoutAFileNameIsNotDragged) {
    startWithSprites();
    trigger("mnuFrameInsert");
    symbols().Item(symbol).PathFileGif.clear();
    selectTab(1);
    workspace.ProjectChanged = false;
    drag({100, 100}, {200, 200});
    EXPECT_EQ(symbolRect(symbol), QRect(84, 84, 32, 32));
    EXPECT_FALSE(workspace.ProjectChanged);
}

}  // namespace nubivane
