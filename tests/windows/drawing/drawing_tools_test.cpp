// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_fixture.h"

namespace nubivane {

/// Choosing a tool by its button.
class DrawingTools : public testing::DrawingFixture {
  protected:
    /// The numbers of the buttons that are down.
    QList<int> down() {
        QList<int> buttons;
        for (int i = 0; i < 8; ++i) {
            if (strip().btnDraw(i)->isChecked()) {
                buttons << i;
            }
        }
        return buttons;
    }
    void clickButton(int index) { QTest::mouseClick(strip().btnDraw(index), Qt::LeftButton); }
};

TEST_F(DrawingTools, EachButtonSetsItsToolAndIsTheOnlyOneDown) {
    startDrawing();
    const QStringList tools{"cursor", "draw", "erase", "color", "line", "curvy", "circle", "poly"};
    for (const int index : {1, 2, 3, 4, 5, 6, 7, 0}) {
        clickButton(index);
        EXPECT_EQ(toolTable[static_cast<std::size_t>(workspace.Status.CurrentTool)].name,
                  tools[index]);
        EXPECT_EQ(down(), QList<int>{index});
    }
}

TEST_F(DrawingTools, TheCursorIsDownAtTheStart) {
    startDrawing();
    EXPECT_EQ(down(), QList<int>{0});
}

TEST_F(DrawingTools, EachToolHasItsPointer) {
    startDrawing();
    for (const char* tool : {"line", "curvy", "circle", "poly", "cursor"}) {
        choose("draw");
        choose(tool);
        EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor) << tool;
    }
    QList<qint64> pictures;
    for (const char* tool : {"draw", "erase", "color"}) {
        choose(tool);
        EXPECT_EQ(canvas().cursor().shape(), Qt::BitmapCursor) << tool;
        const QImage picture = canvas().cursor().pixmap().toImage();
        EXPECT_EQ(picture.size(), QSize(32, 32)) << tool;
        EXPECT_GT(picture.pixelColor(canvas().cursor().hotSpot()).alpha(), 0) << tool;
        pictures << canvas().cursor().pixmap().cacheKey();
    }
    EXPECT_NE(pictures[0], pictures[1]);
    EXPECT_NE(pictures[1], pictures[2]);
    EXPECT_NE(pictures[0], pictures[2]);
}

TEST_F(DrawingTools, AnyToolButTheCursorEndsTheSelection) {
    startDrawing();
    placeSymbol({100, 100});
    choose("cursor");
    EXPECT_FALSE(selection().isEmpty());
    choose("line");
    EXPECT_TRUE(selection().isEmpty());
}

TEST_F(DrawingTools, ChoosingOneDropsAFigureWithItsPointsAndItsWindow) {
    startDrawing();
    for (const char* next : {"cursor", "draw", "erase", "color", "line", "poly"}) {
        choose("poly");
        click({100, 100});
        click({200, 150});
        ASSERT_TRUE(actionLoaded());
        ASSERT_FALSE(drawn() == expected);
        choose(next);
        compare();
        EXPECT_EQ(drawing().points().pointCount(), 0);
        EXPECT_EQ(drawing().points().point(0), QPoint(0, 0));
        EXPECT_FALSE(drawing().points().penDown);
        EXPECT_FALSE(actionLoaded());
    }
}

TEST_F(DrawingTools, OverAPointThePointerBecomesACross) {
    startDrawing();
    choose("line");
    click({100, 100});
    hover({104, 96});
    EXPECT_EQ(canvas().cursor().shape(), Qt::CrossCursor);
    hover({105, 100});
    EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(DrawingTools, BesideTheMapThePointerStaysAsItIs) {
    startDrawing();
    choose("line");
    click({500, 200});
    hover({498, 200});
    ASSERT_EQ(canvas().cursor().shape(), Qt::CrossCursor);
    hover({501, 300});
    EXPECT_EQ(canvas().cursor().shape(), Qt::CrossCursor);
    hover({500, 300});
    EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(DrawingTools, TheCursorShowsWhatAPressOnASpriteWouldDo) {
    startDrawing();
    placeSymbol({100, 100});
    choose("draw");
    choose("cursor");
    hover({100, 100});
    EXPECT_EQ(canvas().cursor().shape(), Qt::SizeAllCursor);
    hover({300, 300});
    EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
    hover({2, 2});
    EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(DrawingTools, TheCursorDrawsAndMarksNothing) {
    startDrawing();
    drag({100, 100}, {200, 200});
    drag({2, 2}, {200, 200});
    compare();
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
}

TEST_F(DrawingTools, OfTheOtherButtonsOnlyTheLeftOneDraws) {
    startDrawing();
    for (const char* tool : {"draw", "erase", "color", "line", "curvy", "circle", "poly"}) {
        choose(tool);
        click({100, 100}, Qt::RightButton);
        click({100, 100}, Qt::MiddleButton);
        compare();
        EXPECT_EQ(drawing().points().pointCount(), 0) << tool;
        EXPECT_FALSE(popup().isVisible()) << tool;
    }
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(DrawingTools, APressMarksTheProjectWhateverTheTool) {
    startDrawing();
    for (const char* tool : {"draw", "erase", "color", "line", "curvy", "circle", "poly"}) {
        choose(tool);
        workspace.ProjectChanged = false;
        press({100, 100});
        EXPECT_TRUE(workspace.ProjectChanged) << tool;
        release({100, 100});
    }
    workspace.ProjectChanged = false;
}

TEST_F(DrawingTools, AFrameChangeKeepsTheTool) {
    startDrawing();
    choose("circle");
    trigger("mnuFrameInsert");
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::circle);
    EXPECT_EQ(down(), QList<int>{6});
}

}  // namespace nubivane
