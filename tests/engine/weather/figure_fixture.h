// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/weather/curve.h"
#include "engine/weather/figure_kinds.h"
#include "engine/weather/weather_figure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace nubivane::weather::testing {

inline qreal apart(const QPointF& a, const QPointF& b) {
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// A bend such as fronts have, from left to right.
inline std::vector<QPointF> bend() {
    return {{20, 90}, {80, 40}, {160, 30}, {240, 60}, {300, 120}};
}

/// Points on a circle, clockwise on the map.
inline std::vector<QPointF> ring(QPointF middle, qreal radius, int count = 12) {
    std::vector<QPointF> points;
    for (int i = 0; i < count; ++i) {
        const qreal angle = 2 * std::numbers::pi * i / count;
        points.push_back(middle + radius * QPointF(std::cos(angle), std::sin(angle)));
    }
    return points;
}

inline WeatherFigure levelLine(FigureKind kind, qreal length, FigureStyle style = {}) {
    return {kind, {{10, 100}, {10 + length, 100}}, style};
}

/// The filled parts, without lines.
inline std::vector<Ink> filledParts(const Drawing& drawing) {
    std::vector<Ink> parts;
    for (const Ink& ink : drawing) {
        if (ink.fill.isValid()) {
            parts.push_back(ink);
        }
    }
    return parts;
}

/// The lines, without what is filled.
inline std::vector<Ink> lines(const Drawing& drawing) {
    std::vector<Ink> parts;
    for (const Ink& ink : drawing) {
        if (ink.width > 0) {
            parts.push_back(ink);
        }
    }
    return parts;
}

}  // namespace nubivane::weather::testing
