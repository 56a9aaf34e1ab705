// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_fixture.h"

#include <QPaintEvent>

namespace nubivane {

/// "draw": lines by hand.
class DrawingFreehand : public testing::DrawingFixture {
  protected:
    void startWithPen(const QString& width = "1") {
        startDrawing();
        setWidth(width);
        choose("draw");
    }
    void TearDown() override { workspace.ProjectChanged = false; }
};

/// Writes down what a widget was asked to paint.
class PaintRecorder : public QObject {
  public:
    explicit PaintRecorder(QWidget& widget) { widget.installEventFilter(this); }
    QRegion painted;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

TEST_F(DrawingFreehand, APressDrawsADotAsWideAsThePen) {
    for (const int width : {1, 2, 7}) {
        startWithPen(QString::number(width));
        click({100, 100});
        expect([&](QPainter& painter) {
            use(painter, width);
            painter.drawPoint(100, 100);
        });
        compare();
    }
}

TEST_F(DrawingFreehand, ADotOfOnePixelIsOnePixel) {
    startWithPen();
    click({100, 100});
    expected.setPixelColor(100, 100, Qt::red);
    compare();
}

TEST_F(DrawingFreehand, MovesJoinThePositionsByLines) {
    startWithPen("3");
    press({100, 100});
    move({150, 120});
    move({150, 200});
    move({90, 210});
    release({90, 210});
    expect([](QPainter& painter) {
        use(painter, 3);
        painter.drawPoint(100, 100);
    });
    expectLine({100, 100}, {150, 120}, 3);
    expectLine({150, 120}, {150, 200}, 3);
    expectLine({150, 200}, {90, 210}, 3);
    compare();
}

TEST_F(DrawingFreehand, AFastMouseLeavesNoGap) {
    startWithPen();
    press({10, 20});
    move({490, 380});
    release({490, 380});
    const QImage picture = drawn();
    for (int x = 10; x <= 490; ++x) {
        bool touched = false;
        for (int y = 0; y < 400; ++y) {
            touched = touched || picture.pixelColor(x, y) == QColor(Qt::red);
        }
        EXPECT_TRUE(touched) << x;
    }
}

TEST_F(DrawingFreehand, EveryPixelOfAThinLineHasThePensColorOrNothingOfIt) {
    startWithPen("1");
    const QColor bare = drawn().pixelColor(0, 0);
    press({100, 100});
    move({233, 177});
    release({233, 177});
    const QImage picture = drawn();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            ASSERT_TRUE(color == QColor(Qt::red) || color == bare) << x << ' ' << y;
        }
    }
}

TEST_F(DrawingFreehand, TheStrokeIsCommittedByTheRelease) {
    startWithPen("3");
    const QImage bare = committed();
    press({100, 100});
    move({200, 150});
    EXPECT_TRUE(committed() == bare);
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    release({200, 150});
    expect([](QPainter& painter) {
        use(painter, 3);
        painter.drawPoint(100, 100);
    });
    expectLine({100, 100}, {200, 150}, 3);
    EXPECT_TRUE(same(committed(), expected));
    EXPECT_TRUE(workspace.pctMap.scratchArea().isEmpty());
    EXPECT_TRUE(same(workspace.pctPanel.picture(1).image().convertToFormat(QImage::Format_RGB32),
                     expected));
}

TEST_F(DrawingFreehand, ALaterStrokeLeavesTheEarlierOneAndItsSnapshot) {
    startWithPen("3");
    drag({100, 100}, {200, 100});
    const Picture before = workspace.pctPanel.picture(1);
    const QImage kept = before.image().copy();
    drag({100, 200}, {200, 200});
    expectDrag({100, 100}, {200, 100}, 3);
    EXPECT_TRUE(before.image() == kept);
    EXPECT_TRUE(same(kept.convertToFormat(QImage::Format_RGB32), expected));
    expectDrag({100, 200}, {200, 200}, 3);
    compare();
}

TEST_F(DrawingFreehand, AMoveHasOnlyThePensRectanglePaintedAgain) {
    startWithPen("5");
    canvas().setFocus();
    QApplication::processEvents();
    PaintRecorder recorder(canvas());
    press({100, 100});
    QApplication::processEvents();
    ASSERT_FALSE(recorder.painted.isEmpty());
    EXPECT_TRUE(QRect(93, 93, 16, 16).contains(recorder.painted.boundingRect()));
    recorder.painted = QRegion();
    move({140, 110});
    QApplication::processEvents();
    EXPECT_TRUE(QRect(93, 93, 56, 26).contains(recorder.painted.boundingRect()));
    recorder.painted = QRegion();
    release({140, 110});
    QApplication::processEvents();
    EXPECT_TRUE(QRect(93, 93, 56, 26).contains(recorder.painted.boundingRect()));
}

TEST_F(DrawingFreehand, AStrokeThatLeavesTheMapEndsExactlyAtItsBorder) {
    startWithPen();
    press({400, 200});
    move({600, 240});
    move({700, 380});  // beside the map nothing is drawn
    release({700, 380});
    expectLine({400, 200}, {500, 220}, 1);
    compare();
    press({100, 50});
    move({60, -30});
    release({60, -30});
    expectLine({100, 50}, {75, 0}, 1);
    compare();
}

TEST_F(DrawingFreehand, TheMapEndsAtItsWidthAndHeightInclusive) {
    startWithPen();
    press({490, 390});
    move({500, 390});
    move({500, 400});
    move({0, 390});
    release({0, 390});
    expectLine({490, 390}, {500, 390}, 1);
    expectLine({500, 390}, {500, 400}, 1);
    expectLine({500, 400}, {0, 390}, 1);
    compare();
}

TEST_F(DrawingFreehand, WithoutAPressMovesDrawNothing) {
    startWithPen();
    hover({100, 100});
    hover({200, 200});
    release({200, 200});
    compare();
}

TEST_F(DrawingFreehand, SymbolsStandStillWhileAStrokeIsDrawn) {
    startWithPen();
    choose("cursor");
    placeSymbol({300, 300}, (addMoving("moving.gif", {10, 10, 10}), "moving.gif"));
    choose("draw");
    ASSERT_TRUE(window().canvas().clock().isRunning());
    press({100, 100});
    EXPECT_FALSE(window().canvas().clock().isRunning());
    move({150, 100});
    EXPECT_FALSE(window().canvas().clock().isRunning());
    release({150, 100});
    EXPECT_TRUE(window().canvas().clock().isRunning());
}

TEST_F(DrawingFreehand, AnotherToolInTheMiddleOfAStrokeLosesItAndLetsSymbolsPlay) {
    startWithPen();
    choose("cursor");
    placeSymbol({300, 300}, (addMoving("moving.gif", {10, 10, 10}), "moving.gif"));
    choose("draw");
    press({100, 100});
    move({150, 100});
    drawing().chooseTool(0);
    release({150, 100});
    EXPECT_TRUE(same(drawn(), expected));
    EXPECT_TRUE(window().canvas().clock().isRunning());
}

TEST_F(DrawingFreehand, AFrameChangeInTheMiddleOfAStrokeLosesIt) {
    startWithPen("3");
    drag({100, 100}, {200, 100});
    press({100, 200});
    move({200, 200});
    trigger("mnuFrameInsert");
    release({200, 200});
    compare();  // the new Frame shows the bare map
    selectTab(1);
    expectDrag({100, 100}, {200, 100}, 3);
    compare();
}

TEST_F(DrawingFreehand, AWidthWithAFractionIsRounded) {
    startWithPen("2.6");
    drag({100, 100}, {200, 100});
    expectDrag({100, 100}, {200, 100}, 3);
    compare();
}

TEST_F(DrawingFreehand, AWidthThatIsNoNumberLosesTheStroke) {
    for (const char* text : {"abc", "", " ", "1e3", "0", "-3", "99999", "3px"}) {
        startWithPen(text);
        drag({100, 100}, {200, 100});
        compare();
        EXPECT_FALSE(drawing().points().penDown) << text;
        setWidth("3");
        drag({100, 200}, {200, 200});
        expectDrag({100, 200}, {200, 200}, 3);
        compare();
    }
}

TEST_F(DrawingFreehand, ALostStrokeLeavesSymbolsPlaying) {
    startWithPen();
    choose("cursor");
    placeSymbol({300, 300}, (addMoving("moving.gif", {10, 10, 10}), "moving.gif"));
    setWidth("wide");
    choose("draw");
    press({100, 100});
    EXPECT_TRUE(window().canvas().clock().isRunning());
    release({100, 100});
    EXPECT_TRUE(window().canvas().clock().isRunning());
}

TEST_F(DrawingFreehand, ThePenMayBeWiderThanTheMap) {
    startWithPen("32767");
    press({250, 200});
    release({250, 200});
    EXPECT_EQ(drawn().pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(drawn().pixelColor(499, 399), QColor(Qt::red));
}

TEST_F(DrawingFreehand, APressAtTheCornerGoesOnFromWhereTheLastStrokeEnded) {
    // Row 0 stands at (0, 0) while no point is in use, and a press on a row begins no new stroke.
    startWithPen();
    drag({100, 100}, {200, 100});
    press({4, 4});
    EXPECT_TRUE(drawing().points().penDown);
    move({50, 60});
    release({50, 60});
    expectDrag({100, 100}, {200, 100}, 1);
    expectLine({200, 100}, {50, 60}, 1);
    compare();
}

TEST_F(DrawingFreehand, APressOnASpriteDrawsNothing) {
    startWithPen();
    choose("cursor");
    placeSymbol({100, 100});
    choose("draw");
    shell.expectMessage(
        "Operation not allowed in draw mode. Select cursor from toolbar and try again.",
        Icon::Exclamation);
    press({100, 100});
    move({200, 200});
    release({200, 200});
    EXPECT_TRUE(same(drawn(), expected));
}

TEST_F(DrawingFreehand, DrawingGoesUnderTheSprites) {
    startWithPen("5");
    choose("cursor");
    placeSymbol({100, 100}, addStill("green.png", {40, 40}, Qt::green));
    choose("draw");
    drag({50, 100}, {150, 100});
    EXPECT_EQ(shown({100, 100}), QColor(Qt::green));
    EXPECT_EQ(shown({130, 100}), QColor(Qt::red));
    EXPECT_EQ(drawn().pixelColor(100, 100), QColor(Qt::red));
}

TEST_F(DrawingFreehand, OnAPictureDamagedBehindItsHeaderOneDrawsOnAnEmptySheet) {
    startWithPen("3");
    trigger("mnuFrameInsert");
    QByteArray png = encodePicture(testing::plainImage({80, 60}, Qt::yellow), PictureFormat::Png);
    for (qsizetype i = png.indexOf("IDAT") + 4; i < png.size() - 12; ++i) {
        png[i] = '\x55';
    }
    workspace.pctPanel.setPicture(1, Picture::fromEncoded(png));
    selectTab(1);
    drag({20, 20}, {60, 20});
    expected = testing::plainImage({80, 60}, Qt::white);
    expectDrag({20, 20}, {60, 20}, 3);
    compare();
}

TEST_F(DrawingFreehand, AWideStrokeHasSmoothEdgesAroundACoreOfItsColor) {
    startWithPen("5");
    const QColor bare = drawn().pixelColor(10, 10);
    drag({100, 100}, {300, 180});
    const QImage picture = drawn();
    int mixed = 0;
    for (int y = 80; y < 200; ++y) {
        for (int x = 80; x < 320; ++x) {
            const QColor color = picture.pixelColor(x, y);
            mixed += color != bare && color != QColor(Qt::red);
        }
    }
    EXPECT_GT(mixed, 200);
    EXPECT_EQ(picture.pixelColor(100, 100), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(200, 140), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(300, 180), QColor(Qt::red));
}

}  // namespace nubivane
