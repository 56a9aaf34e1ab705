// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"

#include <QLineEdit>

namespace nubivane {

/// A symbol of 32 x 32 at (84, 84), selected, on a map of 502 x 402 with its frame.
class Nudging : public testing::CanvasFixture {
  protected:
    void startWithSymbol() {
        start();
        symbol = placeSymbol({100, 100});
        workspace.ProjectChanged = false;
    }
    void nudge(Qt::Key arrow, int times = 1) {
        for (int i = 0; i < times; ++i) {
            key(arrow, Qt::ShiftModifier);
        }
    }

    QString symbol;
};

TEST_F(Nudging, ShiftAndAnArrowMoveByOnePixel) {
    startWithSymbol();
    nudge(Qt::Key_Left);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(83, 84));
    nudge(Qt::Key_Up);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(83, 83));
    nudge(Qt::Key_Right, 3);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(86, 83));
    nudge(Qt::Key_Down, 4);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(86, 87));
}

TEST_F(Nudging, ControlAndSelectionFrameFollow) {
    startWithSymbol();
    nudge(Qt::Key_Right, 5);
    EXPECT_EQ(symbolControl(symbol)->rect, QRect(89, 84, 32, 32));
    EXPECT_EQ(selection().shpSelector()->rect(), QRect(81, 76, 48, 48));
}

TEST_F(Nudging, ALabelIsNudgedToo) {
    start();
    const QString label = placeLabel({200, 150});
    const QPoint before = labelPosition(label);
    nudge(Qt::Key_Down);
    EXPECT_EQ(labelPosition(label), before + QPoint(0, 1));
    EXPECT_EQ(labelControl(label)->rect.topLeft(), before + QPoint(0, 1));
}

TEST_F(Nudging, LeftStopsWhenTheCentreReachesTheLeftEdge) {
    startWithSymbol();
    nudge(Qt::Key_Left, 120);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(-16, 84));
    EXPECT_EQ(symbolControl(symbol)->rect.topLeft(), QPoint(-16, 84));
}

TEST_F(Nudging, UpStopsWhenTheCentreReachesTheUpperEdge) {
    startWithSymbol();
    nudge(Qt::Key_Up, 120);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(84, -16));
}

TEST_F(Nudging, RightStopsWhenTheCentreReachesTheRightEdge) {
    start();
    symbol = placeSymbol({480, 100});
    nudge(Qt::Key_Right, 60);
    EXPECT_EQ(symbolRect(symbol).x(), 502 - 16);
    nudge(Qt::Key_Left);
    EXPECT_EQ(symbolRect(symbol).x(), 502 - 17);
}

TEST_F(Nudging, DownStopsWhenTheCentreReachesTheLowerEdge) {
    start();
    symbol = placeSymbol({100, 380});
    nudge(Qt::Key_Down, 60);
    EXPECT_EQ(symbolRect(symbol).y(), 402 - 16);
}

TEST_F(Nudging, HalfOfAnOddWidthIsRoundedDown) {
    start();
    symbol = placeSymbol({30, 30}, addStill("odd.png", {7, 9}));
    nudge(Qt::Key_Left, 60);
    nudge(Qt::Key_Up, 60);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(-3, -4));
}

TEST_F(Nudging, TheControlsSizeCountsNotTheModels) {
    start();
    const QString label = placeLabel({30, 30});
    const int half = labelControl(label)->rect.width() / 2;
    ASSERT_NE(half, labels().Item(label).Width / 2);
    nudge(Qt::Key_Left, 80);
    EXPECT_EQ(labelPosition(label).x(), -half);
}

TEST_F(Nudging, StartsFromTheModelsPositionNotFromTheClampedOneOnScreen) {
    start();
    symbol = placeSymbol({2, 3});
    nudge(Qt::Key_Right);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(-13, -13));
    EXPECT_EQ(symbolControl(symbol)->rect.topLeft(), QPoint(-13, -13));
}

TEST_F(Nudging, LeavesTheProjectAsUnchangedAsItWas) {
    startWithSymbol();
    nudge(Qt::Key_Left);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Nudging, AnArrowWithoutShiftOrWithMoreThanShiftMovesNothing) {
    startWithSymbol();
    key(Qt::Key_Left);
    key(Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
    key(Qt::Key_Left, Qt::ShiftModifier | Qt::AltModifier);
    key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(84, 84));
}

TEST_F(Nudging, OtherKeysWithShiftMoveNothing) {
    startWithSymbol();
    nudge(Qt::Key_Home);
    nudge(Qt::Key_PageDown);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(84, 84));
}

TEST_F(Nudging, TheArrowsOfTheNumericPadCount) {
    startWithSymbol();
    key(Qt::Key_Left, Qt::ShiftModifier | Qt::KeypadModifier);
    EXPECT_EQ(symbolRect(symbol).x(), 83);
}

TEST_F(Nudging, WithNothingSelectedNothingMoves) {
    startWithSymbol();
    window().clearSelection();
    nudge(Qt::Key_Left);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(84, 84));
}

TEST_F(Nudging, WorksOnALockedMap) {
    startWithSymbol();
    trigger("mnuLock");
    nudge(Qt::Key_Left);
    EXPECT_EQ(symbolRect(symbol).x(), 83);
}

TEST_F(Nudging, WorksWhileTheFocusIsInTheSymbolList) {
    startWithSymbol();
    ListImage* list = window().palette().currentList();
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(symbolRect(symbol).x(), 85);
    EXPECT_EQ(list->selectedIndex(), 1);
}

TEST_F(Nudging, InTheNameFieldOfATabShiftAndArrowsSelectText) {
    startWithSymbol();
    window().tabs().startRenaming();
    QLineEdit* field = window().tabs().txtDay();
    field->setCursorPosition(4);
    QTest::keyClick(field, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(symbolRect(symbol).topLeft(), QPoint(84, 84));
    EXPECT_EQ(field->selectedText(), "1");
}

TEST_F(Nudging, F4BelongsToThePropertiesWhereverTheFocusIs) {
    start();
    const QAction* property = window().commands()[Command::mnuProperty];
    EXPECT_EQ(property->shortcut(), QKeySequence(Qt::Key_F4));
    EXPECT_EQ(property->shortcutContext(), Qt::WindowShortcut);
}

}  // namespace nubivane
