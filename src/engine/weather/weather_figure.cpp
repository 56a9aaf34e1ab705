// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/weather_figure.h"

#include "engine/weather/figure_kinds.h"
#include "engine/weather/figure_parts.h"

#include <algorithm>
#include <cmath>

namespace nubivane::weather {

namespace {

constexpr qreal ThinnestPen = 0.5;
constexpr qreal WidestPen = 100;
constexpr int MostKnots = 995;

/// The number, or the default where it is none.
qreal within(qreal number, qreal least, qreal most, qreal otherwise) {
    return std::isfinite(number) ? std::clamp(number, least, most) : otherwise;
}

/// The style within its limits, with a colour.
FigureStyle usable(FigureStyle style, const KindRow& row) {
    const FigureStyle standard;
    style.width = within(style.width, ThinnestPen, WidestPen, standard.width);
    style.opacity = within(style.opacity, 0, 1, standard.opacity);
    style.knots = std::clamp(style.knots, 0, MostKnots);
    if (!style.color.isValid()) {
        style.color = QColor::fromRgb(row.color);
    }
    return style;
}

/// Letters that stand on a curve run from left to right, however it was drawn.
std::vector<QPointF> legible(std::vector<QPointF> points) {
    if (points.back().x() < points.front().x()) {
        std::reverse(points.begin(), points.end());
    }
    return points;
}

Curve curveThrough(const std::vector<QPointF>& points, const KindRow& row) {
    return {points, row.closed ? Curve::Ends::Closed : Curve::Ends::Open};
}

/// Where the curve passes each of its points; a closed one passes the first also at its end.
std::vector<qreal> distancesOf(const Curve& curve, const std::vector<QPointF>& points) {
    std::vector<qreal> distances{0};
    for (std::size_t i = 1; i < points.size(); ++i) {
        distances.push_back(curve.nearest(points[i], distances.back()));
    }
    return distances;
}

}  // namespace

std::optional<int> WeatherFigure::pointBehind(const QPointF& place, qreal reach) const {
    const KindRow& row = rowOf(kind);
    if (static_cast<int>(points.size()) >= row.mostPoints) {
        return std::nullopt;
    }
    const Curve curve = curveThrough(points, row);
    if (curve.isEmpty()) {
        return std::nullopt;
    }
    const qreal distance = curve.nearest(place);
    const QPointF way = curve.at(distance).point - place;
    if (!(std::hypot(way.x(), way.y()) <= reach)) {
        return std::nullopt;
    }
    const std::vector<qreal> passed = distancesOf(curve, points);
    const auto next = std::upper_bound(passed.begin() + 1, passed.end(), distance);
    if (next == passed.end() && !row.closed) {
        return std::nullopt;  // at the end of the line a point goes on
    }
    return static_cast<int>(next - passed.begin());
}

QPointF WeatherFigure::halfway(int point) const {
    const KindRow& row = rowOf(kind);
    const Curve curve = curveThrough(points, row);
    const auto index = static_cast<std::size_t>(point);
    if (curve.isEmpty()) {
        return points[index];
    }
    const std::vector<qreal> passed = distancesOf(curve, points);
    const qreal next = index + 1 < passed.size() ? passed[index + 1] : curve.length();
    return curve.at((passed[index] + next) / 2).point;
}

Drawing WeatherFigure::drawing() const {
    const KindRow& row = rowOf(kind);
    const auto count = static_cast<int>(points.size());
    if (count < row.leastPoints) {
        return {};
    }
    std::vector<QPointF> used(points.begin(), points.begin() + std::min(count, row.mostPoints));
    if (row.family == FigureFamily::Text) {
        used = legible(std::move(used));
    }
    const Curve curve = curveThrough(used, row);
    if (curve.isEmpty() || (row.closed && !curve.isClosed())) {
        return {};
    }
    const FigureStyle inked = usable(style, row);
    switch (row.family) {
        case FigureFamily::Front:
            return frontDrawing(kind, curve, inked);
        case FigureFamily::Isoline:
            return isolineDrawing(curve, inked);
        case FigureFamily::Area:
            return areaDrawing(kind, curve, inked);
        case FigureFamily::Arrow:
            return arrowDrawing(kind, curve, inked);
        case FigureFamily::WindBarb:
            return windBarbDrawing(used.front(), used.back(), inked);
        case FigureFamily::Text:
            return textDrawing(curve, inked);
    }
    return {};
}

}  // namespace nubivane::weather
