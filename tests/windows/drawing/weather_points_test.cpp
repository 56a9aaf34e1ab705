// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_fixture.h"

namespace nubivane {

/// The points of a figure that is being edited, by mouse and by keys.
class WeatherPoints : public testing::WeatherFixture {
  protected:
    static std::vector<QPoint> bend() { return {{80, 250}, {200, 150}, {350, 250}}; }
    void begin(Kind kind = Kind::ColdFront) {
        chooseByKeys(kind);
        clickAll(pointsOf(kind));
    }
    static std::vector<QPoint> pointsOf(Kind kind) {
        return weather::rowOf(kind).closed ? pointsFor(kind) : bend();
    }
    /// What is seen of the figure without its handles.
    bool shows(Kind kind, const std::vector<QPoint>& points) {
        return drawn() == withFigure(kind, points);
    }
};

TEST_F(WeatherPoints, AreDragged) {
    begin();
    drag({200, 150}, {230, 90});
    EXPECT_TRUE(shows(Kind::ColdFront, {{80, 250}, {230, 90}, {350, 250}}));
}

TEST_F(WeatherPoints, AreAddedBetweenTwoByAClickOnTheCurve) {
    begin();
    // Where the curve passes between its second and third point.
    const QPointF half = figureOf(Kind::ColdFront, bend()).halfway(1);
    const QPoint on = half.toPoint();
    click(on);
    EXPECT_TRUE(shows(Kind::ColdFront, {{80, 250}, {200, 150}, on, {350, 250}}));
}

TEST_F(WeatherPoints, AreAddedBetweenTwoAndDraggedInOneMovement) {
    begin();
    const QPoint on = figureOf(Kind::ColdFront, bend()).halfway(0).toPoint();
    drag(on, {90, 120});
    EXPECT_TRUE(shows(Kind::ColdFront, {{80, 250}, {90, 120}, {200, 150}, {350, 250}}));
}

TEST_F(WeatherPoints, AreRemovedByTheRightButton) {
    begin();
    click({200, 150}, Qt::RightButton);
    EXPECT_TRUE(shows(Kind::ColdFront, {{80, 250}, {350, 250}}));
    click({80, 250}, Qt::RightButton);
    click({350, 250}, Qt::RightButton);
    EXPECT_FALSE(drawing().isUnfinished());
    EXPECT_TRUE(onScreen() == bare);
}

TEST_F(WeatherPoints, TheRightButtonBesideThemDoesNothing) {
    begin();
    click({20, 20}, Qt::RightButton);
    EXPECT_TRUE(shows(Kind::ColdFront, bend()));
}

TEST_F(WeatherPoints, UndoTakesBackStepByStepAndThenTheEditBefore) {
    draw(Kind::WarmFront, {{50, 50}, {150, 50}});
    const QImage withWarm = committed();
    begin();
    drag({200, 150}, {230, 90});
    trigger("mnuUndo");
    EXPECT_TRUE(drawn() == withFigure(withWarm, figureOf(Kind::ColdFront, bend())));
    trigger("mnuUndo");
    trigger("mnuUndo");
    trigger("mnuUndo");
    EXPECT_FALSE(drawing().isUnfinished());
    EXPECT_TRUE(committed() == withWarm);
    trigger("mnuUndo");
    EXPECT_TRUE(committed() == bare);
}

TEST_F(WeatherPoints, AClosedFigureTakesAPointBetweenItsLastAndItsFirst) {
    begin(Kind::RedWarning);
    std::vector<QPoint> ring = pointsFor(Kind::RedWarning);
    const QPoint on =
        figureOf(Kind::RedWarning, ring).halfway(static_cast<int>(ring.size()) - 1).toPoint();
    click(on);
    ring.push_back(on);
    EXPECT_TRUE(shows(Kind::RedWarning, ring));
}

TEST_F(WeatherPoints, AreCaughtByHandlesOfOneSizeHoweverLargeTheMapIsShown) {
    for (const int percent : {50, 200, 800}) {
        canvas().setZoom(Zoom(percent));
        const auto clickOnScreen = [this](QPoint point, QPoint beside = {}) {
            const QPoint middle = canvas().zoom().toScreen(point) + QPoint(1, 1);
            QTest::mouseClick(&canvas(), Qt::LeftButton, {}, middle + beside);
        };
        std::vector<QPoint> points;  // that lie below the pixels of the screen
        for (const QPoint& point : bend()) {
            points.push_back(canvas().zoom().toMap(canvas().zoom().toScreen(point)));
        }
        chooseByKeys(Kind::ColdFront);
        for (const QPoint& point : points) {
            clickOnScreen(point);
        }
        EXPECT_TRUE(shows(Kind::ColdFront, points)) << percent;
        // Within the handle, and so no point of its own.
        clickOnScreen(points.back(), {FigureHandles::Reach, -FigureHandles::Reach});
        EXPECT_TRUE(shows(Kind::ColdFront, points)) << percent;
        mapKey(Qt::Key_Return);
        EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, points)) << percent;
        trigger("mnuUndo");
    }
    canvas().setZoom(Zoom());
}

TEST_F(WeatherPoints, TheNextStepIsToldWithTheMapToThoseWhoCannotSeeTheLine) {
    begin();
    EXPECT_EQ(canvas().accessibleDescription(), drawing().nextStep());
    mapKey(Qt::Key_Escape);
    mapKey(Qt::Key_Escape);
    EXPECT_EQ(canvas().accessibleDescription(), "");
}

TEST_F(WeatherPoints, AreKeptInsideTheMap) {
    chooseByKeys(Kind::ColdFront);
    click({100, 100});
    press({200, 200});
    move({900, -50});
    release({900, -50});
    EXPECT_TRUE(shows(Kind::ColdFront, {{100, 100}, {499, 0}}));
    press({499, 0});
    move({-3000000, 40000});
    move({300, 300});
    release({300, 300});
    EXPECT_TRUE(shows(Kind::ColdFront, {{100, 100}, {300, 300}}));
}

TEST_F(WeatherPoints, ClicksOnOnePlaceMakeOnePoint) {
    chooseByKeys(Kind::ColdFront);
    click({100, 100});
    click({100, 100});
    click({102, 99});
    EXPECT_TRUE(drawing().nextStep().contains("1 more point"));
}

TEST_F(WeatherPoints, AreMadeByKeysAlone) {
    mapKey(Qt::Key_F);
    mapKey(Qt::Key_Insert);
    ASSERT_TRUE(drawing().isUnfinished());
    const QPoint start = canvas().toMap(canvas().visibleRegion().boundingRect().center());
    mapKey(Qt::Key_N);
    for (int i = 0; i < 3; ++i) {
        mapKey(Qt::Key_Down, Qt::ControlModifier);
    }
    mapKey(Qt::Key_Right);
    mapKey(Qt::Key_Insert);
    const QPoint second = start + QPoint(41, 30);
    const QPoint third = second + QPoint(40, 30 * 40 / 41);
    EXPECT_TRUE(shows(Kind::ColdFront, {start, second, third}));
    mapKey(Qt::Key_PageUp);
    mapKey(Qt::Key_PageUp);
    mapKey(Qt::Key_Left);
    EXPECT_TRUE(shows(Kind::ColdFront, {start - QPoint(1, 0), second, third}));
    mapKey(Qt::Key_PageDown);
    mapKey(Qt::Key_Delete);
    EXPECT_TRUE(shows(Kind::ColdFront, {start - QPoint(1, 0), third}));
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, {start - QPoint(1, 0), third}));
}

TEST_F(WeatherPoints, AKeyAddsOneHalfwayToTheNext) {
    begin();
    mapKey(Qt::Key_PageDown);  // from the last to the first
    mapKey(Qt::Key_Insert);
    const QPointF half = figureOf(Kind::ColdFront, bend()).halfway(0);
    const QPoint on(static_cast<int>(half.x()), static_cast<int>(half.y()));
    EXPECT_TRUE(shows(Kind::ColdFront, {{80, 250}, on, {200, 150}, {350, 250}}));
}

TEST_F(WeatherPoints, TheirHandlesAreSeenButNeverPartOfAPicture) {
    begin();
    EXPECT_TRUE(shows(Kind::ColdFront, bend()));
    const QImage seen = onScreen();
    for (const QPoint& point : bend()) {
        EXPECT_EQ(seen.pixelColor(point + QPoint(-4, -4)), QColor(Qt::white));
        EXPECT_EQ(seen.pixelColor(point + QPoint(-5, -5)), QColor(Qt::black));
    }
    mapKey(Qt::Key_Escape);
    EXPECT_TRUE(onScreen() == bare);
}

TEST_F(WeatherPoints, MayLieOnSymbolsBelowWhichTheFigurePasses) {
    placeSymbol({200, 150});
    begin();
    EXPECT_TRUE(shows(Kind::ColdFront, bend()));
}

TEST_F(WeatherPoints, ThePointerTellsWhatAPressWillDo) {
    begin();
    hover({80, 250});
    EXPECT_EQ(canvas().cursor().shape(), Qt::SizeAllCursor);
    hover(figureOf(Kind::ColdFront, bend()).halfway(0).toPoint());
    EXPECT_EQ(canvas().cursor().shape(), Qt::CrossCursor);
    hover({20, 20});
    EXPECT_EQ(canvas().cursor().shape(), Qt::BitmapCursor);
}

TEST_F(WeatherPoints, AFigureIsDroppedByAnotherToolAFrameAndASave) {
    begin();
    mapKey(Qt::Key_D);
    EXPECT_TRUE(onScreen() == bare);
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::draw);
    begin();
    trigger("mnuFrameInsert");
    EXPECT_FALSE(drawing().isUnfinished());
    selectTab(1);
    EXPECT_TRUE(committed() == bare);
    begin();
    shell.expectSaveDialog("Save project", model("front.nvpf"));
    trigger("mnuSaveProject");
    EXPECT_FALSE(drawing().isUnfinished());
    EXPECT_TRUE(committed() == bare);
}

TEST_F(WeatherPoints, AnotherKindOfTheGroupKeepsThem) {
    begin();
    mapKey(Qt::Key_2);
    EXPECT_TRUE(shows(Kind::WarmFront, bend()));
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(committed() == withFigure(Kind::WarmFront, bend()));
}

TEST_F(WeatherPoints, AWindBarbIsWholeWithItsFirstClickAndTurnedByTheNext) {
    chooseByKeys(Kind::WindBarb);
    click({200, 200});
    const int width = drawing().pen().DrawWidth();
    EXPECT_TRUE(shows(Kind::WindBarb, {{200, 200}, {200, 200 - 15 * width}}));
    click({300, 300});
    EXPECT_TRUE(shows(Kind::WindBarb, {{200, 200}, {300, 300}}));
}

}  // namespace nubivane
