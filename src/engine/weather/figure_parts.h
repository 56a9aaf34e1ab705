// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/weather/curve.h"
#include "engine/weather/weather_figure.h"

/// The painters of the families of figures. The curve given to each is not empty; the style's
/// numbers are within their limits, and its colour is valid.
namespace nubivane::weather {

Drawing frontDrawing(FigureKind kind, const Curve& curve, const FigureStyle& style);
Drawing isolineDrawing(const Curve& curve, const FigureStyle& style);
Drawing areaDrawing(FigureKind kind, const Curve& curve, const FigureStyle& style);
/// Arrows and the jet.
Drawing arrowDrawing(FigureKind kind, const Curve& curve, const FigureStyle& style);
/// The wind at `place`, whose staff points to where it blows from.
Drawing windBarbDrawing(const QPointF& place, const QPointF& whence, const FigureStyle& style);
Drawing textDrawing(const Curve& curve, const FigureStyle& style);

/// The pips of a front, evenly spaced and wholly on the curve.
struct PipSpacing {
    qreal base = 0;                ///< along the curve, of each pip
    std::vector<qreal> middles{};  ///< distances along the curve
    qreal period = 0;              ///< from one middle to the next
};
PipSpacing pipSpacing(qreal length, qreal width, bool inPairs);

/// Size of letters beside lines of a width, both in pixels.
constexpr qreal letterSize(qreal width) {
    return 8 + 2 * width;
}

}  // namespace nubivane::weather
