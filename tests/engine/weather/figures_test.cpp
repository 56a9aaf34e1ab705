// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_fixture.h"

#include <QImage>
#include <QPainter>

#include <limits>

namespace nubivane::weather::testing {

namespace {

/// A figure of each kind that shows all it has.
WeatherFigure example(const KindRow& row, FigureStyle style = {}) {
    style.text = "1015";
    style.knots = 65;
    return {row.kind, row.closed ? ring({160, 120}, 70) : bend(), style};
}

std::vector<FigureStyle> styles() {
    std::vector<FigureStyle> all;
    for (const qreal width : {1.0, 3.0, 8.0}) {
        for (const FrontStage stage :
             {FrontStage::Forming, FrontStage::Established, FrontStage::Dissipating}) {
            all.push_back(
                {.width = width, .flipped = stage == FrontStage::Forming, .stage = stage});
        }
        all.push_back({.width = width, .upper = true, .fill = AreaFill::Shading});
    }
    return all;
}

QImage painted(const WeatherFigure& figure, QSize size = {340, 260}) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    figure.paint(painter);
    return image;
}

/// The smallest rectangle with all that is not transparent.
QRect inkedArea(const QImage& image) {
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

}  // namespace

TEST(WeatherFigures, TheTableIsInTheOrderOfTheKinds) {
    for (std::size_t i = 0; i < kindTable.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(kindTable[i].kind), i);
    }
    EXPECT_EQ(kindTable.back().kind, FigureKind::CurvedText);
}

TEST(WeatherFigures, OfEveryKindAreSeen) {
    for (const KindRow& row : kindTable) {
        EXPECT_FALSE(inkedArea(painted(example(row))).isEmpty()) << static_cast<int>(row.kind);
    }
}

TEST(WeatherFigures, StayInsideTheirBounds) {
    for (const KindRow& row : kindTable) {
        for (const FigureStyle& style : styles()) {
            const WeatherFigure figure = example(row, style);
            const QRect inked = inkedArea(painted(figure));
            EXPECT_TRUE(figure.boundingRect().contains(QRectF(inked)))
                << static_cast<int>(row.kind) << ", width " << style.width << ": " << inked.left()
                << ' ' << inked.top() << ' ' << inked.right() << ' ' << inked.bottom() << " beyond "
                << figure.boundingRect().left() << ' ' << figure.boundingRect().top() << ' '
                << figure.boundingRect().right() << ' ' << figure.boundingRect().bottom();
        }
    }
}

TEST(WeatherFigures, AreTheSamePixelsEachTime) {
    for (const KindRow& row : kindTable) {
        EXPECT_EQ(painted(example(row)), painted(example(row)));
    }
}

/// A map that is painted in parts, or moved, shows the same pixels.
TEST(WeatherFigures, MovedByWholePixelsAreTheSamePixelsThere) {
    for (const KindRow& row : kindTable) {
        if (row.family == FigureFamily::Area) {
            continue;  // the pattern belongs to the map
        }
        WeatherFigure figure = example(row);
        const QImage here = painted(figure);
        for (QPointF& point : figure.points) {
            point += QPointF(10, 20);
        }
        const QImage there = painted(figure).copy(10, 20, 320, 200);
        const QImage part = here.copy(0, 0, 320, 200);
        int different = 0;
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x) {
                // Rounding may tip one of 256 steps.
                different +=
                    std::abs(qAlpha(part.pixel(x, y)) - qAlpha(there.pixel(x, y))) > 2 ? 1 : 0;
            }
        }
        EXPECT_EQ(different, 0) << static_cast<int>(row.kind);
    }
}

TEST(WeatherFigures, PaintAsTheyAreWhateverThePainterWasSetTo) {
    const WeatherFigure figure = example(rowOf(FigureKind::StationaryFront));
    const QImage plain = painted(figure);
    QImage image(plain.size(), plain.format());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(Qt::green, 20));
    painter.setBrush(Qt::yellow);
    figure.paint(painter);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    painter.end();
    EXPECT_EQ(image, plain);
}

TEST(WeatherFigures, TakeTheColourOfTheirStyle) {
    const QColor own(12, 200, 34);
    for (const KindRow& row : kindTable) {
        bool seen = false;
        for (const Ink& ink : example(row, {.color = own}).drawing()) {
            const QColor& color = ink.fill.isValid() ? ink.fill : ink.line;
            seen = seen || color == own;
        }
        EXPECT_TRUE(seen) << static_cast<int>(row.kind);
    }
}

TEST(WeatherFigures, WithTooFewPointsAreNothing) {
    for (const KindRow& row : kindTable) {
        WeatherFigure figure = example(row);
        figure.points.resize(static_cast<std::size_t>(row.leastPoints) - 1);
        EXPECT_TRUE(figure.drawing().empty());
        EXPECT_TRUE(figure.boundingRect().isEmpty());
        figure.points.assign(10, QPointF(50, 50));
        EXPECT_TRUE(figure.drawing().empty());
    }
}

TEST(WeatherFigures, WithNumbersThatAreNoneStayWithinReason) {
    constexpr qreal nan = std::numeric_limits<qreal>::quiet_NaN();
    constexpr qreal infinite = std::numeric_limits<qreal>::infinity();
    for (const KindRow& row : kindTable) {
        for (const qreal number : {nan, infinite, -infinite, -5.0, 0.0, 1e300}) {
            FigureStyle style;
            style.width = number;
            style.opacity = number;
            style.knots = std::numeric_limits<int>::max();
            style.repeats = std::numeric_limits<int>::max();
            WeatherFigure figure = example(row, style);
            figure.style.knots = style.knots;
            figure.points.insert(figure.points.begin() + 1, {number, nan});
            EXPECT_LT(figure.drawing().size(), 2000U);
            painted(figure);
        }
    }
}

}  // namespace nubivane::weather::testing
