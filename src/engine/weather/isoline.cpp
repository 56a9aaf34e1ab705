// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_parts.h"
#include "engine/weather/letters.h"

#include <algorithm>

namespace nubivane::weather {

namespace {

constexpr int MostValues = 50;
/// Room on both sides of a value, in sizes of its letters.
constexpr qreal Margin = 0.35;
/// The line takes at least this share of a line with values.
constexpr qreal LineShare = 0.5;

/// So that no value stands upside down.
QPointF upright(const QPointF& direction) {
    return direction.x() < 0 ? -direction : direction;
}

}  // namespace

Drawing isolineDrawing(const Curve& curve, const FigureStyle& style) {
    const qreal size = letterSize(style.width);
    const Letters value(style.text, size);
    const qreal gap = value.width() + 2 * Margin * size;
    const auto room =
        static_cast<int>(std::min<qreal>(MostValues, curve.length() * LineShare / gap));
    const int values = value.width() > 0 ? std::clamp(style.repeats, 0, room) : 0;
    if (values == 0) {
        return {lineOf(curve.path(), style.color, style.width)};
    }
    Drawing drawing;
    const qreal period = curve.length() / values;
    for (int i = 0; i < values; ++i) {
        const qreal middle = (i + 0.5) * period;
        const Curve::Place place = curve.at(middle);
        drawing.push_back(filled(value.around(place.point, upright(place.direction)), style.color));
        // On a closed curve the line goes on through its start, on an open one it ends there.
        if (curve.isClosed() || i + 1 < values) {
            drawing.push_back(lineOf(curve.between(middle + gap / 2, middle + period - gap / 2),
                                     style.color, style.width));
        }
    }
    if (!curve.isClosed()) {
        const qreal toValue = (period - gap) / 2;
        drawing.push_back(lineOf(curve.between(0, toValue), style.color, style.width));
        drawing.push_back(lineOf(curve.between(curve.length() - toValue, curve.length()),
                                 style.color, style.width));
    }
    return drawing;
}

Drawing textDrawing(const Curve& curve, const FigureStyle& style) {
    constexpr qreal Gap = 0.25;  // between the curve and the letters, in sizes of the letters
    const qreal size = letterSize(style.width);
    const Letters letters(style.text, size);
    const qreal raised = style.flipped ? -letters.capHeight() - Gap * size : Gap * size;
    // Spaced along the line on which they stand: within a bend that one is shorter.
    const Curve base = curve.parallel(raised);
    const bool none = base.isEmpty() || letters.width() <= 0;
    return none ? Drawing{} : Drawing{filled(letters.along(base), style.color)};
}

}  // namespace nubivane::weather
