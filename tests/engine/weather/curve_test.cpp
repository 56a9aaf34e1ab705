// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/curve.h"

#include "engine/weather/figure_fixture.h"

#include <limits>

namespace nubivane::weather::testing {

namespace {

using Ends = Curve::Ends;

/// The shortest distance from a point to the curve.
qreal distanceTo(const Curve& curve, const QPointF& point) {
    qreal nearest = std::numeric_limits<qreal>::max();
    for (qreal s = 0; s <= curve.length(); s += 0.1) {
        nearest = std::min(nearest, apart(curve.at(s).point, point));
    }
    return nearest;
}

}  // namespace

TEST(Curve, PassesThroughEachOfItsPoints) {
    const std::vector<QPointF> points{{0, 0}, {50, 80}, {60, 10}, {200, 15}, {205, 100}};
    for (const Ends ends : {Ends::Open, Ends::Closed}) {
        const Curve curve(points, ends);
        for (const QPointF& point : points) {
            EXPECT_LT(distanceTo(curve, point), 0.1);
        }
    }
}

TEST(Curve, OfTwoPointsIsTheStraightLine) {
    const Curve curve({{10, 20}, {40, 60}}, Ends::Open);
    EXPECT_NEAR(curve.length(), 50, 1e-6);
    EXPECT_NEAR(curve.at(25).point.x(), 25, 1e-6);
    EXPECT_NEAR(curve.at(25).point.y(), 40, 1e-6);
    EXPECT_NEAR(curve.at(25).direction.x(), 0.6, 1e-6);
    EXPECT_NEAR(curve.at(25).direction.y(), 0.8, 1e-6);
}

TEST(Curve, StaysStraightThroughPointsOnALine) {
    const Curve curve({{0, 5}, {10, 5}, {100, 5}, {101, 5}}, Ends::Open);
    EXPECT_NEAR(curve.length(), 101, 1e-6);
    for (qreal s = 0; s <= 101; s += 0.5) {
        EXPECT_NEAR(curve.at(s).point.x(), s, 0.01);
        EXPECT_NEAR(curve.at(s).point.y(), 5, 1e-9);
    }
}

TEST(Curve, ThroughPointsOfACircleIsNearlyThatCircle) {
    const Curve curve(ring({100, 100}, 50), Ends::Closed);
    EXPECT_TRUE(curve.isClosed());
    EXPECT_NEAR(curve.length(), 2 * std::numbers::pi * 50, 1);
    for (qreal s = 0; s < curve.length(); s += 1) {
        EXPECT_NEAR(apart(curve.at(s).point, {100, 100}), 50, 0.5);
    }
}

/// A uniform spline would loop where two points stand close and the next one far away.
TEST(Curve, MakesNoLoopBesidePointsThatStandClose) {
    const Curve curve({{0, 0}, {100, 0}, {102, 1}, {200, 80}}, Ends::Open);
    for (qreal s = 1; s <= curve.length(); s += 0.5) {
        EXPECT_GT(curve.at(s).point.x(), curve.at(s - 1).point.x());
    }
}

TEST(Curve, MovesOnlyNearAPointThatIsMoved) {
    std::vector<QPointF> points{{0, 0}, {50, 10}, {100, 0}, {150, 10}, {200, 0}, {250, 10}};
    const Curve before(points, Ends::Open);
    points.back() += QPointF(0, 60);
    const Curve after(points, Ends::Open);
    for (qreal s = 0; s < 150; s += 1) {
        EXPECT_LT(apart(before.at(s).point, after.at(s).point), 1e-9);
    }
}

TEST(Curve, MeasuresDistancesAlongItself) {
    const Curve curve(bend(), Ends::Open);
    for (qreal s = 0; s + 2 <= curve.length(); s += 2) {
        EXPECT_NEAR(apart(curve.at(s).point, curve.at(s + 2).point), 2, 0.02);
        EXPECT_NEAR(std::hypot(curve.at(s).direction.x(), curve.at(s).direction.y()), 1, 1e-9);
    }
}

TEST(Curve, GoesOnStraightBeyondItsEnds) {
    const Curve curve({{0, 0}, {50, 0}, {100, 0}}, Ends::Open);
    EXPECT_LT(apart(curve.at(-10).point, {-10, 0}), 1e-6);
    EXPECT_LT(apart(curve.at(130).point, {130, 0}), 1e-6);
    EXPECT_LT(apart(curve.at(0).point, {0, 0}), 1e-9);
    EXPECT_LT(apart(curve.at(curve.length()).point, {100, 0}), 1e-9);
}

TEST(Curve, BeginsAnewWhereItIsClosed) {
    const Curve curve(ring({0, 0}, 40), Ends::Closed);
    EXPECT_LT(apart(curve.at(0).point, curve.at(curve.length()).point), 1e-6);
    EXPECT_LT(apart(curve.at(5).point, curve.at(curve.length() + 5).point), 1e-6);
    EXPECT_LT(apart(curve.at(-5).point, curve.at(curve.length() - 5).point), 1e-6);
    const QPainterPath over = curve.between(curve.length() - 10, curve.length() + 10);
    EXPECT_NEAR(over.length(), 20, 0.1);
    EXPECT_NEAR(curve.between(-10, 10).length(), 20, 0.1);
}

TEST(Curve, LeftIsWhereItIsSeenOnTheMap) {
    const Curve right({{0, 100}, {50, 100}}, Ends::Open);
    EXPECT_EQ(right.at(10).left(5), QPointF(10, 95));
    const Curve down({{100, 0}, {100, 50}}, Ends::Open);
    EXPECT_EQ(down.at(10).left(5), QPointF(105, 10));
}

TEST(Curve, TellsOnWhichSideItsInsideLies) {
    std::vector<QPointF> points = ring({100, 100}, 50);
    EXPECT_FALSE(Curve(points, Ends::Closed).turnsLeft());
    std::reverse(points.begin(), points.end());
    EXPECT_TRUE(Curve(points, Ends::Closed).turnsLeft());
}

TEST(Curve, HasAParallelAtADistance) {
    const Curve curve(ring({100, 100}, 50), Ends::Closed);
    const Curve outside = curve.parallel(10);
    EXPECT_TRUE(outside.isClosed());
    for (qreal s = 0; s < outside.length(); s += 3) {
        EXPECT_NEAR(apart(outside.at(s).point, {100, 100}), 60, 0.6);
    }
    const Curve below = Curve({{0, 0}, {100, 0}}, Ends::Open).parallel(-5);
    EXPECT_NEAR(below.length(), 100, 1e-6);
    EXPECT_LT(apart(below.at(0).point, {0, 5}), 1e-6);
}

TEST(Curve, PartsJoinToTheWhole) {
    const Curve curve(bend(), Ends::Open);
    const qreal length = curve.length();
    const qreal parts = curve.between(0, 70).length() + curve.between(70, 71).length() +
                        curve.between(71, length).length();
    EXPECT_NEAR(parts, length, 1e-6);
    EXPECT_NEAR(curve.path().length(), length, 0.1);
}

TEST(Curve, NeedsTwoPlaces) {
    const qreal nan = std::numeric_limits<qreal>::quiet_NaN();
    const qreal infinite = std::numeric_limits<qreal>::infinity();
    EXPECT_TRUE(Curve({}, Ends::Open).isEmpty());
    EXPECT_TRUE(Curve({{1, 1}}, Ends::Closed).isEmpty());
    EXPECT_TRUE(Curve({{1, 1}, {1, 1}, {1.001, 1}}, Ends::Closed).isEmpty());
    EXPECT_TRUE(Curve({{1, 1}, {nan, 2}, {3, infinite}, {1e9, 0}}, Ends::Open).isEmpty());
    EXPECT_EQ(Curve({}, Ends::Open).length(), 0);
}

TEST(Curve, PassesOverPointsThatAreNone) {
    const qreal nan = std::numeric_limits<qreal>::quiet_NaN();
    const Curve clean({{0, 0}, {50, 20}, {100, 0}}, Ends::Closed);
    const Curve same({{0, 0}, {0, 0}, {50, 20}, {nan, nan}, {100, 0}, {0, 0}}, Ends::Closed);
    EXPECT_TRUE(same.isClosed());
    EXPECT_EQ(same.path(), clean.path());
}

TEST(Curve, OfTwoPointsIsNeverClosed) {
    EXPECT_FALSE(Curve({{0, 0}, {50, 20}}, Ends::Closed).isClosed());
    EXPECT_FALSE(Curve({{0, 0}, {50, 20}, {0, 0}}, Ends::Closed).isClosed());
}

}  // namespace nubivane::weather::testing
