// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"
#include "windows/main/editor_pane.h"

namespace nubivane {

/// Where `layoutMap` puts the parts of the window.
class Layout : public testing::CanvasFixture {
  protected:
    EditorPane& pane() { return window().pane(); }
    QWidget& splitter() { return *pane().findChild<QWidget*>("pctSplitter"); }
};

TEST_F(Layout, TheViewportTakesWhatTheSplitterAndTheToolsLeave) {
    start();
    const int tools = window().pctTlbDraw().width();
    for (const int left : {150, 200, 250}) {
        pane().setSplitterLeft(left);
        EXPECT_EQ(splitter().x(), left);
        EXPECT_EQ(window().viewport().x(), left + 6);
        EXPECT_EQ(window().viewport().width(), pane().width() - left - 6 - tools);
        EXPECT_EQ(window().tabs().x(), left + 6);
        EXPECT_EQ(window().tabs().width(), window().viewport().width());
    }
}

TEST_F(Layout, ThePaletteEndsBeforeTheSplitter) {
    start();
    pane().setSplitterLeft(200);
    EXPECT_LT(window().palette().geometry().right(), splitter().x());
    const ListImage* list = window().palette().currentList();
    EXPECT_LE(list->mapTo(&pane(), list->rect().bottomRight()).x(), splitter().x());
    EXPECT_LE(list->mapTo(&pane(), list->rect().bottomRight()).y(), pane().height());
}

TEST_F(Layout, ASplitterFarToTheLeftHidesThePalette) {
    start();
    pane().setSplitterLeft(18);
    EXPECT_FALSE(window().palette().isVisible());
    pane().setSplitterLeft(19);
    EXPECT_TRUE(window().palette().isVisible());
    EXPECT_GE(window().palette().currentList()->width(), 0);
}

TEST_F(Layout, ASplitterBeyondTheWindowLeavesTheMapInSight) {
    start();
    pane().setSplitterLeft(5000);
    EXPECT_GT(window().viewport().width(), 200);
    pane().setSplitterLeft(200);
    EXPECT_GT(window().viewport().width(), 0);
}

TEST_F(Layout, AClientOf24PixelsOrLessIsNotLaidOut) {
    start();
    const QRect before = window().viewport().geometry();
    pane().setMinimumSize(0, 0);
    pane().resize(pane().width() - 100, 24);
    EXPECT_EQ(window().viewport().geometry(), before);
    pane().resize(pane().width(), 25);
    EXPECT_NE(window().viewport().geometry(), before);
    EXPECT_GE(window().viewport().height(), 0);
}

TEST_F(Layout, ANewLayoutBringsTheMapToRest) {
    start();
    window().viewport().resize(301, 250);
    window().viewport().hScroll1()->setValue(20);
    pane().layoutMap();
    EXPECT_EQ(canvas().pos(), QPoint(70, 70));
}

TEST_F(Layout, TheBarsHugTheViewportsEdges) {
    start();
    pane().setSplitterLeft(pane().width() - 260);
    const QWidget& ground = window().viewport();
    const QRect vertical = window().viewport().vScroll1()->geometry();
    const QRect horizontal = window().viewport().hScroll1()->geometry();
    ASSERT_FALSE(window().viewport().hScroll1()->isHidden());
    EXPECT_EQ(vertical.right(), ground.width() - 2);
    EXPECT_EQ(vertical.top(), 1);
    EXPECT_EQ(horizontal.bottom(), ground.height() - 2);
    EXPECT_EQ(horizontal.left(), 1);
}

}  // namespace nubivane
