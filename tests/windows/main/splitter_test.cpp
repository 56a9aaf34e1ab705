// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"
#include "windows/main/editor_pane.h"
#include "windows/main/next_start.h"

#include <QApplication>

namespace nubivane {

/// The splitter between the palette and the map.
class Splitter : public testing::EditorFixture {
  protected:
    QWidget& splitter() { return *window().findChild<QWidget*>("pctSplitter"); }
    int left() { return window().pane().splitterLeft(); }

    void moveBy(int dx, Qt::MouseButtons held = Qt::LeftButton) {
        const QPoint local(dx, 10);
        QMouseEvent event(QEvent::MouseMove, local, splitter().mapToGlobal(local), Qt::NoButton,
                          held, Qt::NoModifier);
        QApplication::sendEvent(&splitter(), &event);
    }
    void dragBy(int dx) {
        QTest::mousePress(&splitter(), Qt::LeftButton, {}, {0, 10});
        moveBy(dx);
        QTest::mouseRelease(&splitter(), Qt::LeftButton, {}, {0, 10});
    }
};

TEST_F(Splitter, WithoutASettingItStandsAt360) {
    start();
    EXPECT_EQ(left(), 360);
    EXPECT_EQ(splitter().x(), 360);
}

TEST_F(Splitter, ADragMovesItWithPaletteAndMap) {
    start();
    const int mapLeft = window().viewport().x();
    const int palette = window().palette().width();
    dragBy(-60);
    EXPECT_EQ(left(), 300);
    EXPECT_EQ(splitter().x(), 300);
    EXPECT_EQ(window().viewport().x(), mapLeft - 60);
    EXPECT_EQ(window().tabs().x(), mapLeft - 60);
    EXPECT_EQ(window().palette().width(), palette - 60);
}

TEST_F(Splitter, EachMoveOfADragShiftsItFurther) {
    start();
    QTest::mousePress(&splitter(), Qt::LeftButton, {}, {0, 10});
    for (int i = 0; i < 5; ++i) {
        moveBy(-10);
    }
    EXPECT_EQ(left(), 310);
}

TEST_F(Splitter, ItStopsAt130) {
    start();
    dragBy(-200);
    EXPECT_EQ(left(), 160);
    dragBy(-31);
    EXPECT_EQ(left(), 130);
    dragBy(-1000);
    EXPECT_EQ(left(), 130);
}

TEST_F(Splitter, ItStopsAtHalfTheWidth) {
    start();
    dragBy(5000);
    EXPECT_EQ(left(), window().pane().width() / 2);
}

TEST_F(Splitter, MovesWithoutTheLeftButtonDoNothing) {
    start();
    moveBy(-50, Qt::NoButton);
    moveBy(-50, Qt::RightButton);
    EXPECT_EQ(left(), 360);
}

TEST_F(Splitter, TheArrowKeysMoveItBetweenTheSameStops) {
    start();
    splitter().setFocus();
    QTest::keyClick(&splitter(), Qt::Key_Left);
    EXPECT_LT(left(), 360);
    QTest::keyClick(&splitter(), Qt::Key_Right);
    EXPECT_EQ(left(), 360);
    for (int i = 0; i < 100; ++i) {
        QTest::keyClick(&splitter(), Qt::Key_Left);
    }
    EXPECT_EQ(left(), 130);
    for (int i = 0; i < 200; ++i) {
        QTest::keyClick(&splitter(), Qt::Key_Right);
    }
    EXPECT_EQ(left(), window().pane().width() / 2);
}

TEST_F(Splitter, ItsPlaceComesBackAtTheNextStart) {
    start();
    dragBy(-60);
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::WindowSplitter), "300");
    testing::NextStart next(workspace, settings);
    EXPECT_EQ(next.window.pane().splitterLeft(), 300);
}

TEST_F(Splitter, APlaceThatIsNoNumberGivesTheDefault) {
    settings.set(Setting::WindowSplitter, "middle");
    start();
    EXPECT_EQ(left(), 360);
}

TEST_F(Splitter, AtZeroThePaletteIsHiddenAndADragBringsItBack) {
    settings.set(Setting::WindowSplitter, "0");
    start();
    EXPECT_FALSE(window().palette().isVisible());
    dragBy(5);
    EXPECT_TRUE(window().palette().isVisible());
    EXPECT_EQ(left(), 130);
}

TEST_F(Splitter, AStoredPlaceOutOfReachLeavesTheMapVisible) {
    start();
    for (const char* stored : {"999999", "-500"}) {
        settings.set(Setting::WindowSplitter, stored);
        testing::NextStart next(workspace, settings);
        EXPECT_GT(next.window.viewport().width(), 200) << stored;
        EXPECT_GE(next.window.viewport().x(), 0) << stored;
    }
}

}  // namespace nubivane
