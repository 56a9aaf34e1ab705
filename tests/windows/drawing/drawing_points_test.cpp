// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/control_points.h"

#include <gtest/gtest.h>

namespace nubivane {

TEST(DrawingPoints, ANewListHasNoPointInUseAndThePenUp) {
    const ControlPoints points;
    EXPECT_EQ(points.pointCount(), 0);
    EXPECT_FALSE(points.penDown);
    EXPECT_EQ(points.movingPoint, 0);
    EXPECT_EQ(points.point(0), QPoint(0, 0));
    EXPECT_EQ(points.point(100), QPoint(0, 0));
}

TEST(DrawingPoints, APointIsAddedInTheFirstRowThatIsNotInUse) {
    ControlPoints points;
    points.addPoint({30, 40});
    points.addPoint({50, 60});
    EXPECT_EQ(points.pointCount(), 2);
    EXPECT_EQ(points.point(0), QPoint(30, 40));
    EXPECT_EQ(points.point(1), QPoint(50, 60));
}

TEST(DrawingPoints, APointIsFoundLessThanFivePixelsAwayOnBothAxes) {
    ControlPoints points;
    points.addPoint({30, 40});
    EXPECT_EQ(points.findPoint({34, 44}), 0);
    EXPECT_EQ(points.findPoint({26, 36}), 0);
    EXPECT_EQ(points.findPoint({35, 40}), -1);
    EXPECT_EQ(points.findPoint({30, 35}), -1);
    EXPECT_EQ(points.findPoint({25, 40}), -1);
    EXPECT_EQ(points.findPoint({30, 45}), -1);
}

TEST(DrawingPoints, OfTwoPointsInReachTheFirstIsFound) {
    ControlPoints points;
    points.addPoint({100, 100});
    points.addPoint({103, 100});
    EXPECT_EQ(points.findPoint({103, 100}), 0);
    EXPECT_EQ(points.findPoint({106, 100}), 1);
}

TEST(DrawingPoints, TheRowBehindTheLastOneInUseIsLookedAtAsItStands) {
    ControlPoints points;
    EXPECT_EQ(points.findPoint({4, 4}), 0);
    EXPECT_EQ(points.findPoint({5, 4}), -1);
    points.addPoint({100, 100});
    EXPECT_EQ(points.findPoint({4, 4}), 1);
    points.setPoint(1, {200, 200});
    EXPECT_EQ(points.findPoint({4, 4}), -1);
    EXPECT_EQ(points.findPoint({200, 200}), 1);
    EXPECT_EQ(points.pointCount(), 1);
}

TEST(DrawingPoints, RowsFurtherBehindAreNotLookedAt) {
    ControlPoints points;
    points.addPoint({100, 100});
    points.setPoint(1, {150, 150});
    points.setPoint(2, {200, 200});
    EXPECT_EQ(points.findPoint({200, 200}), -1);
}

TEST(DrawingPoints, WithEveryRowInUseNoRowBeyondTheArrayIsReadOrWritten) {
    ControlPoints points;
    for (int i = 0; i < 200; ++i) {
        points.addPoint({100 + 10 * i, 300});
    }
    EXPECT_EQ(points.pointCount(), 101);
    EXPECT_EQ(points.findPoint({1100, 300}), 100);
    EXPECT_EQ(points.findPoint({1110, 300}), -1);
    EXPECT_EQ(points.findPoint({0, 0}), -1);
    points.setPoint(101, {7, 7});
    points.setPoint(-1, {7, 7});
    EXPECT_EQ(points.findPoint({7, 7}), -1);
    EXPECT_EQ(points.point(101), QPoint(0, 0));
}

TEST(DrawingPoints, ClearingEmptiesEveryRow) {
    ControlPoints points;
    points.addPoint({30, 40});
    points.setPoint(1, {50, 60});
    points.penDown = true;
    points.clear();
    EXPECT_EQ(points.pointCount(), 0);
    EXPECT_EQ(points.point(0), QPoint(0, 0));
    EXPECT_EQ(points.point(1), QPoint(0, 0));
    EXPECT_FALSE(points.penDown);
}

}  // namespace nubivane
