// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/bezier.h"
#include "windows/drawing/drawing_curve_samples.h"

#include <gtest/gtest.h>

namespace nubivane {

namespace {

using testing::curvePoint;

std::vector<QPoint> zigzag(int count) {
    std::vector<QPoint> points;
    for (int i = 0; i < count; ++i) {
        points.emplace_back(17 + 31 * i, i % 2 == 0 ? 23 + i : 377 - 3 * i);
    }
    return points;
}

}  // namespace

TEST(DrawingBezier, FewerThanTwoPointsGiveNothing) {
    EXPECT_TRUE(bezierCorners({}).empty());
    EXPECT_TRUE(bezierCorners({{10, 10}}).empty());
}

TEST(DrawingBezier, ItStartsAtTheFirstPointAndEndsAtTheLast) {
    const std::vector<QPoint> corners = bezierCorners({{10, 20}, {30, 99}, {50, 60}});
    EXPECT_EQ(corners.front(), QPoint(10, 20));
    EXPECT_EQ(corners.back(), QPoint(50, 60));
}

TEST(DrawingBezier, ALineOfAHundredPixelsHasACornerEverySixth) {
    const std::vector<QPoint> corners = bezierCorners({{100, 50}, {200, 50}});
    ASSERT_EQ(corners.size(), 19U);  // the start, 17 steps from 0 to 0.96, the end
    for (int step = 0; step <= 16; ++step) {
        EXPECT_EQ(corners[static_cast<std::size_t>(step) + 1], QPoint(100 + 6 * step, 50)) << step;
    }
}

TEST(DrawingBezier, FractionsAreCutOff) {
    // At 0.06, a tenth of the way being 0.6 pixels; at 0.12, 1.2 pixels.
    const std::vector<QPoint> corners = bezierCorners({{0, 0}, {10, 20}});
    EXPECT_EQ(corners[2], QPoint(0, 1));
    EXPECT_EQ(corners[3], QPoint(1, 2));
    EXPECT_EQ(corners[17], QPoint(9, 19));
}

TEST(DrawingBezier, EveryCornerOfEveryDegreeIsTheOneThatWholeNumbersGive) {
    for (int count = 2; count <= 15; ++count) {
        const std::vector<QPoint> controls = zigzag(count);
        const std::vector<QPoint> corners = bezierCorners(controls);
        ASSERT_EQ(corners.size(), 19U);
        for (int step = 0; step <= 16; ++step) {
            EXPECT_EQ(corners[static_cast<std::size_t>(step) + 1], curvePoint(controls, step))
                << count << " points, step " << step;
        }
    }
}

TEST(DrawingBezier, PointsInARowGiveAStraightRow) {
    for (int count = 2; count <= 15; ++count) {
        std::vector<QPoint> controls;
        for (int i = 0; i < count; ++i) {
            controls.emplace_back(20 * i, 333);
        }
        for (const QPoint& corner : bezierCorners(controls)) {
            EXPECT_EQ(corner.y(), 333) << count;
        }
    }
}

}  // namespace nubivane
