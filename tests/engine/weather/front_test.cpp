// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_fixture.h"
#include "engine/weather/figure_parts.h"

namespace nubivane::weather::testing {

namespace {

constexpr std::array pipFronts = {FigureKind::ColdFront, FigureKind::WarmFront,
                                  FigureKind::OccludedFront, FigureKind::StationaryFront};
const QColor Cold = QColor::fromRgb(ColdBlue);
const QColor Warm = QColor::fromRgb(WarmRed);

/// Where the pips of a level line stand: x of their middles.
std::vector<qreal> middles(const Drawing& drawing) {
    std::vector<qreal> found;
    for (const Ink& ink : filledParts(drawing)) {
        found.push_back(ink.path.boundingRect().center().x());
    }
    return found;
}

}  // namespace

TEST(Fronts, HaveTheirColours) {
    for (const auto& [kind, color] :
         {std::pair{FigureKind::ColdFront, Cold}, std::pair{FigureKind::WarmFront, Warm},
          std::pair{FigureKind::OccludedFront, QColor(160, 0, 200)}}) {
        for (const Ink& ink : levelLine(kind, 300).drawing()) {
            EXPECT_EQ(ink.fill.isValid() ? ink.fill : ink.line, color);
        }
    }
}

TEST(Fronts, HavePipsAtEqualDistances) {
    for (const FigureKind kind : pipFronts) {
        const std::vector<qreal> at = middles(levelLine(kind, 333).drawing());
        ASSERT_GE(at.size(), 6U);
        for (std::size_t i = 1; i < at.size(); ++i) {
            EXPECT_NEAR(at[i] - at[i - 1], 333.0 / at.size(), 0.01);
        }
        EXPECT_NEAR(at.front() - 10, 343 - at.back(), 0.01);
    }
}

TEST(Fronts, HavePipsAtEqualDistancesAlongABend) {
    const Curve curve(bend(), Curve::Ends::Open);
    const PipSpacing spacing = pipSpacing(curve.length(), 3, false);
    ASSERT_GE(spacing.middles.size(), 6U);
    const std::vector<Ink> pips =
        filledParts(WeatherFigure{FigureKind::ColdFront, bend(), {}}.drawing());
    ASSERT_EQ(pips.size(), spacing.middles.size());
    for (std::size_t i = 0; i < pips.size(); ++i) {
        EXPECT_NEAR(spacing.middles[i], (static_cast<qreal>(i) + 0.5) * spacing.period, 1e-9);
        EXPECT_TRUE(pips[i].path.contains(curve.at(spacing.middles[i]).left(2)));
    }
}

TEST(Fronts, NeverHavePipsBeyondTheirEnds) {
    for (const FigureKind kind : pipFronts) {
        for (qreal length = 1; length < 200; length += 0.7) {
            for (const Ink& ink : filledParts(levelLine(kind, length).drawing())) {
                EXPECT_GE(ink.path.boundingRect().left(), 10 - 1e-6) << length;
                EXPECT_LE(ink.path.boundingRect().right(), 10 + length + 1e-6) << length;
            }
        }
    }
}

TEST(Fronts, ThatAreTooShortForAPipAreALine) {
    for (const FigureKind kind : pipFronts) {
        const Drawing drawing = levelLine(kind, 12).drawing();
        ASSERT_EQ(drawing.size(), 1U);
        EXPECT_NEAR(drawing.front().path.length(), 12, 1e-6);
    }
    EXPECT_EQ(filledParts(levelLine(FigureKind::ColdFront, 18).drawing()).size(), 1U);
    // Half a pair would be another front.
    EXPECT_EQ(filledParts(levelLine(FigureKind::OccludedFront, 18).drawing()).size(), 0U);
    EXPECT_EQ(filledParts(levelLine(FigureKind::OccludedFront, 34).drawing()).size(), 2U);
}

TEST(Fronts, HavePipsOnTheLeftUntilTheyAreFlipped) {
    for (const FigureKind kind :
         {FigureKind::ColdFront, FigureKind::WarmFront, FigureKind::OccludedFront}) {
        for (const Ink& ink : filledParts(levelLine(kind, 300).drawing())) {
            EXPECT_LE(ink.path.boundingRect().bottom(), 100 + 1e-6);
            EXPECT_LT(ink.path.boundingRect().top(), 95);
        }
        for (const Ink& ink : filledParts(levelLine(kind, 300, {.flipped = true}).drawing())) {
            EXPECT_GE(ink.path.boundingRect().top(), 100 - 1e-6);
            EXPECT_GT(ink.path.boundingRect().bottom(), 105);
        }
    }
}

TEST(Fronts, PipsHaveTheProportionsOfTheManual) {
    for (const qreal width : {1.0, 2.0, 5.0}) {
        const QRectF triangle =
            filledParts(levelLine(FigureKind::ColdFront, 600, {.width = width}).drawing())
                .front()
                .path.boundingRect();
        EXPECT_NEAR(triangle.width(), 5 * width, 1e-6);
        EXPECT_NEAR(triangle.height(), 5 * width * std::sqrt(3) / 2, 1e-6);
        const QRectF half =
            filledParts(levelLine(FigureKind::WarmFront, 600, {.width = width}).drawing())
                .front()
                .path.boundingRect();
        EXPECT_NEAR(half.width(), 5 * width, 1e-6);
        EXPECT_NEAR(half.height(), 2.5 * width, 0.01 * width);
    }
}

TEST(Fronts, AnOcclusionAlternatesTrianglesAndHalfCirclesOnOneSide) {
    const std::vector<Ink> pips = filledParts(levelLine(FigureKind::OccludedFront, 300).drawing());
    ASSERT_EQ(pips.size() % 2, 0U);
    for (std::size_t i = 0; i < pips.size(); ++i) {
        const qreal height = pips[i].path.boundingRect().height();
        EXPECT_NEAR(height, i % 2 == 0 ? 15 * std::sqrt(3) / 2 : 7.5, 0.1) << i;
    }
}

TEST(Fronts, AStationaryOneIsBlueAndRedOnItsTwoSides) {
    for (const bool flipped : {false, true}) {
        const WeatherFigure figure =
            levelLine(FigureKind::StationaryFront, 300, {.flipped = flipped});
        const std::vector<Ink> pips = filledParts(figure.drawing());
        ASSERT_EQ(pips.size(), 6U);
        for (std::size_t i = 0; i < pips.size(); ++i) {
            const bool cold = i % 2 == 0;
            EXPECT_EQ(pips[i].fill, cold ? Cold : Warm);
            EXPECT_EQ(pips[i].path.boundingRect().center().y() < 100, cold != flipped);
        }
        // The line takes the colour of the pip on it.
        const std::vector<Ink> parts = lines(figure.drawing());
        ASSERT_EQ(parts.size(), 6U);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_EQ(parts[i].line, i % 2 == 0 ? Cold : Warm);
        }
        EXPECT_NEAR(parts.front().path.boundingRect().left(), 10, 1e-6);
        EXPECT_NEAR(parts.back().path.boundingRect().right(), 310, 1e-6);
    }
}

TEST(Fronts, AloftHaveHollowPips) {
    for (const FigureKind kind : pipFronts) {
        const Drawing surface = levelLine(kind, 300).drawing();
        const Drawing upper = levelLine(kind, 300, {.upper = true}).drawing();
        EXPECT_TRUE(filledParts(upper).empty());
        ASSERT_EQ(upper.size(), surface.size());
        for (std::size_t i = 0; i < upper.size(); ++i) {
            EXPECT_EQ(upper[i].path, surface[i].path);
        }
    }
}

TEST(Fronts, ThatFormHaveDotsInTheirGaps) {
    const Drawing drawing =
        levelLine(FigureKind::ColdFront, 315, {.stage = FrontStage::Forming}).drawing();
    EXPECT_EQ(lines(drawing).size(), 7U);
    int dots = 0;
    for (const Ink& ink : filledParts(drawing)) {
        const QRectF bounds = ink.path.boundingRect();
        if (std::abs(bounds.center().y() - 100) < 1e-6) {
            ++dots;
            for (const Ink& line : lines(drawing)) {
                EXPECT_FALSE(line.path.boundingRect().adjusted(0, -1, 0, 1).intersects(bounds));
            }
        }
    }
    EXPECT_EQ(dots, 6);
}

TEST(Fronts, ThatDissolveHaveBarsInTheirGaps) {
    const Drawing drawing =
        levelLine(FigureKind::WarmFront, 315, {.stage = FrontStage::Dissipating}).drawing();
    EXPECT_EQ(filledParts(drawing).size(), 7U);
    int bars = 0;
    for (const Ink& ink : lines(drawing)) {
        const QRectF bounds = ink.path.boundingRect();
        if (bounds.width() < 1e-6) {
            ++bars;
            EXPECT_NEAR(bounds.center().y(), 100, 1e-6);
            EXPECT_NEAR(bounds.height(), 15, 1e-6);
        }
    }
    EXPECT_EQ(bars, 6);
}

TEST(Fronts, OfEveryStageReachFromEndToEnd) {
    for (const FigureKind kind : pipFronts) {
        for (const FrontStage stage :
             {FrontStage::Forming, FrontStage::Established, FrontStage::Dissipating}) {
            qreal first = 1000;
            qreal last = 0;
            for (const Ink& ink : levelLine(kind, 290, {.stage = stage}).drawing()) {
                first = std::min(first, ink.path.boundingRect().left());
                last = std::max(last, ink.path.boundingRect().right());
            }
            EXPECT_NEAR(first, 10, 1e-6);
            EXPECT_NEAR(last, 300, 1e-6);
        }
    }
}

TEST(Fronts, ASquallLineHasTwoDotsBetweenDashes) {
    const Drawing drawing = levelLine(FigureKind::SquallLine, 400).drawing();
    const std::size_t dashes = lines(drawing).size();
    ASSERT_GT(dashes, 5U);
    EXPECT_EQ(filledParts(drawing).size(), 2 * (dashes - 1));
    EXPECT_NEAR(lines(drawing).front().path.boundingRect().left(), 10, 1e-6);
    EXPECT_NEAR(lines(drawing).back().path.boundingRect().right(), 410, 1e-6);
}

TEST(Fronts, ATroughIsDashedFromEndToEnd) {
    for (qreal length = 5; length < 300; length += 7) {
        const Drawing drawing = levelLine(FigureKind::Trough, length).drawing();
        EXPECT_TRUE(filledParts(drawing).empty());
        EXPECT_NEAR(drawing.front().path.boundingRect().left(), 10, 1e-6);
        EXPECT_NEAR(drawing.back().path.boundingRect().right(), 10 + length, 1e-6);
        for (std::size_t i = 1; i < drawing.size(); ++i) {
            EXPECT_GT(drawing[i].path.boundingRect().left(),
                      drawing[i - 1].path.boundingRect().right() + 5);
        }
    }
}

}  // namespace nubivane::weather::testing
