// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_kinds.h"
#include "engine/weather/figure_parts.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace nubivane::weather {

namespace {

// Proportions in widths of the pen.
constexpr qreal PipBase = 5;
constexpr qreal PipPeriod = 3 * PipBase;
constexpr qreal HollowLine = 0.6;
constexpr qreal DashLength = 6;
constexpr qreal DashGap = 4;
constexpr qreal GapWithDots = 8;
constexpr qreal DotRadius = 0.8;
constexpr qreal BarReach = 2.5;  // of the bar across a dissolving front, to each side

/// An equilateral triangle.
constexpr qreal TriangleHeight = std::numbers::sqrt3 / 2;
/// Pips that nearly touch are no row of pips any more.
constexpr qreal LeastPeriod = 1.1;
/// How much of its period the line around a pip takes where a front forms or dissolves.
constexpr qreal PieceOfPeriod = 0.68;

enum class Pip { Triangle, SemiCircle };

/// One pip of a front, and the colour of the line around it.
struct Member {
    Pip pip;
    qreal side;  ///< 1 is the left
    QColor color;
};

/// The pips bend with the curve: each point stands at its distance on the curve, raised to the
/// side.
QPainterPath pipPath(const Curve& curve, const Member& member, qreal middle, qreal base) {
    constexpr int ArcSteps = 24;
    const qreal half = base / 2;
    QPainterPath path = curve.between(middle - half, middle + half);
    if (member.pip == Pip::Triangle) {
        path.lineTo(curve.at(middle).left(member.side * base * TriangleHeight));
    } else {
        for (int i = 1; i < ArcSteps; ++i) {
            const qreal angle = std::numbers::pi * i / ArcSteps;
            path.lineTo(curve.at(middle + half * std::cos(angle))
                            .left(member.side * half * std::sin(angle)));
        }
    }
    path.closeSubpath();
    return path;
}

/// Which pip stands at each place.
Member memberOf(FigureKind kind, std::size_t place, const FigureStyle& style) {
    const qreal side = style.flipped ? -1 : 1;
    const bool odd = place % 2 == 1;
    switch (kind) {
        case FigureKind::WarmFront:
            return {Pip::SemiCircle, side, style.color};
        case FigureKind::OccludedFront:
            return {odd ? Pip::SemiCircle : Pip::Triangle, side, style.color};
        case FigureKind::StationaryFront:
            return odd ? Member{Pip::SemiCircle, -side, QColor(WarmRed)}
                       : Member{Pip::Triangle, side, style.color};
        default:
            return {Pip::Triangle, side, style.color};
    }
}

/// What stands in the gaps of a front that forms, or dissolves.
Ink gapMark(const Curve& curve, qreal distance, const FigureStyle& style, const QColor& color) {
    const Curve::Place place = curve.at(distance);
    if (style.stage == FrontStage::Forming) {
        return dotOf(place.point, DotRadius * style.width, color);
    }
    QPainterPath bar(place.left(BarReach * style.width));
    bar.lineTo(place.left(-BarReach * style.width));
    return lineOf(bar, color, style.width);
}

/// The line of a front whose pips or stage part it.
Drawing pieces(const Curve& curve, const PipSpacing& spacing, FigureKind kind,
               const FigureStyle& style) {
    const bool whole = style.stage == FrontStage::Established;
    // Pieces that join overlap, so that no seam of half-covered pixels shows.
    constexpr qreal Overlap = 0.5;
    const qreal half = whole ? spacing.period / 2 + Overlap : spacing.period * PieceOfPeriod / 2;
    Drawing drawing;
    for (std::size_t i = 0; i < spacing.middles.size(); ++i) {
        const QColor color = memberOf(kind, i, style).color;
        const bool last = i + 1 == spacing.middles.size();
        const qreal from = i == 0 ? 0 : spacing.middles[i] - half;
        const qreal to = last ? curve.length() : spacing.middles[i] + half;
        drawing.push_back(lineOf(curve.between(from, to), color, style.width));
        if (!whole && !last) {
            drawing.push_back(
                gapMark(curve, spacing.middles[i] + spacing.period / 2, style, color));
        }
    }
    return drawing;
}

Drawing pips(const Curve& curve, const PipSpacing& spacing, FigureKind kind,
             const FigureStyle& style) {
    Drawing drawing;
    for (std::size_t i = 0; i < spacing.middles.size(); ++i) {
        const Member member = memberOf(kind, i, style);
        const QPainterPath path = pipPath(curve, member, spacing.middles[i], spacing.base);
        drawing.push_back(style.upper ? lineOf(path, member.color, HollowLine * style.width)
                                      : filled(path, member.color));
    }
    return drawing;
}

/// Dashes that begin and end the line, with two dots in each gap of a squall line.
Drawing dashes(const Curve& curve, FigureKind kind, const FigureStyle& style) {
    const bool dotted = kind == FigureKind::SquallLine;
    const qreal dash = DashLength * style.width;
    const qreal gap = (dotted ? GapWithDots : DashGap) * style.width;
    const int gaps =
        std::max(0, static_cast<int>(std::lround((curve.length() - dash) / (dash + gap))));
    // Dash and gap are stretched alike, so that a dash stands at either end.
    const qreal stretch = curve.length() / (dash + gaps * (dash + gap));
    const qreal period = stretch * (dash + gap);
    Drawing drawing;
    for (int i = 0; i <= gaps; ++i) {
        const qreal from = i * period;
        const qreal to = from + stretch * dash;
        drawing.push_back(lineOf(curve.between(from, to), style.color, style.width));
        for (int dot = 1; dotted && i < gaps && dot <= 2; ++dot) {
            drawing.push_back(dotOf(curve.at(to + dot * stretch * gap / 3).point,
                                    DotRadius * style.width, style.color));
        }
    }
    return drawing;
}

}  // namespace

PipSpacing pipSpacing(qreal length, qreal width, bool inPairs) {
    const qreal base = PipBase * width;
    const int group = inPairs ? 2 : 1;
    const qreal groups = std::max(1.0, std::round(length / (group * PipPeriod * width)));
    const auto count = static_cast<int>(groups) * group;
    const qreal period = length / count;
    if (period < LeastPeriod * base) {
        return {base, {}, 0};
    }
    PipSpacing spacing{base, {}, period};
    for (int i = 0; i < count; ++i) {
        spacing.middles.push_back((i + 0.5) * period);
    }
    return spacing;
}

Drawing frontDrawing(FigureKind kind, const Curve& curve, const FigureStyle& style) {
    if (kind == FigureKind::SquallLine || kind == FigureKind::Trough) {
        return dashes(curve, kind, style);
    }
    const bool mixed = kind == FigureKind::OccludedFront || kind == FigureKind::StationaryFront;
    const PipSpacing spacing = pipSpacing(curve.length(), style.width, mixed);
    const bool oneLine =
        style.stage == FrontStage::Established && kind != FigureKind::StationaryFront;
    Drawing drawing = oneLine || spacing.middles.empty()
                          ? Drawing{lineOf(curve.path(), style.color, style.width)}
                          : pieces(curve, spacing, kind, style);
    append(drawing, pips(curve, spacing, kind, style));
    return drawing;
}

}  // namespace nubivane::weather
