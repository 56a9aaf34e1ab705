// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_fixture.h"

#include <set>

namespace nubivane::weather::testing {

namespace {

constexpr std::array areas = {FigureKind::RainArea,      FigureKind::FogArea,
                              FigureKind::SnowArea,      FigureKind::ThunderArea,
                              FigureKind::IceArea,       FigureKind::YellowWarning,
                              FigureKind::OrangeWarning, FigureKind::RedWarning};

WeatherFigure disc(FigureKind kind, FigureStyle style = {}) {
    return {kind, ring({150, 150}, 100), style};
}

/// Every point at which a line of a path begins, ends or bends.
std::vector<QPointF> cornersOf(const QPainterPath& path) {
    std::vector<QPointF> corners;
    for (int i = 0; i < path.elementCount(); ++i) {
        corners.push_back(path.elementAt(i));
    }
    return corners;
}

}  // namespace

TEST(Areas, HaveAnOutlineInTheirColour) {
    for (const FigureKind kind : areas) {
        const Ink outline = disc(kind).drawing().back();
        EXPECT_EQ(outline.line, QColor::fromRgb(rowOf(kind).color));
        EXPECT_EQ(outline.width, 3);
        EXPECT_NEAR(outline.path.boundingRect().width(), 200, 1);
    }
}

TEST(Areas, KeepTheirPatternInside) {
    for (const FigureKind kind : areas) {
        const Drawing drawing = disc(kind, {.fill = AreaFill::Hatching}).drawing();
        ASSERT_EQ(drawing.size(), 2U);
        const std::vector<QPointF> corners = cornersOf(drawing.front().path);
        ASSERT_GT(corners.size(), 20U);
        for (const QPointF& corner : corners) {
            EXPECT_LE(apart(corner, {150, 150}), 100.6);
        }
    }
}

TEST(Areas, HatchAllOfAShapeWithABay) {
    // A horse-shoe that opens upward: the lines must stop at the bay.
    const WeatherFigure figure{
        FigureKind::FogArea,
        {{0, 0}, {40, 0}, {45, 80}, {100, 80}, {105, 0}, {150, 0}, {150, 140}, {0, 140}},
        {.width = 1, .fill = AreaFill::Hatching}};
    const Drawing drawing = figure.drawing();
    const QPainterPath area = drawing.back().path;
    const QPainterPath& hatching = drawing.front().path;
    int inBay = 0;
    for (int i = 0; i + 1 < hatching.elementCount(); i += 2) {
        const QPointF middle =
            (QPointF(hatching.elementAt(i)) + QPointF(hatching.elementAt(i + 1))) / 2;
        EXPECT_TRUE(area.contains(middle)) << middle.x() << ' ' << middle.y();
        inBay += middle.y() < 70 && middle.x() > 20 && middle.x() < 130 ? 1 : 0;
    }
    EXPECT_GT(hatching.elementCount(), 40);
    EXPECT_LT(inBay, 40);
}

TEST(Areas, HatchingsOfNeighboursMeet) {
    const auto rows = [](QPointF middle) {
        std::set<qint64> found;
        const WeatherFigure figure{FigureKind::FogArea, ring(middle, 60), {}};
        for (const QPointF& corner : cornersOf(figure.drawing().front().path)) {
            found.insert(std::llround(corner.y() * 1000));
        }
        return found;
    };
    const std::set<qint64> left = rows({100, 103});
    for (const qint64 row : rows({220, 97})) {
        EXPECT_EQ(row % 12000, 0);
        EXPECT_TRUE(left.contains(row) || row < 45000 || row > 160000) << row;
    }
}

TEST(Areas, AreShadedAtTheOpacityAskedFor) {
    for (const qreal opacity : {0.0, 0.25, 1.0}) {
        const Drawing drawing =
            disc(FigureKind::RainArea, {.fill = AreaFill::Shading, .opacity = opacity}).drawing();
        EXPECT_NEAR(drawing.front().fill.alphaF(), opacity, 0.005);
        EXPECT_EQ(drawing.back().line.alphaF(), 1);
    }
}

TEST(Areas, WithoutFillingAreTheirOutline) {
    EXPECT_EQ(disc(FigureKind::RainArea, {.fill = AreaFill::None}).drawing().size(), 1U);
}

TEST(Areas, UsuallyWeatherIsHatchedAndWarningsAreShaded) {
    for (const FigureKind kind : areas) {
        const bool warning = kind >= FigureKind::YellowWarning;
        EXPECT_EQ(disc(kind).drawing().front().fill.isValid(), warning);
    }
}

TEST(Areas, OfHugeSizeCostNoMoreThanAGlance) {
    for (const FigureKind kind : areas) {
        const WeatherFigure figure{kind, ring({0, 0}, 30000, 100), {.width = 0.5}};
        std::size_t corners = 0;
        for (const Ink& ink : figure.drawing()) {
            corners += static_cast<std::size_t>(ink.path.elementCount());
        }
        EXPECT_LT(corners, 1'000'000U);
    }
}

TEST(Clouds, BulgeOutwardHoweverTheyWereDrawn) {
    std::vector<QPointF> points = ring({150, 150}, 100);
    for (int turn = 0; turn < 2; ++turn) {
        qreal nearest = 1000;
        qreal farthest = 0;
        const WeatherFigure figure{FigureKind::Cloud, points, {}};
        for (const QPointF& corner : cornersOf(figure.drawing().front().path)) {
            nearest = std::min(nearest, apart(corner, {150, 150}));
            farthest = std::max(farthest, apart(corner, {150, 150}));
        }
        EXPECT_NEAR(nearest, 100, 0.6);
        EXPECT_NEAR(farthest, 108, 1);
        std::reverse(points.begin(), points.end());
    }
}

TEST(Clouds, FlippedBulgeInward) {
    qreal farthest = 0;
    for (const QPointF& corner :
         cornersOf(disc(FigureKind::Cloud, {.flipped = true}).drawing().front().path)) {
        farthest = std::max(farthest, apart(corner, {150, 150}));
    }
    EXPECT_NEAR(farthest, 100, 0.6);
}

TEST(Clouds, HaveScallopsOfOneSize) {
    const Curve curve(ring({150, 150}, 100), Curve::Ends::Closed);
    const QPainterPath edge = disc(FigureKind::Cloud).drawing().front().path;
    int feet = 0;
    for (const QPointF& corner : cornersOf(edge)) {
        feet += apart(corner, {150, 150}) < 101 ? 1 : 0;
    }
    // The last foot is the first one again, and closing names it once more.
    EXPECT_NEAR(feet, curve.length() / 21 + 1, 2);
}

}  // namespace nubivane::weather::testing
