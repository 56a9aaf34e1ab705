// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_kinds.h"
#include "engine/weather/figure_parts.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace nubivane::weather {

namespace {

// Proportions in widths of the pen.
constexpr qreal HatchDistance = 4;
constexpr qreal HatchLine = 0.5;
constexpr qreal SignSize = 3;
constexpr qreal SignDistance = 10;
constexpr qreal ScallopBase = 7;

constexpr qreal LeastHatchDistance = 5;  // pixels; closer lines are a grey
constexpr qreal LeastHatchLine = 1;
constexpr qreal LeastSignSize = 4;
/// Bounds what an area costs that is far larger than a map.
constexpr qreal MostLines = 500;
constexpr qreal MostSignsInARow = 150;
constexpr qsizetype MostCorners = 5000;  // of an outline that is looked at line by line

QColor faded(const QColor& color, qreal opacity) {
    QColor result = color;
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

/// A distance between lines or signs, so large that no more than `most` stand in a row.
qreal stepFor(qreal wanted, const QRectF& bounds, qreal most) {
    return std::max({wanted, bounds.width() / most, bounds.height() / most});
}

/// The outline of a curve. One that is many times as long as a map's edge loses corners that are
/// not seen.
QPolygonF outlineOf(const Curve& curve) {
    const QPolygonF whole = curve.outline();
    const qsizetype step = whole.size() / MostCorners + 1;
    QPolygonF outline;
    for (qsizetype i = 0; i < whole.size(); i += step) {
        outline << whole[i];
    }
    outline << whole.front();
    return outline;
}

/// A stretch of a level line.
struct Span {
    qreal from;
    qreal to;
};

/// Where a level line runs inside an outline.
std::vector<Span> spansAt(const QPolygonF& outline, qreal y) {
    std::vector<qreal> crossings;
    for (qsizetype i = 0; i + 1 < outline.size(); ++i) {
        const QPointF& a = outline[i];
        const QPointF& b = outline[i + 1];
        if ((a.y() <= y) != (b.y() <= y)) {
            crossings.push_back(a.x() + (y - a.y()) / (b.y() - a.y()) * (b.x() - a.x()));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    std::vector<Span> spans;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        spans.push_back({crossings[i], crossings[i + 1]});
    }
    return spans;
}

std::vector<Span> common(const std::vector<Span>& some, const std::vector<Span>& others) {
    std::vector<Span> both;
    for (const Span& a : some) {
        for (const Span& b : others) {
            const Span span{std::max(a.from, b.from), std::min(a.to, b.to)};
            if (span.from < span.to) {
                both.push_back(span);
            }
        }
    }
    return both;
}

/// Parallel lines within an outline, at multiples of a distance from the map's corner, so that the
/// hatchings of neighbours meet. `angle` is in degrees; with a positive one they rise to the right.
QPainterPath hatching(const QPolygonF& outline, qreal angle, qreal distance) {
    QTransform turn;
    turn.rotate(angle);  // the y axis points down: this turns the lines level
    const QPolygonF level = turn.map(outline);
    const QRectF bounds = level.boundingRect();
    const QTransform back = turn.inverted();
    QPainterPath lines;
    for (qreal n = std::ceil(bounds.top() / distance); n * distance < bounds.bottom(); ++n) {
        for (const Span& span : spansAt(level, n * distance)) {
            lines.moveTo(back.map(QPointF(span.from, n * distance)));
            lines.lineTo(back.map(QPointF(span.to, n * distance)));
        }
    }
    return lines;
}

/// The star of snow.
QPainterPath star(const QPointF& middle, qreal radius) {
    constexpr int Arms = 3;
    QPainterPath path;
    for (int i = 0; i < Arms; ++i) {
        const qreal angle = std::numbers::pi * (i + 0.5) / Arms;
        const QPointF arm = radius * QPointF(std::cos(angle), std::sin(angle));
        path.moveTo(middle - arm);
        path.lineTo(middle + arm);
    }
    return path;
}

/// The sign of thunder: a flash that ends in an arrow.
QPainterPath flash(const QPointF& middle, qreal radius) {
    const auto at = [&](qreal x, qreal y) { return middle + radius * QPointF(x, y); };
    QPainterPath path(at(-0.5, 1));
    path.lineTo(at(-0.5, -1));
    path.lineTo(at(0.5, -1));
    path.lineTo(at(-0.1, -0.1));
    path.lineTo(at(0.6, 0.9));
    path.moveTo(at(0.6, 0.25));
    path.lineTo(at(0.6, 0.9));
    path.lineTo(at(0, 0.75));
    return path;
}

/// Signs in rows, each row moved by half; those alone that lie inside as a whole, off the edge.
QPainterPath signs(const QPolygonF& outline, QPainterPath (*sign)(const QPointF&, qreal),
                   qreal radius, qreal distance) {
    constexpr std::array heights = {-1.0, -0.5, 0.5, 1.0};  // looked at, in reaches
    const qreal reach = 1.4 * radius;
    const QRectF bounds = outline.boundingRect();
    QPainterPath all;
    for (qreal row = std::ceil(bounds.top() / distance); row * distance < bounds.bottom(); ++row) {
        const qreal shift = std::fmod(std::abs(row), 2) * distance / 2;
        std::vector<Span> room = spansAt(outline, row * distance);
        for (const qreal height : heights) {
            room = common(room, spansAt(outline, row * distance + height * reach));
        }
        for (const Span& span : room) {
            for (qreal n = std::ceil((span.from + reach - shift) / distance);
                 n * distance + shift + reach <= span.to; ++n) {
                all.addPath(sign({n * distance + shift, row * distance}, radius));
            }
        }
    }
    return all;
}

/// What stands for the weather inside.
QPainterPath pattern(FigureKind kind, const Curve& curve, const FigureStyle& style) {
    const QPolygonF outline = outlineOf(curve);
    const QRectF bounds = outline.boundingRect();
    const qreal lines =
        stepFor(std::max(HatchDistance * style.width, LeastHatchDistance), bounds, MostLines);
    const qreal radius = std::max(SignSize * style.width / 2, LeastSignSize);
    const qreal distance =
        stepFor(std::max(SignDistance * style.width / 2, 3 * radius), bounds, MostSignsInARow);
    switch (kind) {
        case FigureKind::FogArea:
            return hatching(outline, 0, lines);
        case FigureKind::SnowArea:
            return signs(outline, star, radius, distance);
        case FigureKind::ThunderArea:
            return signs(outline, flash, radius, distance);
        case FigureKind::IceArea: {
            QPainterPath crossed = hatching(outline, 45, lines);
            crossed.addPath(hatching(outline, -45, lines));
            return crossed;
        }
        default:
            return hatching(outline, 45, lines);
    }
}

/// Arcs side by side along the outline, bulging outward, or inward where the style is flipped.
QPainterPath scallops(const Curve& curve, const FigureStyle& style) {
    constexpr int ArcSteps = 12;
    constexpr qreal Bulge = 0.75;  // of a half circle
    const int count =
        std::max(3, static_cast<int>(std::lround(curve.length() / (ScallopBase * style.width))));
    const qreal base = curve.length() / count;
    const qreal outward = (curve.turnsLeft() ? -1 : 1) * (style.flipped ? -1 : 1);
    QPainterPath path(curve.at(0).point);
    for (int i = 0; i < count; ++i) {
        for (int step = 1; step <= ArcSteps; ++step) {
            const qreal angle = std::numbers::pi * step / ArcSteps;
            path.lineTo(curve.at((i + 0.5) * base - base / 2 * std::cos(angle))
                            .left(outward * Bulge * base / 2 * std::sin(angle)));
        }
    }
    path.closeSubpath();
    return path;
}

AreaFill usualFill(FigureKind kind) {
    switch (kind) {
        case FigureKind::YellowWarning:
        case FigureKind::OrangeWarning:
        case FigureKind::RedWarning:
            return AreaFill::Shading;
        case FigureKind::Cloud:
            return AreaFill::None;
        default:
            return AreaFill::Hatching;
    }
}

}  // namespace

Drawing areaDrawing(FigureKind kind, const Curve& curve, const FigureStyle& style) {
    const QPainterPath edge = kind == FigureKind::Cloud ? scallops(curve, style) : curve.path();
    const AreaFill fill = style.fill == AreaFill::Usual ? usualFill(kind) : style.fill;
    const QColor inside = faded(style.color, style.opacity);
    Drawing drawing;
    if (fill == AreaFill::Shading) {
        drawing.push_back(filled(edge, inside));
    } else if (fill == AreaFill::Hatching) {
        drawing.push_back(lineOf(pattern(kind, curve, style), inside,
                                 std::max(HatchLine * style.width, LeastHatchLine), Qt::RoundCap));
    }
    drawing.push_back(lineOf(edge, style.color, style.width));
    return drawing;
}

}  // namespace nubivane::weather
