// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/many_fixture.h"

namespace nubivane {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using SelectingMany = testing::ManyFixture;

TEST_F(SelectingMany, ABandSelectsWhatItTouches) {
    startWithSprites();
    dragWith({}, {60, 60}, {220, 120});
    EXPECT_THAT(selected(), ElementsAre(first, second));
    EXPECT_EQ(made(), 0);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(SelectingMany, ABandCanBeDrawnFromAnyCorner) {
    startWithSprites();
    dragWith({}, {330, 300}, {170, 70});
    EXPECT_THAT(selected(), ElementsAre(second, third, label));
}

TEST_F(SelectingMany, ABandThatShrinksLetsGoAgain) {
    startWithSprites();
    send(QEvent::MouseButtonPress, {60, 60}, {});
    send(QEvent::MouseMove, {330, 120}, {});
    EXPECT_EQ(selected().size(), 3U);
    send(QEvent::MouseMove, {130, 120}, {});
    EXPECT_THAT(selected(), ElementsAre(first));
    send(QEvent::MouseButtonRelease, {130, 120}, {});
    EXPECT_THAT(selected(), ElementsAre(first));
}

TEST_F(SelectingMany, TheBandIsSeenAndGoneAfterwards) {
    startWithSprites();
    const QColor bare = shown({400, 350});
    send(QEvent::MouseButtonPress, {380, 300}, {});
    send(QEvent::MouseMove, {450, 380}, {});
    EXPECT_NE(shown({400, 350}), bare);
    EXPECT_NE(shown({380, 350}), bare);
    send(QEvent::MouseButtonRelease, {450, 380}, {});
    EXPECT_EQ(shown({400, 350}), bare);
    EXPECT_EQ(shown({380, 350}), bare);
}

TEST_F(SelectingMany, WithShiftABandAdds) {
    startWithSprites();
    click({300, 100});
    dragWith(Qt::ShiftModifier, {60, 60}, {130, 120});
    EXPECT_THAT(selected(), ElementsAre(third, first));
}

TEST_F(SelectingMany, UndoDuringABandTakesTheBandBack) {
    startWithSprites();
    send(QEvent::MouseButtonPress, {60, 60}, {});
    send(QEvent::MouseMove, {220, 120}, {});
    trigger("mnuUndo");
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(made(), 0);
    EXPECT_EQ(symbols().Count(), 3);
}

TEST_F(SelectingMany, WithADrawingToolThereIsNoBand) {
    startWithSprites();
    workspace.Status.CurrentTool = Tool::draw;
    dragWith({}, {60, 60}, {220, 70});
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(SelectingMany, ShiftAndCtrlTakeInAndOut) {
    startWithSprites();
    for (const Qt::KeyboardModifier key : {Qt::ShiftModifier, Qt::ControlModifier}) {
        window().clearSelection();
        click({100, 100});
        clickWith(key, {200, 100});
        EXPECT_THAT(selected(), ElementsAre(first, second));
        clickWith(key, {100, 100});
        EXPECT_THAT(selected(), ElementsAre(second));
        clickWith(key, {200, 100});
        EXPECT_THAT(selected(), IsEmpty());
    }
    EXPECT_EQ(made(), 0);
}

TEST_F(SelectingMany, TheOneSelectedLastStandsInTheStatus) {
    startWithSprites();
    click({100, 100});
    clickWith(Qt::ShiftModifier, {200, 250});
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Label);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, label.key);
    clickWith(Qt::ShiftModifier, {300, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, third.key);
    clickWith(Qt::ShiftModifier, {300, 100});
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Label);
}

TEST_F(SelectingMany, EachHasABorderAndNoneHasHandles) {
    startWithSprites();
    select({first, second});
    EXPECT_EQ(selection().otherBorders().size(), 1U);
    EXPECT_EQ(selection().otherBorders().front().rect(), rect(first).adjusted(-8, -8, 8, 8));
    EXPECT_FALSE(selection().shpSelector()->handleAt(rect(second).topLeft() - QPoint(8, 8)));
    const QRect leftBorder(rect(first).topLeft() - QPoint(12, -6), QSize(10, 10));
    const QImage before = canvas().grab(leftBorder).toImage();
    window().clearSelection();
    EXPECT_NE(canvas().grab(leftBorder).toImage(), before);
    click({100, 100});
    EXPECT_TRUE(selection().shpSelector()->handleAt(rect(first).topLeft() - QPoint(8, 8)));
}

TEST_F(SelectingMany, CtrlASelectsAllAndTheUppermostCountsMost) {
    startWithSprites();
    keyOnMap(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(selected(), ElementsAre(first, second, third, label));
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, sprite_type::Label);
}

TEST_F(SelectingMany, CtrlAOnAnEmptyMapSelectsNothing) {
    start();
    trigger("mnuSelectAll");
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(selection().shpSelector(), nullptr);
}

TEST_F(SelectingMany, AClickOnOneOfManySelectsItAlone) {
    startWithSprites();
    select({first, second, third});
    click({200, 100});
    EXPECT_THAT(selected(), ElementsAre(second));
    EXPECT_EQ(made(), 0);
}

TEST_F(SelectingMany, ARightClickOnOneOfManyKeepsThem) {
    startWithSprites();
    select({first, second});
    click({100, 100}, Qt::RightButton);
    EXPECT_THAT(selected(), ElementsAre(first, second));
    EXPECT_TRUE(popup().isVisible());
    popup().close();
    click({300, 100}, Qt::RightButton);
    EXPECT_THAT(selected(), ElementsAre(third));
    popup().close();
}

TEST_F(SelectingMany, AltReachesWhatLiesBelowRoundAndRound) {
    startWithSprites();
    const SpriteId top{SpriteKind::Symbol, placeSymbol({100, 100})};
    window().clearSelection();
    clickWith(Qt::AltModifier, {100, 100});
    EXPECT_THAT(selected(), ElementsAre(top));
    clickWith(Qt::AltModifier, {100, 100});
    EXPECT_THAT(selected(), ElementsAre(first));
    clickWith(Qt::AltModifier, {100, 100});
    EXPECT_THAT(selected(), ElementsAre(top));
}

TEST_F(SelectingMany, AnotherFrameHasNoneOfThem) {
    startWithSprites();
    select({first, second});
    trigger("mnuFrameInsert");
    EXPECT_THAT(selected(), IsEmpty());
    selectTab(1);
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_TRUE(selection().otherBorders().empty());
}

TEST_F(SelectingMany, OneThatLeavesLeavesTheOthersSelected) {
    startWithSprites();
    select({first, second, third});
    workspace.edits().push(std::make_unique<RemoveSprite>("Delete", Marks::Nothing, 1, third));
    EXPECT_THAT(selected(), ElementsAre(first, second));
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, second.key);
}

}  // namespace nubivane
