// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"
#include "windows/canvas/map_zoom.h"

namespace nubivane {

/// A map of 500 x 400 pixels, of which the window shows a part.
class Panning : public testing::CanvasFixture {
  protected:
    void startSmall() {
        start();
        view().resize(300, 250);
    }
    MapViewport& view() { return window().viewport(); }

    /// Presses on the viewport's ground or on the canvas, moves and lets go.
    void pan(QWidget& on, Qt::MouseButton button, QPoint from, QPoint by) {
        const QPoint global = on.mapToGlobal(from);
        send(on, QEvent::MouseButtonPress, button, global);
        send(on, QEvent::MouseMove, button, global + by / 2);
        send(on, QEvent::MouseMove, button, global + by);
        send(on, QEvent::MouseButtonRelease, button, global + by);
    }
    static void send(QWidget& on, QEvent::Type type, Qt::MouseButton button, QPoint global) {
        const bool moves = type == QEvent::MouseMove;
        const bool released = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, on.mapFromGlobal(global), global, moves ? Qt::NoButton : button,
                          released ? Qt::MouseButtons() : Qt::MouseButtons(button), {});
        QApplication::sendEvent(&on, &event);
    }
    void holdSpace(bool down) {
        canvas().setFocus();
        down ? QTest::keyPress(&canvas(), Qt::Key_Space)
             : QTest::keyRelease(&canvas(), Qt::Key_Space);
    }
};

TEST_F(Panning, TheMiddleButtonTakesHoldOfTheMap) {
    startSmall();
    const QPoint before = canvas().pos();
    pan(canvas(), Qt::MiddleButton, {100, 100}, {-40, -30});
    EXPECT_EQ(canvas().pos(), before + QPoint(-40, -30));
    pan(canvas(), Qt::MiddleButton, {100, 100}, {15, 10});
    EXPECT_EQ(canvas().pos(), before + QPoint(-25, -20));
}

TEST_F(Panning, TheGroundBesideTheMapIsAsGood) {
    startSmall();
    const QPoint before = canvas().pos();
    pan(view(), Qt::MiddleButton, {20, 20}, {-20, -10});
    EXPECT_EQ(canvas().pos(), before + QPoint(-20, -10));
}

TEST_F(Panning, ItEndsWhereTheBarsEnd) {
    startSmall();
    pan(canvas(), Qt::MiddleButton, {100, 100}, {-5000, -5000});
    EXPECT_EQ(window().viewport().hScroll1()->value(), window().viewport().hScroll1()->maximum());
    pan(canvas(), Qt::MiddleButton, {100, 100}, {9000, 9000});
    EXPECT_EQ(canvas().pos(), QPoint(70, 70));
}

TEST_F(Panning, AMapThatFitsStaysInItsPlace) {
    start();
    view().resize(900, 800);
    pan(canvas(), Qt::MiddleButton, {100, 100}, {-40, -30});
    EXPECT_EQ(canvas().pos(), QPoint(70, 70));
}

TEST_F(Panning, WithSpaceTheLeftButtonMovesTheMapAndNoSprite) {
    startSmall();
    const QString key = placeSymbol({100, 100});
    const QRect sprite = symbolRect(key);
    window().clearSelection();
    const QPoint before = canvas().pos();
    holdSpace(true);
    pan(canvas(), Qt::LeftButton, {101, 101}, {-30, -20});
    EXPECT_EQ(canvas().pos(), before + QPoint(-30, -20));
    EXPECT_EQ(symbolRect(key), sprite);
    EXPECT_TRUE(selection().isEmpty());
    holdSpace(false);
    drag({100, 100}, {120, 110});
    EXPECT_EQ(symbolRect(key), sprite.translated(20, 10));
}

TEST_F(Panning, WithSpaceADrawingToolDrawsNothing) {
    startSmall();
    window().canvas().drawing().chooseTool(static_cast<std::size_t>(Tool::draw));
    const QImage before = workspace.pctMap.composite();
    holdSpace(true);
    pan(canvas(), Qt::LeftButton, {101, 101}, {-30, -20});
    EXPECT_EQ(workspace.pctMap.composite(), before);
    holdSpace(false);
}

TEST_F(Panning, ThePointerIsAHandAndThenWhatItWas) {
    startSmall();
    holdSpace(true);
    EXPECT_EQ(canvas().cursor().shape(), Qt::OpenHandCursor);
    send(canvas(), QEvent::MouseButtonPress, Qt::LeftButton, canvas().mapToGlobal(QPoint(9, 9)));
    EXPECT_EQ(canvas().cursor().shape(), Qt::ClosedHandCursor);
    send(canvas(), QEvent::MouseButtonRelease, Qt::LeftButton, canvas().mapToGlobal(QPoint(9, 9)));
    EXPECT_EQ(canvas().cursor().shape(), Qt::OpenHandCursor);
    holdSpace(false);
    EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Panning, AKeyboardThatGoesElsewhereLetsGoOfTheHand) {
    startSmall();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    holdSpace(true);
    window().tabs().tabDay()->setFocus();
    EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
    const QPoint before = canvas().pos();
    pan(canvas(), Qt::LeftButton, {300, 200}, {-30, -20});
    EXPECT_EQ(canvas().pos(), before);
}

TEST_F(Panning, AtEightTimesTheSizeEveryCornerCanBeReached) {
    startSmall();
    view().findChild<MapZoom*>()->zoomTo(Zoom(800));
    pan(canvas(), Qt::MiddleButton, {10, 10}, {-9000, -9000});
    EXPECT_TRUE(view().rect().contains(canvas().geometry().bottomRight()));
    pan(canvas(), Qt::MiddleButton, {10, 10}, {9000, 9000});
    EXPECT_TRUE(view().rect().contains(canvas().geometry().topLeft()));
}

}  // namespace nubivane
