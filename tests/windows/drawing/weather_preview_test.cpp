// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_fixture.h"

namespace nubivane {

/// How a figure would go on if the map were clicked, as it is seen before it is.
class WeatherPreview : public testing::WeatherFixture {
  protected:
    QPainterPath preview() { return drawing().handles().preview(); }
    static bool ends(const QPainterPath& path, QPoint from, QPoint to) {
        const auto isAt = [](const QPointF& place, QPoint pixel) {
            return (place - QPointF(pixel) - QPointF(0.5, 0.5)).manhattanLength() < 1;
        };
        return isAt(path.elementAt(0), from) && isAt(path.currentPosition(), to);
    }
};

TEST_F(WeatherPreview, LeadsFromTheLastPointToThePointer) {
    chooseByKeys(Kind::ColdFront);
    hover({60, 60});
    EXPECT_TRUE(preview().isEmpty());
    click({80, 250});
    hover({150, 180});
    EXPECT_TRUE(ends(preview(), {80, 250}, {150, 180}));
    click({200, 150});
    EXPECT_TRUE(preview().isEmpty());
    hover({300, 200});
    EXPECT_TRUE(ends(preview(), {200, 150}, {300, 200}));
}

TEST_F(WeatherPreview, OfAnAreaGoesBackToItsFirstPoint) {
    chooseByKeys(Kind::RainArea);
    clickAll({{100, 100}, {200, 100}});
    hover({150, 200});
    EXPECT_TRUE(ends(preview(), {200, 100}, {100, 100}));
}

TEST_F(WeatherPreview, IsSeenAndPartOfNothing) {
    chooseByKeys(Kind::ColdFront);
    clickAll({{80, 250}, {200, 150}});
    const QImage figure = drawn();
    const QImage seen = onScreen();
    hover({350, 150});
    EXPECT_TRUE(drawn() == figure);
    EXPECT_FALSE(onScreen() == seen);
    mapKey(Qt::Key_Return);
    EXPECT_TRUE(committed() == withFigure(Kind::ColdFront, {{80, 250}, {200, 150}}));
    EXPECT_TRUE(preview().isEmpty());
    EXPECT_TRUE(onScreen() == committed());
}

TEST_F(WeatherPreview, IsNoneWhereAClickWouldDoSomethingElse) {
    chooseByKeys(Kind::ColdFront);
    clickAll({{80, 250}, {200, 150}, {350, 250}});
    hover({80, 250});
    EXPECT_TRUE(preview().isEmpty());
    hover(figureOf(Kind::ColdFront, {{80, 250}, {200, 150}, {350, 250}}).halfway(1).toPoint());
    EXPECT_TRUE(preview().isEmpty());
    chooseByKeys(Kind::Arrow);
    clickAll({{80, 250}, {200, 150}});
    hover({300, 300});
    EXPECT_TRUE(preview().isEmpty());
}

TEST_F(WeatherPreview, GoesWithThePointer) {
    chooseByKeys(Kind::ColdFront);
    click({80, 250});
    hover({150, 180});
    EXPECT_FALSE(preview().isEmpty());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&canvas(), &leave);
    EXPECT_TRUE(preview().isEmpty());
    hover({150, 180});
    hover({-5, 180});
    EXPECT_TRUE(preview().isEmpty());
    hover({150, 180});
    mapKey(Qt::Key_Escape);
    EXPECT_TRUE(preview().isEmpty());
}

TEST_F(WeatherPreview, IsNoneWhileAPointIsDragged) {
    chooseByKeys(Kind::ColdFront);
    clickAll({{80, 250}, {200, 150}});
    press({200, 150});
    move({220, 180});
    EXPECT_TRUE(preview().isEmpty());
    release({220, 180});
}

}  // namespace nubivane
