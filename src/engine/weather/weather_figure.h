// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/weather/drawing.h"

#include <QPointF>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane::weather {

/// What forecasters draw. Colours and signs follow the WMO's manual No. 485 and, where that leaves
/// it open, the charts of NOAA.
enum class FigureKind {
    ColdFront,
    WarmFront,
    OccludedFront,
    StationaryFront,
    SquallLine,
    Trough,
    Isoline,  ///< open
    ClosedIsoline,
    RainArea,
    FogArea,
    SnowArea,
    ThunderArea,
    IceArea,
    YellowWarning,
    OrangeWarning,
    RedWarning,
    Cloud,
    Arrow,  ///< straight
    CurvedArrow,
    Jet,
    WindBarb,  ///< at its first point; the second one tells whence the wind blows
    CurvedText,
};

/// How far a front is: it forms, stands, or dissolves (frontogenesis, frontolysis).
enum class FrontStage { Forming, Established, Dissipating };

/// How an area shows what is inside; the usual way is hatching, or the kind's sign over and over,
/// for weather, shading for warnings and nothing for clouds.
enum class AreaFill { Usual, Hatching, Shading, None };

/// Everything about a figure but its points. Each kind looks at what concerns it.
struct FigureStyle {
    qreal width = 3;       ///< of the pen, in pixels; pips, barbs and letters grow with it
    QColor color{};        ///< in place of the kind's own
    bool flipped = false;  ///< pips, barbs, scallops and letters on the other side
    bool upper = false;    ///< the front lies aloft: hollow pips
    FrontStage stage = FrontStage::Established;
    AreaFill fill = AreaFill::Usual;
    qreal opacity = 0.35;  ///< of shading and hatching, 0 to 1
    QString text{};        ///< an isoline's value, or the letters along a curve
    int repeats = 1;       ///< how often the value is set into the line, as far as there is room
    int knots = 0;         ///< speed of the wind

    bool operator==(const FigureStyle&) const = default;
};

/// A wind that most people have seen drawn: two long barbs and a short one.
inline constexpr int UsualKnots = 25;

/// A figure on the map, made from the points that somebody clicked.
struct WeatherFigure {
    FigureKind kind;
    std::vector<QPointF> points;  ///< pixels of the map
    FigureStyle style{};

    /// The paths of the figure; none where points are missing. The same figure is always the same
    /// drawing; letters depend on the fonts that are installed.
    Drawing drawing() const;

    void paint(QPainter& painter) const { weather::paint(painter, drawing()); }
    /// The pixels that `paint` may touch, whole ones.
    QRectF boundingRect() const { return boundsOf(drawing()); }

    /// Before which of the points a new one at a place of the curve belongs, from 1 to their
    /// number; nothing farther from the curve than `reach`, or where the kind takes no more points.
    std::optional<int> pointBehind(const QPointF& place, qreal reach) const;
    /// The place on the curve halfway between a point and the next one, which on a closed curve
    /// follows the last one too.
    QPointF halfway(int point) const;
};

}  // namespace nubivane::weather
