// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/weather/weather_figure.h"

#include <array>

namespace nubivane::weather {

/// Which painter draws a kind, and so which parts of the style count.
enum class FigureFamily { Front, Isoline, Area, Arrow, WindBarb, Text };

/// What is fixed about a kind.
struct KindRow {
    FigureKind kind;
    const char* name;  ///< in files and for programs
    FigureFamily family;
    int leastPoints;
    int mostPoints;
    bool closed;
    QRgb color;
};

/// More points than anybody clicks for one figure.
inline constexpr int MostFigurePoints = 100;

inline constexpr QRgb ColdBlue = 0xff0000ff;
inline constexpr QRgb WarmRed = 0xffff0000;

/// In the order of `FigureKind`.
inline constexpr std::array<KindRow, 22> kindTable = {{
    {FigureKind::ColdFront, "cold-front", FigureFamily::Front, 2, MostFigurePoints, false,
     ColdBlue},
    {FigureKind::WarmFront, "warm-front", FigureFamily::Front, 2, MostFigurePoints, false, WarmRed},
    {FigureKind::OccludedFront, "occluded-front", FigureFamily::Front, 2, MostFigurePoints, false,
     0xffa000c8},
    {FigureKind::StationaryFront, "stationary-front", FigureFamily::Front, 2, MostFigurePoints,
     false, ColdBlue},
    {FigureKind::SquallLine, "squall-line", FigureFamily::Front, 2, MostFigurePoints, false,
     WarmRed},
    {FigureKind::Trough, "trough", FigureFamily::Front, 2, MostFigurePoints, false, 0xff8b4a12},
    {FigureKind::Isoline, "isoline", FigureFamily::Isoline, 2, MostFigurePoints, false, 0xff202020},
    {FigureKind::ClosedIsoline, "closed-isoline", FigureFamily::Isoline, 3, MostFigurePoints, true,
     0xff202020},
    {FigureKind::RainArea, "rain-area", FigureFamily::Area, 3, MostFigurePoints, true, 0xff00913a},
    {FigureKind::FogArea, "fog-area", FigureFamily::Area, 3, MostFigurePoints, true, 0xffb89600},
    {FigureKind::SnowArea, "snow-area", FigureFamily::Area, 3, MostFigurePoints, true, 0xff2e86d9},
    {FigureKind::ThunderArea, "thunder-area", FigureFamily::Area, 3, MostFigurePoints, true,
     0xffd42020},
    {FigureKind::IceArea, "ice-area", FigureFamily::Area, 3, MostFigurePoints, true, 0xffb01fae},
    {FigureKind::YellowWarning, "yellow-warning", FigureFamily::Area, 3, MostFigurePoints, true,
     0xffffde00},
    {FigureKind::OrangeWarning, "orange-warning", FigureFamily::Area, 3, MostFigurePoints, true,
     0xffff8c00},
    {FigureKind::RedWarning, "red-warning", FigureFamily::Area, 3, MostFigurePoints, true,
     0xffe00000},
    {FigureKind::Cloud, "cloud", FigureFamily::Area, 3, MostFigurePoints, true, 0xff50606e},
    {FigureKind::Arrow, "arrow", FigureFamily::Arrow, 2, 2, false, 0xff202020},
    {FigureKind::CurvedArrow, "curved-arrow", FigureFamily::Arrow, 2, MostFigurePoints, false,
     0xff202020},
    {FigureKind::Jet, "jet", FigureFamily::Arrow, 2, MostFigurePoints, false, 0xff7a1f8a},
    {FigureKind::WindBarb, "wind-barb", FigureFamily::WindBarb, 2, 2, false, 0xff202020},
    {FigureKind::CurvedText, "text-on-a-curve", FigureFamily::Text, 2, MostFigurePoints, false,
     0xff202020},
}};

constexpr const KindRow& rowOf(FigureKind kind) {
    return kindTable[static_cast<std::size_t>(kind)];
}

}  // namespace nubivane::weather
