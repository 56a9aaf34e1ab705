// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/drawing_curve_samples.h"
#include "windows/drawing/drawing_fixture.h"

#include <cmath>

namespace nubivane {

/// Line, curve, circle and polygon: edited as control points, applied as pixels.
class DrawingFigures : public testing::DrawingFixture {
  protected:
    void startWith(const char* tool, const QString& width = "3") {
        startDrawing();
        bare = expected;
        setWidth(width);
        choose(tool);
    }
    void clickAll(const std::vector<QPoint>& points) {
        for (const QPoint& point : points) {
            click(point);
        }
    }
    /// A press on the first point, a move to the second, and a release.
    void dragPoint(QPoint from, QPoint to) {
        press(from);
        move((from + to) / 2);
        move(to);
        release(to);
    }

    void expectCurve(const std::vector<QPoint>& points, int width) {
        QPoint from = points.front();
        for (int step = 0; step <= 16; ++step) {
            const QPoint to = testing::curvePoint(points, step);
            expectLine(from, to, width);
            from = to;
        }
        expectLine(from, points.back(), width);
    }
    void expectHandles(const std::vector<QPoint>& points) {
        for (const QPoint& point : points) {
            expectHandle(point);
        }
    }
    void expectEditedCurve(const std::vector<QPoint>& points, int width) {
        expected = bare;
        for (std::size_t i = 1; points.size() > 2 && i < points.size(); ++i) {
            expectDotted(points[i - 1], points[i]);
        }
        expectCurve(points, width);
        expectHandles(points);
    }
    void expectPolygon(const std::vector<QPoint>& points, int width) {
        for (std::size_t i = 0; i + 1 < points.size(); ++i) {
            expectLine(points[i + 1], points[i], width);
        }
    }
    void expectCircle(QPoint centre, QPoint rim, int width) {
        const double dx = rim.x() - centre.x();
        const double dy = rim.y() - centre.y();
        const double radius = std::sqrt(dx * dx + dy * dy);
        expect([&](QPainter& painter) {
            use(painter, width);
            painter.drawEllipse(QPointF(centre), radius, radius);
        });
    }
    /// After `DrawApply`: the figure is part of the map, and nothing of its editing is left.
    void compareApplied() {
        compare();
        EXPECT_TRUE(same(committed(), expected));
        EXPECT_TRUE(workspace.pctMap.scratchArea().isEmpty());
        EXPECT_EQ(drawing().points().pointCount(), 0);
        EXPECT_EQ(drawing().points().point(0), QPoint(0, 0));
        EXPECT_FALSE(actionLoaded());
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    static std::vector<QPoint> row(int count) {
        std::vector<QPoint> points;
        for (int i = 0; i < count; ++i) {
            points.emplace_back(20 + 30 * i, i % 2 == 0 ? 80 + 3 * i : 300 - 7 * i);
        }
        return points;
    }

    QImage bare;
};

TEST_F(DrawingFigures, TheFirstPointIsAHandleAlone) {
    for (const char* tool : {"line", "curvy", "circle", "poly"}) {
        startWith(tool);
        click({100, 150});
        expectHandle({100, 150});
        compare();
        EXPECT_EQ(drawing().points().pointCount(), 1);
    }
}

TEST_F(DrawingFigures, AHandleIsABlackOutlineOfElevenPixelsFilledWithWhite) {
    startWith("line");
    click({100, 150});
    const QImage picture = drawn();
    for (int y = -6; y <= 6; ++y) {
        for (int x = -6; x <= 6; ++x) {
            const int distance = std::max(std::abs(x), std::abs(y));
            const QColor wanted = distance > 5    ? bare.pixelColor(100, 150)
                                  : distance == 5 ? QColor(Qt::black)
                                                  : QColor(Qt::white);
            EXPECT_EQ(picture.pixelColor(100 + x, 150 + y), wanted) << x << ' ' << y;
        }
    }
}

TEST_F(DrawingFigures, AFigureBeingEditedIsOnTheScratchLayerAlone) {
    for (const char* tool : {"line", "curvy", "circle", "poly"}) {
        startWith(tool);
        clickAll({{100, 100}, {200, 150}});
        EXPECT_TRUE(committed() == bare) << tool;
        EXPECT_FALSE(drawn() == bare) << tool;
        EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty()) << tool;
    }
}

TEST_F(DrawingFigures, ALineIsTheCurveOfTwoPoints) {
    startWith("line");
    clickAll({{100, 100}, {233, 177}});
    expectCurve({{100, 100}, {233, 177}}, 3);
    expectHandles({{100, 100}, {233, 177}});
    compare();
    apply();
    expected = bare;
    expectCurve({{100, 100}, {233, 177}}, 3);
    compareApplied();
}

TEST_F(DrawingFigures, AThirdClickWithALineAddsNothing) {
    startWith("line");
    clickAll({{100, 100}, {200, 150}});
    const QImage before = drawn();
    click({300, 300});
    EXPECT_EQ(drawing().points().pointCount(), 2);
    EXPECT_TRUE(drawn() == before);
    EXPECT_TRUE(actionLoaded());
}

TEST_F(DrawingFigures, ACurveShowsItsControlPolygonDotted) {
    const std::vector<QPoint> points{{50, 300}, {120, 60}, {260, 340}, {400, 100}};
    startWith("curvy");
    clickAll(points);
    expectEditedCurve(points, 3);
    compare();
    apply();
    expected = bare;
    expectCurve(points, 3);
    compareApplied();
}

TEST_F(DrawingFigures, EveryNumberOfPointsOfACurveIsDrawnByItsArithmetic) {
    startWith("curvy", "1");
    const std::vector<QPoint> points = row(15);
    for (std::size_t count = 1; count <= points.size(); ++count) {
        click(points[count - 1]);
        if (count >= 2) {
            expectEditedCurve({points.begin(), points.begin() + static_cast<qsizetype>(count)}, 1);
            compare();
        }
    }
}

TEST_F(DrawingFigures, ASixteenthPointOfACurveIsIgnoredAndTheWindowStays) {
    startWith("curvy");
    clickAll(row(15));
    const QImage before = drawn();
    click({250, 380});
    EXPECT_EQ(drawing().points().pointCount(), 15);
    EXPECT_TRUE(drawn() == before);
    EXPECT_TRUE(actionLoaded());
}

TEST_F(DrawingFigures, ASixteenthPointOfAPolygonIsIgnored) {
    startWith("poly");
    clickAll(row(15));
    const QImage before = drawn();
    click({250, 380});
    EXPECT_EQ(drawing().points().pointCount(), 15);
    EXPECT_TRUE(drawn() == before);
}

TEST_F(DrawingFigures, APolygonIsOpen) {
    const std::vector<QPoint> points{{100, 100}, {300, 120}, {200, 300}};
    startWith("poly");
    clickAll(points);
    expectPolygon(points, 3);
    expectHandles(points);
    compare();
    apply();
    expected = bare;
    expectPolygon(points, 3);
    compareApplied();
    EXPECT_EQ(drawn().pixelColor(150, 200), bare.pixelColor(150, 200));
}

TEST_F(DrawingFigures, APolygonOfOnePointAppliesAsNothingVisible) {
    startWith("poly");
    click({100, 100});
    apply();
    compareApplied();
}

TEST_F(DrawingFigures, ALineAndACurveOfOnePointApplyAsNothingVisible) {
    for (const char* tool : {"line", "curvy"}) {
        startWith(tool);
        click({100, 100});
        apply();
        compareApplied();
    }
}

TEST_F(DrawingFigures, ACircleWithoutItsSecondPointAppliesAsNothingVisible) {
    startWith("circle");
    click({100, 100});
    apply();
    compareApplied();
}

TEST_F(DrawingFigures, ACircleGoesAroundTheFirstPointThroughTheSecond) {
    startWith("circle");
    clickAll({{200, 200}, {260, 280}});  // a radius of 100
    expectCircle({200, 200}, {260, 280}, 3);
    expectHandles({{200, 200}, {260, 280}});
    compare();
    EXPECT_EQ(drawn().pixelColor(200, 100), QColor(Qt::red));
    EXPECT_EQ(drawn().pixelColor(100, 200), QColor(Qt::red));
    apply();
    expected = bare;
    expectCircle({200, 200}, {260, 280}, 3);
    compareApplied();
}

TEST_F(DrawingFigures, ACircleMayReachBeyondTheMap) {
    startWith("circle");
    clickAll({{20, 20}, {450, 380}});
    apply();
    expectCircle({20, 20}, {450, 380}, 3);
    compareApplied();
}

TEST_F(DrawingFigures, AThirdClickWithACircleAddsNothing) {
    startWith("circle");
    clickAll({{200, 200}, {260, 280}, {400, 100}});
    EXPECT_EQ(drawing().points().pointCount(), 2);
}

TEST_F(DrawingFigures, APressOnAHandleDragsItsPointAndAddsNone) {
    startWith("line");
    clickAll({{100, 100}, {200, 150}});
    dragPoint({203, 147}, {300, 250});
    EXPECT_EQ(drawing().points().pointCount(), 2);
    EXPECT_EQ(drawing().points().point(1), QPoint(300, 250));
    EXPECT_FALSE(drawing().points().penDown);
    expectEditedCurve({{100, 100}, {300, 250}}, 3);
    compare();
}

TEST_F(DrawingFigures, AnyPointOfACurveIsDragged) {
    startWith("curvy");
    clickAll({{50, 300}, {120, 60}, {260, 340}});
    dragPoint({120, 60}, {180, 90});
    expectEditedCurve({{50, 300}, {180, 90}, {260, 340}}, 3);
    compare();
    EXPECT_EQ(drawing().points().movingPoint, 1);
}

TEST_F(DrawingFigures, APolygonsPointIsDragged) {
    startWith("poly");
    clickAll({{100, 100}, {300, 120}, {200, 300}});
    dragPoint({300, 120}, {400, 200});
    expectPolygon({{100, 100}, {400, 200}, {200, 300}}, 3);
    expectHandles({{100, 100}, {400, 200}, {200, 300}});
    compare();
}

TEST_F(DrawingFigures, ACirclesPointsAreDragged) {
    startWith("circle");
    clickAll({{200, 200}, {260, 280}});
    dragPoint({260, 280}, {230, 240});  // a radius of 50
    dragPoint({200, 200}, {190, 190});
    expectCircle({190, 190}, {230, 240}, 3);
    expectHandles({{190, 190}, {230, 240}});
    compare();
}

TEST_F(DrawingFigures, TheFirstPointOfACircleIsNotDraggedBeforeThereIsASecond) {
    startWith("circle");
    click({200, 200});
    dragPoint({200, 200}, {300, 300});
    EXPECT_EQ(drawing().points().point(0), QPoint(200, 200));
    expectHandle({200, 200});
    compare();
}

TEST_F(DrawingFigures, MovesWithoutAPressOnAPointDragNothing) {
    startWith("line");
    press({100, 100});
    move({300, 300});
    release({300, 300});
    EXPECT_EQ(drawing().points().pointCount(), 1);
    EXPECT_EQ(drawing().points().point(0), QPoint(100, 100));
}

TEST_F(DrawingFigures, APressOnAFullFiguresHandleDragsIt) {
    startWith("curvy");
    clickAll(row(15));
    dragPoint({20, 80}, {60, 200});
    EXPECT_EQ(drawing().points().pointCount(), 15);
    EXPECT_EQ(drawing().points().point(0), QPoint(60, 200));
}

TEST_F(DrawingFigures, APressAtTheCornerMovesTheRowThatIsNotInUseYet) {
    startWith("poly");
    press({3, 3});
    EXPECT_TRUE(drawing().points().penDown);
    EXPECT_EQ(drawing().points().pointCount(), 0);
    EXPECT_FALSE(actionLoaded());
    move({100, 100});
    release({100, 100});
    EXPECT_EQ(drawing().points().pointCount(), 0);
    EXPECT_EQ(drawing().points().point(0), QPoint(100, 100));
    compare();
    click({102, 98});  // the row stands here now, so this is a drag again
    EXPECT_EQ(drawing().points().pointCount(), 0);
    click({3, 3});
    EXPECT_EQ(drawing().points().pointCount(), 1);
    EXPECT_EQ(drawing().points().point(0), QPoint(3, 3));
}

TEST_F(DrawingFigures, ADragEndsAtTheEdgeOfTheMap) {
    startWith("line");
    clickAll({{100, 100}, {200, 150}});
    press({200, 150});
    move({480, 150});
    move({501, 150});
    release({501, 150});
    EXPECT_EQ(drawing().points().point(1), QPoint(480, 150));
}

TEST_F(DrawingFigures, ANewFigureBeginsAfterApplying) {
    startWith("poly");
    clickAll({{100, 100}, {200, 100}});
    apply();
    clickAll({{100, 200}, {200, 200}});
    apply();
    expectPolygon({{100, 100}, {200, 100}}, 3);
    expectPolygon({{100, 200}, {200, 200}}, 3);
    compareApplied();
}

TEST_F(DrawingFigures, CancelLeavesWhatWasThere) {
    startWith("poly");
    clickAll({{100, 100}, {200, 100}});
    apply();
    clickAll({{100, 200}, {200, 200}});
    pressActionButton("cmdDrawCancel");
    expectPolygon({{100, 100}, {200, 100}}, 3);
    compareApplied();
}

TEST_F(DrawingFigures, ApplyingMarksTheProjectThatWasSavedMeanwhile) {
    startWith("line");
    clickAll({{100, 100}, {200, 100}});
    workspace.ProjectChanged = false;
    apply();
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(DrawingFigures, CancellingDoesNotMarkTheProject) {
    startWith("line");
    clickAll({{100, 100}, {200, 100}});
    workspace.ProjectChanged = false;
    pressActionButton("cmdDrawCancel");
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(DrawingFigures, TheSnapshotFollowsAtTheNextFrameChange) {
    startWith("line");
    clickAll({{100, 100}, {200, 100}});
    apply();
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    trigger("mnuFrameInsert");
    expectCurve({{100, 100}, {200, 100}}, 3);
    EXPECT_TRUE(same(workspace.pctPanel.picture(1).image().convertToFormat(QImage::Format_RGB32),
                     expected));
}

TEST_F(DrawingFigures, AnotherWidthShowsAtOnceAndIsApplied) {
    for (const char* tool : {"line", "curvy", "poly"}) {
        startWith(tool, "1");
        clickAll({{100, 100}, {200, 150}});
        setWidth("7");
        if (QLatin1String(tool) == u"poly") {
            expectPolygon({{100, 100}, {200, 150}}, 7);
        } else {
            expectCurve({{100, 100}, {200, 150}}, 7);
        }
        const QImage figure = expected;
        expectHandles({{100, 100}, {200, 150}});
        compare();
        apply();
        expected = figure;
        compareApplied();
    }
}

TEST_F(DrawingFigures, ACircleTakesAnotherWidthToo) {
    startWith("circle", "1");
    clickAll({{200, 200}, {260, 280}});
    setWidth("5");
    expectCircle({200, 200}, {260, 280}, 5);
    const QImage figure = expected;
    expectHandles({{200, 200}, {260, 280}});
    compare();
    apply();
    expected = figure;
    compareApplied();
}

TEST_F(DrawingFigures, AWidthThatIsNoNumberKeepsThePointsAndCommitsNothing) {
    for (const char* tool : {"line", "curvy", "circle", "poly"}) {
        startWith(tool, "wide");
        clickAll({{100, 100}, {200, 150}});
        EXPECT_EQ(drawing().points().pointCount(), 2) << tool;
        EXPECT_TRUE(actionLoaded()) << tool;
        EXPECT_TRUE(committed() == bare) << tool;
        pressActionButton("cmdDrawCancel");
        compareApplied();
    }
}

TEST_F(DrawingFigures, WithoutAWidthAFigureIsShownInTheOneThatItWillHave) {
    for (const char* tool : {"line", "curvy", "circle"}) {
        startWith(tool, "5");
        clickAll({{100, 100}});
        setWidth("wide");
        clickAll({{200, 150}});
        const auto expectFigure = [&] {
            if (QLatin1String(tool) == u"circle") {
                expectCircle({100, 100}, {200, 150}, 5);
            } else {
                expectCurve({{100, 100}, {200, 150}}, 5);
            }
        };
        expectFigure();
        expectHandles({{100, 100}, {200, 150}});
        compare();
        apply();
        expected = bare;
        expectFigure();
        compareApplied();
    }
}

TEST_F(DrawingFigures, WhileAWidthIsBeingTypedTheFigureStays) {
    startWith("poly");
    clickAll({{100, 100}, {200, 150}});
    const QImage before = drawn();
    setWidth("");
    EXPECT_TRUE(drawn() == before);
    EXPECT_TRUE(onScreen() == before);
}

TEST_F(DrawingFigures, APolygonAppliedWithoutAWidthIsLost) {
    startWith("poly");
    clickAll({{100, 100}, {200, 150}});
    setWidth("");
    apply();
    compareApplied();
}

TEST_F(DrawingFigures, HandlesAtTheEdgeAreCutOff) {
    startWith("line");
    clickAll({{0, 200}, {499, 200}});
    expectCurve({{0, 200}, {499, 200}}, 3);
    expectHandles({{0, 200}, {499, 200}});
    compare();
}

}  // namespace nubivane
