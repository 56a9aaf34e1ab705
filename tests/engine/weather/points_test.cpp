// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_fixture.h"

#include <QSet>

#include <limits>

namespace nubivane::weather::testing {

/// Which point of a figure a place on its curve belongs to.
TEST(WeatherPoints, APlaceOnTheCurveLiesBeforeThePointThatFollows) {
    const WeatherFigure front{FigureKind::ColdFront, bend()};
    for (int i = 0; i + 1 < static_cast<int>(bend().size()); ++i) {
        EXPECT_EQ(front.pointBehind(front.halfway(i), 1), i + 1);
    }
}

TEST(WeatherPoints, OnAClosedCurveTheLastOneIsFollowedByTheFirst) {
    const WeatherFigure ringed{FigureKind::RainArea, ring({100, 100}, 60)};
    const auto count = static_cast<int>(ringed.points.size());
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(ringed.pointBehind(ringed.halfway(i), 1), i + 1);
    }
}

TEST(WeatherPoints, BesideTheCurveAndAtItsEndsThereIsNone) {
    const WeatherFigure line = levelLine(FigureKind::Isoline, 200);
    EXPECT_FALSE(line.pointBehind({100, 110}, 5));
    EXPECT_EQ(line.pointBehind({100, 104}, 5), 1);
    EXPECT_FALSE(line.pointBehind({213, 100}, 5));
    EXPECT_FALSE(line.pointBehind({210, 100}, 5));
}

TEST(WeatherPoints, AKindThatTakesNoMorePointsHasNone) {
    EXPECT_FALSE(levelLine(FigureKind::Arrow, 200).pointBehind({100, 100}, 5));
    EXPECT_FALSE(levelLine(FigureKind::WindBarb, 200).pointBehind({100, 100}, 5));
}

TEST(WeatherPoints, WhatIsNoPlaceOrNoCurveHasNone) {
    constexpr qreal Nan = std::numeric_limits<qreal>::quiet_NaN();
    constexpr qreal Infinite = std::numeric_limits<qreal>::infinity();
    const WeatherFigure line = levelLine(FigureKind::Isoline, 200);
    EXPECT_FALSE(line.pointBehind({Nan, 100}, 5));
    EXPECT_FALSE(line.pointBehind({Infinite, 100}, 5));
    EXPECT_FALSE(line.pointBehind({100, 100}, Nan));
    EXPECT_FALSE((WeatherFigure{FigureKind::Isoline, {}}.pointBehind({100, 100}, 5)));
    EXPECT_FALSE((WeatherFigure{FigureKind::Isoline, {{1, 1}}}.pointBehind({1, 1}, 5)));
    const WeatherFigure broken{FigureKind::Isoline, {{Nan, 5}, {10, 10}, {Nan, Nan}, {90, 10}}};
    EXPECT_TRUE(broken.pointBehind({50, 10}, 5));
    EXPECT_FALSE(broken.drawing().empty());
}

TEST(WeatherPoints, ThousandsOfThemCostNoMoreThanTheKindTakes) {
    std::vector<QPointF> many;
    for (int i = 0; i < 20000; ++i) {
        many.emplace_back(i % 800, (i * 7) % 600);
    }
    for (const KindRow& row : kindTable) {
        const WeatherFigure figure{row.kind, many, {.text = "1015", .knots = 50}};
        EXPECT_FALSE(figure.drawing().empty()) << row.name;
        EXPECT_FALSE(figure.pointBehind({400, 300}, 5)) << row.name;
    }
}

TEST(WeatherPoints, EachKindHasANameOfItsOwn) {
    QSet<QString> names;
    for (const KindRow& row : kindTable) {
        EXPECT_EQ(rowOf(row.kind).name, row.name);
        names << row.name;
    }
    EXPECT_EQ(names.size(), static_cast<qsizetype>(kindTable.size()));
}

}  // namespace nubivane::weather::testing
