// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_fixture.h"
#include "windows/canvas/edge_scroll.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QWheelEvent>

namespace nubivane {

/// A map of 502 x 402 with its frame on a viewport of any size.
class Scrolling : public testing::CanvasFixture {
  protected:
    void startOn(QSize viewport) {
        start();
        view().resize(viewport);
    }
    MapViewport& view() { return window().viewport(); }
    QScrollBar& horizontal() { return *view().hScroll1(); }
    QScrollBar& vertical() { return *view().vScroll1(); }
    EdgeScroll& edgeScroll() { return *view().findChild<EdgeScroll*>(); }
};

TEST_F(Scrolling, AMapSmallerThanTheViewportShowsNoBarsAndRestsAt70) {
    startOn({900, 700});
    EXPECT_TRUE(horizontal().isHidden());
    EXPECT_TRUE(vertical().isHidden());
    EXPECT_EQ(canvas().pos(), QPoint(70, 70));
}

TEST_F(Scrolling, AMapThatJustFitsWithItsMarginsShowsNoBars) {
    startOn({70 + 502 + 5, 70 + 402 + 5});
    EXPECT_TRUE(horizontal().isHidden());
    EXPECT_TRUE(vertical().isHidden());
}

TEST_F(Scrolling, OnePixelLessShowsTheBarOfThatAxisAlone) {
    startOn({70 + 502 + 4, 70 + 402 + 5});
    EXPECT_FALSE(horizontal().isHidden());
    EXPECT_TRUE(vertical().isHidden());
    view().resize(70 + 502 + 5, 70 + 402 + 4);
    EXPECT_TRUE(horizontal().isHidden());
    EXPECT_FALSE(vertical().isHidden());
}

TEST_F(Scrolling, TheBarsCountFromOneToHalfOfWhatIsHidden) {
    startOn({301, 250});
    EXPECT_EQ(horizontal().minimum(), 1);
    EXPECT_EQ(vertical().minimum(), 1);
    EXPECT_EQ(horizontal().maximum(), 100);
    EXPECT_EQ(vertical().maximum(), 76);
    EXPECT_EQ(horizontal().value(), 1);
    EXPECT_EQ(vertical().value(), 1);
    EXPECT_EQ(canvas().pos(), QPoint(70, 70));
}

TEST_F(Scrolling, AScrollEventMovesTheMapByWholeSteps) {
    startOn({301, 250});
    // Steps of Int(341 / 99) = 3 and Int(292 / 75) = 3 pixels.
    horizontal().setValue(11);
    EXPECT_EQ(canvas().pos(), QPoint(40, 70));
    vertical().setValue(75);
    EXPECT_EQ(canvas().pos(), QPoint(40, -152));
    horizontal().setValue(99);
    EXPECT_EQ(canvas().pos(), QPoint(-224, -152));
    horizontal().setValue(1);
    vertical().setValue(1);
    EXPECT_EQ(canvas().pos(), QPoint(70, 70));
}

TEST_F(Scrolling, AViewportALittleLargerThanTheMapStillScrolls) {
    startOn({540, 440});
    ASSERT_FALSE(horizontal().isHidden());
    EXPECT_GT(horizontal().maximum(), horizontal().minimum());
    horizontal().setValue(horizontal().maximum());
    vertical().setValue(vertical().maximum());
    EXPECT_LT(canvas().x(), 70);
    EXPECT_LT(canvas().y(), 70);
}

TEST_F(Scrolling, ResizingBringsTheMapBackToRest) {
    startOn({301, 250});
    horizontal().setValue(20);
    vertical().setValue(20);
    view().resize(310, 260);
    EXPECT_EQ(canvas().pos(), QPoint(70, 70));
    EXPECT_EQ(horizontal().value(), 1);
    EXPECT_EQ(vertical().value(), 1);
}

TEST_F(Scrolling, AMapOfAnotherSizeGetsBarsOfItsOwn) {
    startOn({301, 250});
    useMap("small.png", {100, 80});
    window().showMap();
    EXPECT_TRUE(horizontal().isHidden());
    EXPECT_TRUE(vertical().isHidden());
    EXPECT_EQ(canvas().geometry(), QRect(70, 70, 102, 82));
}

TEST_F(Scrolling, TheBarsLieInsideTheViewport) {
    startOn({301, 250});
    EXPECT_TRUE(view().rect().adjusted(1, 1, -1, -1).contains(horizontal().geometry()));
    EXPECT_TRUE(view().rect().adjusted(1, 1, -1, -1).contains(vertical().geometry()));
    EXPECT_FALSE(horizontal().geometry().intersects(vertical().geometry()));
}

TEST_F(Scrolling, SpritesAreHitWhereTheyAreSeenAfterScrolling) {
    startOn({301, 250});
    const QString key = placeSymbol({400, 300});
    window().clearSelection();
    horizontal().setValue(80);
    vertical().setValue(60);
    const QPoint seen = canvas().mapTo(&window(), QPoint(401, 301));
    QWidget* hit = window().childAt(seen);
    EXPECT_EQ(hit, &canvas());
    click({400, 300});
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
}

TEST_F(Scrolling, TheWheelOverTheMapScrolls) {
    startOn({301, 250});
    QWheelEvent turn(QPointF(50, 50), canvas().mapToGlobal(QPointF(50, 50)), {}, {0, -120},
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view(), &turn);
    EXPECT_LT(canvas().y(), 70);
    EXPECT_EQ(canvas().x(), 70);
}

TEST_F(Scrolling, PartsOfANotchAddUp) {
    startOn({301, 250});
    const auto turn = [this](int angle) {
        QWheelEvent event(QPointF(50, 50), canvas().mapToGlobal(QPointF(50, 50)), {}, {0, angle},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view(), &event);
    };
    turn(-120);
    const int whole = canvas().y();
    ASSERT_LT(whole, 70);
    turn(120);
    ASSERT_EQ(canvas().y(), 70);
    for (int i = 0; i < 8; ++i) {
        turn(-15);
    }
    EXPECT_EQ(canvas().y(), whole);
}

TEST_F(Scrolling, TheLastPositionShowsTheFarEdgeWithTheMarginOfTheRestPosition) {
    for (const QSize size : {QSize(301, 250), QSize(500, 300), QSize(700, 560), QSize(810, 610)}) {
        startOn(size);
        useMap("large.png", {800, 600});
        window().showMap();
        horizontal().setValue(horizontal().maximum());
        vertical().setValue(vertical().maximum());
        EXPECT_EQ(canvas().geometry().right() + 1, size.width() - 70) << size.width();
        EXPECT_EQ(canvas().geometry().bottom() + 1, size.height() - 70) << size.height();
    }
}

TEST_F(Scrolling, AMapThatFitsWithoutItsMarginsHasAPositionThatShowsItWhole) {
    for (const int room : {0, 1, 30, 60}) {
        startOn({502 + room, 402 + room});
        ASSERT_FALSE(horizontal().isHidden()) << room;
        const auto whole = [this] { return view().rect().contains(canvas().geometry()); };
        EXPECT_FALSE(whole()) << room;
        bool seen = false;
        for (int value = horizontal().minimum(); value <= horizontal().maximum(); ++value) {
            horizontal().setValue(value);
            vertical().setValue(value);
            seen = seen || whole();
        }
        EXPECT_TRUE(seen) << room;
    }
}

TEST_F(Scrolling, ANotchOfTheWheelMovesAQuarterOfTheViewportAtMostAndReachesBothEdges) {
    startOn({301, 250});
    useMap("large.png", {800, 600});
    window().showMap();
    const auto turn = [this](int angle, Qt::KeyboardModifiers keys) {
        const QPoint before = canvas().pos();
        QWheelEvent event(QPointF(50, 50), canvas().mapToGlobal(QPointF(50, 50)), {}, {0, angle},
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view(), &event);
        return canvas().pos() - before;
    };
    for (const int direction : {-120, 120}) {
        for (int i = 0; i < 40; ++i) {
            EXPECT_LE(std::abs(turn(direction, Qt::NoModifier).y()), 250 / 4);
            EXPECT_LE(std::abs(turn(direction, Qt::ShiftModifier).x()), 301 / 4);
        }
        const QPoint end = direction < 0 ? QPoint(301 - 70 - 802, 250 - 70 - 602) : QPoint(70, 70);
        EXPECT_EQ(canvas().pos(), end);
        EXPECT_EQ(horizontal().value(), direction < 0 ? horizontal().maximum() : 1);
        EXPECT_EQ(vertical().value(), direction < 0 ? vertical().maximum() : 1);
    }
}

TEST_F(Scrolling, ASymbolDraggedToTheBorderOfTheViewportTakesTheMapAlong) {
    startOn({301, 250});
    const QString key = placeSymbol({100, 100});
    press({100, 100});
    const QPoint edge = canvas().mapFrom(&view(), QPoint(295, 125));
    move(canvas().toMap(edge));
    EXPECT_TRUE(QTest::qWaitFor([this] { return horizontal().value() == horizontal().maximum(); }));
    // Under the pointer, which has not moved.
    const QPoint pointer = canvas().toMap(canvas().mapFrom(&view(), QPoint(295, 125)));
    EXPECT_EQ(symbolControl(key)->rect.center(), pointer - QPoint(1, 1));
    release(pointer);
    EXPECT_FALSE(edgeScroll().isActive());
}

TEST_F(Scrolling, ASymbolOfThePaletteDraggedToTheBorderScrollsToo) {
    startOn({301, 250});
    const auto drag = [this](QEvent::Type type, QPoint position) {
        QMimeData data;
        data.setText("text|");
        if (type == QEvent::DragEnter) {
            QDragEnterEvent event(position, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&canvas(), &event);
        } else {
            QDragMoveEvent event(position, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&canvas(), &event);
        }
    };
    window().palette().allowDrop(true);
    const QPoint edge = canvas().mapFrom(&view(), QPoint(150, 245));
    drag(QEvent::DragEnter, edge);
    drag(QEvent::DragMove, edge);
    EXPECT_TRUE(QTest::qWaitFor([this] { return vertical().value() == vertical().maximum(); }));
    QDragLeaveEvent leave;
    QApplication::sendEvent(&canvas(), &leave);
    EXPECT_FALSE(edgeScroll().isActive());
}

TEST_F(Scrolling, APressOnTheGroundBesideTheMapDropsTheSelection) {
    startOn({900, 700});
    placeSymbol({100, 100});
    ASSERT_FALSE(selection().isEmpty());
    QTest::mouseClick(&view(), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_TRUE(selection().isEmpty());
}

}  // namespace nubivane
