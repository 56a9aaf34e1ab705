// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_kinds.h"
#include "engine/weather/figure_parts.h"

#include <algorithm>
#include <cmath>

namespace nubivane::weather {

namespace {

// Proportions in widths of the pen.
constexpr qreal HeadLength = 5;
constexpr qreal HeadReach = 2.25;  // to each side
constexpr qreal JetLine = 1.6;
constexpr qreal JetPeriod = 60;
constexpr qreal BarbHeight = 6;
constexpr qreal BarbLean = 2;  // of a barb's end towards where the wind comes from
constexpr qreal BarbLine = 0.6;
constexpr qreal LeastBarbLine = 1;  // pixels
constexpr qreal BarbStep = 2.2;
constexpr qreal PennantBase = 2.6;
constexpr qreal StaffLength = 15;
constexpr qreal CalmRadius = 2.5;
constexpr qreal PlaceRadius = 1.2;

/// A speed in the signs for 50, 10 and 5 knots, to the nearest 5.
struct Barbs {
    explicit Barbs(int knots)
        : pennants((knots + 2) / 5 / 10),
          longs((knots + 2) / 5 % 10 / 2),
          half((knots + 2) / 5 % 2) {}

    /// Along the staff, in widths of the pen.
    qreal length() const {
        return pennants * PennantBase + (pennants > 0 && longs + half > 0 ? BarbStep / 2 : 0) +
               std::max(0, longs + half - 1) * BarbStep;
    }
    bool onlyHalf() const { return pennants == 0 && longs == 0 && half == 1; }

    int pennants;
    int longs;
    int half;
};

/// The barbs of a speed on a staff along which the wind blows, from a distance on; on the left,
/// where pressure is low on the northern half of the earth.
Drawing barbsOn(const Curve& staff, qreal from, const Barbs& barbs, const FigureStyle& style) {
    const qreal width = style.width;
    const qreal side = style.flipped ? -1 : 1;
    const auto tip = [&](qreal distance, qreal height) {
        const Curve::Place place = staff.at(distance);
        return place.left(side * height * BarbHeight * width) -
               height * BarbLean * width * place.direction;
    };
    Drawing drawing;
    qreal distance = from;
    for (int i = 0; i < barbs.pennants; ++i) {
        QPainterPath pennant = staff.between(distance, distance + PennantBase * width);
        pennant.lineTo(tip(distance, 1));
        pennant.closeSubpath();
        drawing.push_back(filled(pennant, style.color));
        distance += PennantBase * width;
    }
    distance += barbs.pennants > 0 ? BarbStep * width / 2 : 0;
    // A half barb alone stands off the end, or it would be read as a whole one.
    distance += barbs.onlyHalf() ? BarbStep * width : 0;
    for (int i = 0; i < barbs.longs + barbs.half; ++i) {
        QPainterPath barb(staff.at(distance).point);
        barb.lineTo(tip(distance, i < barbs.longs ? 1 : 0.5));
        drawing.push_back(
            lineOf(barb, style.color, std::max(BarbLine * width, LeastBarbLine), Qt::RoundCap));
        distance += BarbStep * width;
    }
    return drawing;
}

/// A line that ends in a head, whose tip is the end of the curve.
Drawing arrow(const Curve& curve, qreal line, const FigureStyle& style) {
    const qreal length = std::min(HeadLength * std::max(line, style.width), curve.length());
    const qreal reach = HeadReach / HeadLength * length;
    const QPointF tip = curve.at(curve.length()).point;
    const QPointF base = curve.at(curve.length() - length).point;
    const qreal height = std::max<qreal>(std::hypot(tip.x() - base.x(), tip.y() - base.y()), 1e-6);
    const Curve::Place foot{base, (tip - base) / height};
    QPainterPath head(tip);
    head.lineTo(foot.left(reach));
    head.lineTo(foot.left(-reach));
    head.closeSubpath();
    Drawing drawing;
    if (length < curve.length()) {
        // The line reaches a little into the head, so that no seam shows.
        drawing.push_back(
            lineOf(curve.between(0, curve.length() - 0.8 * length), style.color, line));
    }
    drawing.push_back(filled(head, style.color));
    return drawing;
}

/// Barbs one group after the other along the jet, where there is room for a group and the head.
Drawing jetBarbs(const Curve& curve, const FigureStyle& style) {
    const Barbs barbs(style.knots);
    const qreal length = barbs.length() * style.width;
    const qreal room = curve.length() - HeadLength * JetLine * style.width;
    const auto groups =
        static_cast<int>(std::max(1.0, std::round(room / (JetPeriod * style.width))));
    const qreal period = room / groups;
    Drawing drawing;
    for (int i = 0; i < groups && length < period; ++i) {
        append(drawing, barbsOn(curve, (i + 0.5) * period - length / 2, barbs, style));
    }
    return drawing;
}

}  // namespace

Drawing arrowDrawing(FigureKind kind, const Curve& curve, const FigureStyle& style) {
    if (kind != FigureKind::Jet) {
        return arrow(curve, style.width, style);
    }
    Drawing drawing = arrow(curve, JetLine * style.width, style);
    append(drawing, jetBarbs(curve, style));
    return drawing;
}

Drawing windBarbDrawing(const QPointF& place, const QPointF& whence, const FigureStyle& style) {
    const Barbs barbs(style.knots);
    Drawing drawing;
    if (style.knots < 3) {
        QPainterPath calm;
        calm.addEllipse(place, CalmRadius * style.width, CalmRadius * style.width);
        drawing.push_back(lineOf(calm, style.color, style.width));
        return drawing;
    }
    const QPointF way = whence - place;
    const qreal length =
        std::max(StaffLength, barbs.length() + BarbStep + PlaceRadius) * style.width;
    const QPointF end = place + length / std::hypot(way.x(), way.y()) * way;
    const Curve staff({end, place}, Curve::Ends::Open);
    drawing.push_back(lineOf(staff.path(), style.color, style.width, Qt::RoundCap));
    drawing.push_back(dotOf(place, PlaceRadius * style.width, style.color));
    append(drawing, barbsOn(staff, 0, barbs, style));
    return drawing;
}

}  // namespace nubivane::weather
