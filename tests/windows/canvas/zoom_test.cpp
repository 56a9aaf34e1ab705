// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"
#include "windows/canvas/map_zoom.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QWheelEvent>

namespace nubivane {

/// A map of 500 x 400 pixels.
class Zooming : public testing::CanvasFixture {
  protected:
    void startOn(QSize viewport) {
        start();
        view().resize(viewport);
    }
    MapViewport& view() { return window().viewport(); }
    MapZoom& zoom() { return *view().findChild<MapZoom*>(); }
    int percent() { return zoom().zoom().percent(); }
    void zoomTo(int wanted) { zoom().zoomTo(Zoom(wanted)); }

    void turnWheel(int eighths, QPoint onView, Qt::KeyboardModifiers keys = Qt::ControlModifier) {
        QWheelEvent event(onView, view().mapToGlobal(onView), {}, {0, eighths}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view(), &event);
    }
    /// The pixel of the map that lies under a position of the viewport.
    QPoint under(QPoint onView) { return canvas().toMap(canvas().mapFrom(&view(), onView)); }
    /// The middle of a pixel of the map on the canvas.
    QPoint onCanvas(QPoint position) {
        return canvas().toWidget(QRect(position, QSize(1, 1))).center();
    }
    void dragOnCanvas(QPoint from, QPoint to) {
        QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, canvas().mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&canvas(), &move);
        QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, to);
    }
};

TEST(ZoomSteps, EndAt25And800Percent) {
    Zoom zoom(100);
    for (int i = 0; i < 40; ++i) {
        zoom = zoom.larger();
    }
    EXPECT_EQ(zoom.percent(), 800);
    for (int i = 0; i < 40; ++i) {
        zoom = zoom.smaller();
    }
    EXPECT_EQ(zoom.percent(), 25);
    EXPECT_EQ(Zoom(1).percent(), 25);
    EXPECT_EQ(Zoom(100000).percent(), 800);
}

TEST(ZoomSteps, ComeBackToWhereTheyBegan) {
    EXPECT_EQ(Zoom(100).larger().smaller().percent(), 100);
    EXPECT_EQ(Zoom(130).larger().percent(), 150);
    EXPECT_EQ(Zoom(130).smaller().percent(), 125);
}

TEST(ZoomPixels, APixelOfTheMapIsFoundAgainWhereItIsShown) {
    for (const int percent : {100, 125, 150, 300, 333, 800}) {
        const Zoom zoom(percent);
        for (int i = -3; i < 700; ++i) {
            ASSERT_EQ(zoom.toMap(zoom.toScreen(QPoint(i, 2 * i))), QPoint(i, 2 * i)) << percent;
        }
    }
}

TEST(ZoomPixels, RectanglesComeBackAndNeighboursTouch) {
    for (const int percent : {25, 33, 67, 100, 150, 777}) {
        const Zoom zoom(percent);
        const QRect left = zoom.toScreen(QRect(3, 5, 40, 30));
        const QRect right = zoom.toScreen(QRect(43, 5, 40, 30));
        EXPECT_EQ(left.right() + 1, right.left()) << percent;
        EXPECT_TRUE(zoom.toMap(left).contains(QRect(4, 6, 38, 28))) << percent;
        if (percent >= 100) {
            EXPECT_EQ(zoom.nearest(left), QRect(3, 5, 40, 30)) << percent;
        }
    }
}

TEST_F(Zooming, TheMapOpensAtItsTrueSize) {
    start();
    EXPECT_EQ(percent(), 100);
    EXPECT_EQ(canvas().size(), QSize(502, 402));
}

TEST_F(Zooming, CommandsMakeItLargerAndSmaller) {
    start();
    trigger("mnuZoomIn");
    EXPECT_EQ(percent(), 125);
    EXPECT_EQ(canvas().size(), QSize(627, 502));
    trigger("mnuZoomActual");
    EXPECT_EQ(percent(), 100);
    trigger("mnuZoomOut");
    EXPECT_EQ(percent(), 75);
    EXPECT_EQ(canvas().size(), QSize(377, 302));
}

TEST_F(Zooming, TheKeysAreThoseOfEveryBrowser) {
    start();
    window().show();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClick(&window(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(percent(), 125);
    QTest::keyClick(&window(), Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&window(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(percent(), 75);
    QTest::keyClick(&window(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(percent(), 100);
    QTest::keyClick(&window(), Qt::Key_9, Qt::ControlModifier);
    EXPECT_TRUE(zoom().isWhole());
}

TEST_F(Zooming, TheWheelZoomsAtThePointer) {
    startOn({400, 300});
    const QPoint pointer(150, 120);
    for (const int notches : {1, 1, 1, 1, -1, 1, 2, -3}) {
        const QPoint before = under(pointer);
        turnWheel(120 * notches, pointer);
        const QPoint off = under(pointer) - before;
        EXPECT_LE(std::abs(off.x()), 1) << percent();
        EXPECT_LE(std::abs(off.y()), 1) << percent();
    }
    EXPECT_GT(percent(), 100);
}

TEST_F(Zooming, PartsOfANotchAddUp) {
    start();
    turnWheel(60, {100, 100});
    EXPECT_EQ(percent(), 100);
    turnWheel(60, {100, 100});
    EXPECT_EQ(percent(), 125);
}

TEST_F(Zooming, TheWheelAloneStillScrolls) {
    startOn({301, 250});
    turnWheel(-120, {100, 100}, Qt::NoModifier);
    EXPECT_EQ(percent(), 100);
    EXPECT_LT(canvas().y(), 70);
}

TEST_F(Zooming, TheWholeMapFollowsTheWindow) {
    startOn({900, 700});
    zoom().showWhole();
    const int before = percent();
    EXPECT_GT(before, 100);
    view().resize(300, 250);
    EXPECT_LT(percent(), 100);
    EXPECT_TRUE(view().rect().contains(canvas().geometry()));
    zoomTo(100);
    view().resize(900, 700);
    EXPECT_EQ(percent(), 100);
}

TEST_F(Zooming, ASpriteIsHitWhereItIsSeen) {
    start();
    const QString key = placeSymbol({100, 100});
    window().clearSelection();
    for (const int wanted : {25, 50, 200, 800}) {
        zoomTo(wanted);
        window().clearSelection();
        QTest::mouseClick(&canvas(), Qt::LeftButton, {},
                          canvas().toWidget(symbolRect(key)).center());
        EXPECT_FALSE(selection().isEmpty()) << wanted;
    }
}

TEST_F(Zooming, ADragGoesByPixelsOfTheMap) {
    start();
    const QString key = placeSymbol({100, 100});
    const QRect before = symbolRect(key);
    zoomTo(200);
    const QPoint from = canvas().toWidget(before).center();
    dragOnCanvas(from, from + QPoint(60, 40));
    EXPECT_EQ(symbolRect(key), before.translated(30, 20));
}

TEST_F(Zooming, BorderAndHandlesKeepTheirSizeOnTheScreen) {
    start();
    const QString key = placeSymbol({100, 100});
    for (const int wanted : {25, 100, 300, 800}) {
        zoomTo(wanted);
        const QRect sprite = zoom().zoom().toScreen(symbolRect(key));
        EXPECT_EQ(selection().shpSelector()->rect(), sprite.adjusted(-8, -8, 8, 8)) << wanted;
    }
}

TEST_F(Zooming, AHandleMovesOneSideByPixelsOfTheMap) {
    start();
    const QString key = placeSymbol({100, 100});
    for (const int wanted : {200, 400, 800}) {
        zoomTo(wanted);
        const QRect before = symbolRect(key);
        const QRect border = selection().shpSelector()->rect().translated(1, 1);
        const QPoint right(border.right(), border.center().y());
        dragOnCanvas(right, right + QPoint(10 * wanted / 100, 0));
        EXPECT_EQ(symbolRect(key), before.adjusted(0, 0, 10, 0)) << wanted;
    }
}

TEST_F(Zooming, APixelOfTheMapBecomesASquare) {
    const QString file = addStill("block.png", {4, 4});
    start();
    placeSymbol({102, 102}, file);
    window().clearSelection();
    zoomTo(800);
    const QRect block = canvas().toWidget(QRect(100, 100, 4, 4));
    EXPECT_EQ(block.size(), QSize(32, 32));
    const QImage picture = canvas().grab(block.adjusted(-8, -8, 8, 8)).toImage();
    const double ratio = picture.devicePixelRatio();
    const auto isRed = [&](int x, int y) {
        return picture.pixelColor(QPoint(qRound((x + 0.5) * ratio), qRound((y + 0.5) * ratio))) ==
               QColor(Qt::red);
    };
    EXPECT_TRUE(isRed(9, 9));
    EXPECT_TRUE(isRed(38, 38));
    EXPECT_FALSE(isRed(6, 20));
    EXPECT_FALSE(isRed(41, 20));
}

TEST_F(Zooming, WhatIsPrintedAndRememberedHasTheMapsOwnSize) {
    start();
    placeSymbol({100, 100});
    window().clearSelection();
    const QImage before = canvas().image();
    EXPECT_EQ(before.size(), QSize(502, 402));
    zoomTo(300);
    EXPECT_EQ(canvas().image(), before);
}

TEST_F(Zooming, AtTrueSizeTheCanvasShowsThatImage) {
    start();
    placeSymbol({100, 100});
    window().clearSelection();
    const QImage shown = canvas().grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (shown.devicePixelRatio() == 1) {
        EXPECT_EQ(shown, canvas().image());
    }
}

TEST_F(Zooming, TheStatusLineTellsAndTakesTheSize) {
    start();
    auto& field = *window().findChild<QComboBox*>("cboZoom");
    EXPECT_EQ(field.currentText(), "100 %");
    trigger("mnuZoomIn");
    EXPECT_EQ(field.currentText(), "125 %");
    field.lineEdit()->setText("130");
    QTest::keyClick(field.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(percent(), 130);
    field.lineEdit()->setText("large");
    QTest::keyClick(field.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(percent(), 130);
    EXPECT_EQ(field.currentText(), "130 %");
    field.lineEdit()->setText("99999");
    QTest::keyClick(field.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(percent(), 800);
}

TEST_F(Zooming, TheStatusLineTellsPointerAndSelection) {
    start();
    auto& position = *window().findChild<QLabel*>("lblPosition");
    auto& selected = *window().findChild<QLabel*>("lblSelection");
    zoomTo(200);
    QMouseEvent move(QEvent::MouseMove, onCanvas({33, 44}), canvas().mapToGlobal(QPoint()),
                     Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&canvas(), &move);
    EXPECT_EQ(position.text(), "33, 44");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&canvas(), &leave);
    EXPECT_EQ(position.text(), "");
    const QString key = placeSymbol({100, 100});
    const QRect rect = symbolRect(key);
    EXPECT_TRUE(selected.text().endsWith(QString(": %1, %2, %3 x %4")
                                             .arg(rect.x())
                                             .arg(rect.y())
                                             .arg(rect.width())
                                             .arg(rect.height())))
        << selected.text().toStdString();
    window().clearSelection();
    EXPECT_EQ(selected.text(), "");
}

}  // namespace nubivane
