// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_fixture.h"

namespace nubivane::weather::testing {

namespace {

/// The signs on the staff of a wind from the north at (100, 100).
struct Signs {
    int pennants = 0;
    int longs = 0;
    int halves = 0;

    bool operator==(const Signs&) const = default;
};

WeatherFigure northWind(int knots, FigureStyle style = {}) {
    style.knots = knots;
    return {FigureKind::WindBarb, {{100, 100}, {100, 60}}, style};
}

Signs signsOf(const Drawing& drawing) {
    Signs signs;
    for (const Ink& ink : drawing) {
        const qreal reach = ink.path.boundingRect().width();
        if (ink.fill.isValid()) {
            signs.pennants += reach > 10 ? 1 : 0;  // the place's own dot is smaller
        } else if (reach > 15) {
            ++signs.longs;
        } else if (reach > 5) {
            ++signs.halves;
        }
    }
    return signs;
}

}  // namespace

TEST(WindBarbs, CountFiftyTenAndFiveKnots) {
    struct Row {
        int knots;
        Signs signs;
    };
    for (const Row& row : {Row{5, {0, 0, 1}}, Row{10, {0, 1, 0}}, Row{15, {0, 1, 1}},
                           Row{40, {0, 4, 0}}, Row{45, {0, 4, 1}}, Row{50, {1, 0, 0}},
                           Row{65, {1, 1, 1}}, Row{100, {2, 0, 0}}, Row{195, {3, 4, 1}}}) {
        EXPECT_EQ(signsOf(northWind(row.knots).drawing()), row.signs) << row.knots;
    }
}

TEST(WindBarbs, RoundToTheNearestFive) {
    EXPECT_EQ(signsOf(northWind(7).drawing()), (Signs{0, 0, 1}));
    EXPECT_EQ(signsOf(northWind(8).drawing()), (Signs{0, 1, 0}));
    EXPECT_EQ(signsOf(northWind(47).drawing()), (Signs{0, 4, 1}));
    EXPECT_EQ(signsOf(northWind(48).drawing()), (Signs{1, 0, 0}));
}

TEST(WindBarbs, OfCalmAreARing) {
    for (const int knots : {-5, 0, 2}) {
        const Drawing drawing = northWind(knots).drawing();
        ASSERT_EQ(drawing.size(), 1U);
        EXPECT_EQ(drawing.front().path.boundingRect().center(), QPointF(100, 100));
        EXPECT_FALSE(drawing.front().fill.isValid());
    }
    EXPECT_GT(northWind(3).drawing().size(), 2U);
}

TEST(WindBarbs, PointToWhereTheWindComesFrom) {
    const QRectF staff = northWind(20).drawing().front().path.boundingRect();
    EXPECT_NEAR(staff.center().x(), 100, 1e-6);
    EXPECT_NEAR(staff.bottom(), 100, 1e-6);
    EXPECT_NEAR(staff.height(), 45, 1e-6);
}

/// With the wind in the back, pressure is low on the left: east of a wind from the north.
TEST(WindBarbs, AreOnTheSideOfLowPressure) {
    for (const Ink& ink : lines(northWind(45).drawing())) {
        EXPECT_GE(ink.path.boundingRect().left(), 100 - 1e-6);
    }
    for (const Ink& ink : lines(northWind(45, {.flipped = true}).drawing())) {
        EXPECT_LE(ink.path.boundingRect().right(), 100 + 1e-6);
    }
}

TEST(WindBarbs, BeginAtTheEndOfTheStaffButForAHalfAlone) {
    const auto lowest = [](int knots) {
        const std::vector<Ink> parts = lines(northWind(knots).drawing());
        return parts[1].path.boundingRect().bottom();
    };
    EXPECT_NEAR(lowest(10), 55, 1e-6);
    EXPECT_NEAR(lowest(5), 55 + 6.6, 1e-6);
}

TEST(WindBarbs, AlwaysFitTheirStaff) {
    for (int knots = 3; knots <= 1200; knots += 7) {
        const Drawing drawing = northWind(knots).drawing();
        const qreal end = drawing.front().path.boundingRect().top();
        for (const Ink& ink : drawing) {
            EXPECT_LE(ink.path.boundingRect().bottom(), 104) << knots;
            EXPECT_GE(ink.path.boundingRect().bottom(), end - 1e-6) << knots;
        }
    }
}

TEST(Jets, CarryTheirSpeedOnTheLeft) {
    const Drawing drawing = levelLine(FigureKind::Jet, 190, {.knots = 120}).drawing();
    int pennants = 0;
    int barbs = 0;
    for (const Ink& ink : drawing) {
        const QRectF bounds = ink.path.boundingRect();
        if (bounds.bottom() <= 100 + 1e-6 && bounds.top() < 90) {
            (ink.fill.isValid() ? pennants : barbs) += 1;
        }
    }
    EXPECT_EQ(pennants, 2);
    EXPECT_EQ(barbs, 2);
}

TEST(Jets, RepeatTheirSpeedAlongALongLine) {
    const auto pennants = [](qreal length) {
        return filledParts(levelLine(FigureKind::Jet, length, {.knots = 50}).drawing()).size() - 1;
    };
    EXPECT_EQ(pennants(100), 1U);
    EXPECT_EQ(pennants(390), 2U);
    EXPECT_EQ(pennants(750), 4U);
}

TEST(Jets, WithoutRoomForTheSpeedHaveNone) {
    const Drawing drawing = levelLine(FigureKind::Jet, 60, {.knots = 195}).drawing();
    EXPECT_EQ(drawing.size(), 2U);
}

}  // namespace nubivane::weather::testing
