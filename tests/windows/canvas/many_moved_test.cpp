// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/many_fixture.h"

namespace nubivane {

using ::testing::ElementsAre;

using MovingMany = testing::ManyFixture;

TEST_F(MovingMany, ADragMovesAllByOneEdit) {
    startWithSprites();
    select({first, second, label});
    const QPoint text = position(label);
    dragWith({}, {100, 100}, {120, 140});
    EXPECT_EQ(position(first), QPoint(104, 124));
    EXPECT_EQ(position(second), QPoint(204, 124));
    EXPECT_EQ(position(third), QPoint(284, 84));
    EXPECT_EQ(position(label), text + QPoint(20, 40));
    EXPECT_THAT(selected(), ElementsAre(first, second, label));
    EXPECT_EQ(made(), 1);
    EXPECT_TRUE(workspace.ProjectChanged);
    trigger("mnuUndo");
    EXPECT_EQ(position(first), QPoint(84, 84));
    EXPECT_EQ(rect(second).topLeft(), QPoint(184, 84));
    EXPECT_EQ(position(label), text);
    EXPECT_EQ(selected().size(), 3U);
    trigger("mnuRedo");
    EXPECT_EQ(position(second), QPoint(204, 124));
    EXPECT_EQ(rect(first).topLeft(), QPoint(104, 124));
}

TEST_F(MovingMany, BordersAreAbsentWhileTheyMove) {
    startWithSprites();
    select({first, second});
    send(QEvent::MouseButtonPress, {100, 100}, {});
    EXPECT_TRUE(selection().shpSelector());
    send(QEvent::MouseMove, {110, 100}, {});
    EXPECT_FALSE(selection().shpSelector());
    EXPECT_TRUE(selection().otherBorders().empty());
    send(QEvent::MouseButtonRelease, {110, 100}, {});
    EXPECT_TRUE(selection().shpSelector());
    EXPECT_EQ(selection().otherBorders().size(), 1U);
}

TEST_F(MovingMany, AllStayInsideTheMapAndKeepTheirDistances) {
    startWithSprites();
    select({first, third});
    dragWith({}, {100, 100}, {-300, -200});
    EXPECT_EQ(position(first), QPoint(0, 0));
    EXPECT_EQ(position(third), QPoint(200, 0));
    dragWith({}, {10, 10}, {900, 900});
    EXPECT_EQ(position(third), QPoint(502 - 32, 402 - 32));
    EXPECT_EQ(position(first), QPoint(502 - 232, 402 - 32));
}

TEST_F(MovingMany, UndoDuringADragPutsThemBack) {
    startWithSprites();
    select({first, second});
    send(QEvent::MouseButtonPress, {100, 100}, {});
    send(QEvent::MouseMove, {150, 150}, {});
    EXPECT_EQ(rect(second).topLeft(), QPoint(234, 134));
    trigger("mnuUndo");
    EXPECT_EQ(rect(second).topLeft(), QPoint(184, 84));
    EXPECT_EQ(position(second), QPoint(184, 84));
    EXPECT_EQ(made(), 0);
    EXPECT_EQ(selected().size(), 2U);
    EXPECT_TRUE(selection().shpSelector());
}

TEST_F(MovingMany, ASpriteDeletedUnderTheHandEndsTheDrag) {
    startWithSprites();
    select({first, second});
    send(QEvent::MouseButtonPress, {100, 100}, Qt::ControlModifier);
    send(QEvent::MouseMove, {150, 150}, Qt::ControlModifier);
    trigger("mnuDelSymbol");
    send(QEvent::MouseMove, {160, 160}, Qt::ControlModifier);
    canvas().grab();
    send(QEvent::MouseButtonRelease, {160, 160}, Qt::ControlModifier);
    EXPECT_EQ(symbols().Count(), 1);
}

TEST_F(MovingMany, ALockedMapSelectsManyAndMovesNone) {
    startWithSprites();
    trigger("mnuLock");
    select({first});
    clickWith(Qt::ShiftModifier, {200, 100});
    EXPECT_THAT(selected(), ElementsAre(first, second));
    dragWith({}, {100, 100}, {150, 150});
    EXPECT_EQ(position(first), QPoint(84, 84));
    EXPECT_EQ(position(second), QPoint(184, 84));
}

TEST_F(MovingMany, ShiftAndADragTakeTheSpriteAlong) {
    startWithSprites();
    select({first});
    dragWith(Qt::ShiftModifier, {200, 100}, {210, 110});
    EXPECT_EQ(position(first), QPoint(94, 94));
    EXPECT_EQ(position(second), QPoint(194, 94));
    EXPECT_THAT(selected(), ElementsAre(first, second));
}

TEST_F(MovingMany, CtrlAndADragLeaveCopies) {
    startWithSprites();
    select({first, label});
    dragWith(Qt::ControlModifier, {100, 100}, {150, 160});
    EXPECT_EQ(position(first), QPoint(84, 84));
    ASSERT_EQ(symbols().Count(), 4);
    ASSERT_EQ(labels().Count(), 2);
    EXPECT_EQ(symbols().Item(4).PosX, 134);
    EXPECT_EQ(symbols().Item(4).PosY, 144);
    EXPECT_EQ(symbols().Item(4).PathFileGif, symbols().Item(1).PathFileGif);
    EXPECT_EQ(selected().size(), 2U);
    EXPECT_FALSE(selection().contains(first));
    EXPECT_EQ(made(), 1);
    trigger("mnuUndo");
    EXPECT_EQ(symbols().Count(), 3);
    EXPECT_EQ(labels().Count(), 1);
}

TEST_F(MovingMany, CtrlAndADragOfAnotherSpriteCopyThatOneAlone) {
    startWithSprites();
    select({first});
    dragWith(Qt::ControlModifier, {200, 100}, {200, 200});
    EXPECT_EQ(symbols().Count(), 4);
    EXPECT_EQ(labels().Count(), 1);
    EXPECT_EQ(symbols().Item(4).PosX, 184);
    EXPECT_EQ(symbols().Item(4).PosY, 184);
}

TEST_F(MovingMany, ArrowsMoveByOneAndWithCtrlByTenWhereTheMapHasTheKeyboard) {
    startWithSprites();
    select({first, second});
    keyOnMap(Qt::Key_Right);
    EXPECT_EQ(position(first), QPoint(85, 84));
    EXPECT_EQ(position(second), QPoint(185, 84));
    keyOnMap(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(position(first), QPoint(85, 94));
    EXPECT_EQ(rect(second).topLeft(), QPoint(185, 94));
    keyOnMap(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(position(second), QPoint(184, 94));
    EXPECT_EQ(made(), 1);
    trigger("mnuUndo");
    EXPECT_EQ(position(first), QPoint(84, 84));
    EXPECT_EQ(position(second), QPoint(184, 84));
}

TEST_F(MovingMany, OneAloneIsMovedByTheSameKeys) {
    startWithSprites();
    select({first});
    keyOnMap(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(position(first), QPoint(74, 84));
    keyOnMap(Qt::Key_Up);
    EXPECT_EQ(position(first), QPoint(74, 83));
    for (int i = 0; i < 20; ++i) {
        keyOnMap(Qt::Key_Left, Qt::ControlModifier);
    }
    EXPECT_EQ(position(first).x(), -16);
}

TEST_F(MovingMany, ManyStopAtTheEdge) {
    startWithSprites();
    select({first, third});
    for (int i = 0; i < 20; ++i) {
        keyOnMap(Qt::Key_Left, Qt::ControlModifier);
    }
    EXPECT_EQ(position(first), QPoint(0, 84));
    EXPECT_EQ(position(third), QPoint(200, 84));
}

TEST_F(MovingMany, ElsewhereArrowsBelongToWhoHasTheKeyboard) {
    startWithSprites();
    select({first, second});
    ListImage* list = window().palette().currentList();
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Right);
    QTest::keyClick(list, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(position(first), QPoint(84, 84));
    QTest::keyClick(list, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(position(first), QPoint(85, 84));
    EXPECT_EQ(position(second), QPoint(185, 84));
}

TEST_F(MovingMany, DeleteTakesAllAwayAndUndoPutsThemWhereTheyLay) {
    startWithSprites();
    select({first, third, label});
    trigger("mnuDelSymbol");
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_EQ(labels().Count(), 0);
    EXPECT_TRUE(selection().isEmpty());
    EXPECT_EQ(made(), 1);
    trigger("mnuUndo");
    ASSERT_EQ(symbols().Count(), 3);
    EXPECT_EQ(symbols().Item(1).Key_, first.key);
    EXPECT_EQ(symbols().Item(2).Key_, second.key);
    EXPECT_EQ(symbols().Item(3).Key_, third.key);
    EXPECT_EQ(selected().size(), 3U);
    std::vector<SpriteId> shown;
    for (const SpriteControl* control : sprites().controls()) {
        shown.push_back(control->id);
    }
    EXPECT_THAT(shown, ElementsAre(first, second, third, label));
}

TEST_F(MovingMany, CopiesComeOntoAnotherFrameWhereTheyStood) {
    startWithSprites();
    select({first, label});
    const QPoint text = position(label);
    trigger("mnuCopy");
    trigger("mnuFrameInsert");
    const int before = workspace.edits().count();
    trigger("mnuPaste");
    EXPECT_EQ(workspace.edits().count(), before + 1);
    ASSERT_EQ(symbols(2).Count(), 1);
    ASSERT_EQ(labels(2).Count(), 1);
    EXPECT_EQ(symbols(2).Item(1).PosX, 84);
    EXPECT_EQ(labels(2).Item(1).PosX, text.x());
    EXPECT_EQ(selected().size(), 2U);
    EXPECT_EQ(symbols(1).Count(), 3);
}

TEST_F(MovingMany, CopiesNeverComeToLieOnTopOfOneAnother) {
    startWithSprites();
    select({first, second});
    trigger("mnuCopy");
    for (int i = 0; i < 4; ++i) {
        trigger("mnuPaste");
    }
    ASSERT_EQ(symbols().Count(), 11);
    std::vector<QPoint> corners;
    for (const cSymbol& symbol : symbols()) {
        const QPoint corner(symbol.PosX, symbol.PosY);
        for (const QPoint& other : corners) {
            EXPECT_GE((corner - other).manhattanLength(), 16);
        }
        corners.push_back(corner);
    }
}

TEST_F(MovingMany, CutAndPasteMoveAllToAnotherFrameByOneEdit) {
    startWithSprites();
    select({first, second, label});
    trigger("mnuCut");
    EXPECT_EQ(symbols().Count(), 3);
    trigger("mnuFrameInsert");
    trigger("mnuPaste");
    EXPECT_EQ(symbols(1).Count(), 1);
    EXPECT_EQ(labels(1).Count(), 0);
    EXPECT_EQ(symbols(2).Count(), 2);
    EXPECT_EQ(labels(2).Count(), 1);
    trigger("mnuUndo");
    EXPECT_EQ(symbols(1).Count(), 3);
    EXPECT_EQ(labels(1).Count(), 1);
    EXPECT_EQ(symbols(2).Count(), 0);
}

TEST_F(MovingMany, CtrlDLeavesCopiesBesideThemAndSelectsThem) {
    startWithSprites();
    select({first, second});
    keyOnMap(Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(symbols().Count(), 5);
    EXPECT_EQ(symbols().Item(4).PosX, 100);
    EXPECT_EQ(symbols().Item(4).PosY, 100);
    EXPECT_EQ(symbols().Item(5).PosX, 200);
    EXPECT_EQ(selected().size(), 2U);
    EXPECT_TRUE(selection().contains({SpriteKind::Symbol, symbols().Item(5).Key_}));
    EXPECT_EQ(made(), 1);
    EXPECT_TRUE(workspace.ProjectChanged);
    trigger("mnuUndo");
    EXPECT_EQ(symbols().Count(), 3);
}

}  // namespace nubivane
