// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/status.h"
#include "engine/weather/figure_kinds.h"

#include <QCoreApplication>

#include <array>
#include <vector>

namespace nubivane {

/// What people call a kind of figure.
struct FigureRow {
    weather::FigureKind kind;
    const char* name;
    const char* edit;  ///< drawing it, in the list of edits
    const char* editAgain;
};

/// In the order of `weather::FigureKind`, which is also that of the fly-outs.
inline constexpr std::array<FigureRow, weather::kindTable.size()> figureTable = {{
    {weather::FigureKind::ColdFront, QT_TRANSLATE_NOOP("nubivane::Figures", "Cold front"),
     QT_TRANSLATE_NOOP("Edits", "Draw cold front"),
     QT_TRANSLATE_NOOP("Edits", "Change cold front")},
    {weather::FigureKind::WarmFront, QT_TRANSLATE_NOOP("nubivane::Figures", "Warm front"),
     QT_TRANSLATE_NOOP("Edits", "Draw warm front"),
     QT_TRANSLATE_NOOP("Edits", "Change warm front")},
    {weather::FigureKind::OccludedFront, QT_TRANSLATE_NOOP("nubivane::Figures", "Occluded front"),
     QT_TRANSLATE_NOOP("Edits", "Draw occluded front"),
     QT_TRANSLATE_NOOP("Edits", "Change occluded front")},
    {weather::FigureKind::StationaryFront,
     QT_TRANSLATE_NOOP("nubivane::Figures", "Stationary front"),
     QT_TRANSLATE_NOOP("Edits", "Draw stationary front"),
     QT_TRANSLATE_NOOP("Edits", "Change stationary front")},
    {weather::FigureKind::SquallLine, QT_TRANSLATE_NOOP("nubivane::Figures", "Squall line"),
     QT_TRANSLATE_NOOP("Edits", "Draw squall line"),
     QT_TRANSLATE_NOOP("Edits", "Change squall line")},
    {weather::FigureKind::Trough, QT_TRANSLATE_NOOP("nubivane::Figures", "Trough"),
     QT_TRANSLATE_NOOP("Edits", "Draw trough"), QT_TRANSLATE_NOOP("Edits", "Change trough")},
    {weather::FigureKind::Isoline, QT_TRANSLATE_NOOP("nubivane::Figures", "Open isoline"),
     QT_TRANSLATE_NOOP("Edits", "Draw isoline"), QT_TRANSLATE_NOOP("Edits", "Change isoline")},
    {weather::FigureKind::ClosedIsoline, QT_TRANSLATE_NOOP("nubivane::Figures", "Closed isoline"),
     QT_TRANSLATE_NOOP("Edits", "Draw closed isoline"),
     QT_TRANSLATE_NOOP("Edits", "Change closed isoline")},
    {weather::FigureKind::RainArea, QT_TRANSLATE_NOOP("nubivane::Figures", "Rain"),
     QT_TRANSLATE_NOOP("Edits", "Draw area of rain"),
     QT_TRANSLATE_NOOP("Edits", "Change area of rain")},
    {weather::FigureKind::FogArea, QT_TRANSLATE_NOOP("nubivane::Figures", "Fog"),
     QT_TRANSLATE_NOOP("Edits", "Draw area of fog"),
     QT_TRANSLATE_NOOP("Edits", "Change area of fog")},
    {weather::FigureKind::SnowArea, QT_TRANSLATE_NOOP("nubivane::Figures", "Snow"),
     QT_TRANSLATE_NOOP("Edits", "Draw area of snow"),
     QT_TRANSLATE_NOOP("Edits", "Change area of snow")},
    {weather::FigureKind::ThunderArea, QT_TRANSLATE_NOOP("nubivane::Figures", "Thunder"),
     QT_TRANSLATE_NOOP("Edits", "Draw area of thunder"),
     QT_TRANSLATE_NOOP("Edits", "Change area of thunder")},
    {weather::FigureKind::IceArea, QT_TRANSLATE_NOOP("nubivane::Figures", "Ice"),
     QT_TRANSLATE_NOOP("Edits", "Draw area of ice"),
     QT_TRANSLATE_NOOP("Edits", "Change area of ice")},
    {weather::FigureKind::YellowWarning, QT_TRANSLATE_NOOP("nubivane::Figures", "Yellow warning"),
     QT_TRANSLATE_NOOP("Edits", "Draw yellow warning"),
     QT_TRANSLATE_NOOP("Edits", "Change yellow warning")},
    {weather::FigureKind::OrangeWarning, QT_TRANSLATE_NOOP("nubivane::Figures", "Orange warning"),
     QT_TRANSLATE_NOOP("Edits", "Draw orange warning"),
     QT_TRANSLATE_NOOP("Edits", "Change orange warning")},
    {weather::FigureKind::RedWarning, QT_TRANSLATE_NOOP("nubivane::Figures", "Red warning"),
     QT_TRANSLATE_NOOP("Edits", "Draw red warning"),
     QT_TRANSLATE_NOOP("Edits", "Change red warning")},
    {weather::FigureKind::Cloud, QT_TRANSLATE_NOOP("nubivane::Figures", "Cloud edge"),
     QT_TRANSLATE_NOOP("Edits", "Draw cloud edge"),
     QT_TRANSLATE_NOOP("Edits", "Change cloud edge")},
    {weather::FigureKind::Arrow, QT_TRANSLATE_NOOP("nubivane::Figures", "Straight arrow"),
     QT_TRANSLATE_NOOP("Edits", "Draw arrow"), QT_TRANSLATE_NOOP("Edits", "Change arrow")},
    {weather::FigureKind::CurvedArrow, QT_TRANSLATE_NOOP("nubivane::Figures", "Curved arrow"),
     QT_TRANSLATE_NOOP("Edits", "Draw curved arrow"),
     QT_TRANSLATE_NOOP("Edits", "Change curved arrow")},
    {weather::FigureKind::Jet, QT_TRANSLATE_NOOP("nubivane::Figures", "Jet stream"),
     QT_TRANSLATE_NOOP("Edits", "Draw jet stream"),
     QT_TRANSLATE_NOOP("Edits", "Change jet stream")},
    {weather::FigureKind::WindBarb, QT_TRANSLATE_NOOP("nubivane::Figures", "Wind barb"),
     QT_TRANSLATE_NOOP("Edits", "Draw wind barb"), QT_TRANSLATE_NOOP("Edits", "Change wind barb")},
    {weather::FigureKind::CurvedText, QT_TRANSLATE_NOOP("nubivane::Figures", "Text along a curve"),
     QT_TRANSLATE_NOOP("Edits", "Draw text"), QT_TRANSLATE_NOOP("Edits", "Change text")},
}};

constexpr const FigureRow& figureRow(weather::FigureKind kind) {
    return figureTable[static_cast<std::size_t>(kind)];
}

inline QString nameOf(weather::FigureKind kind) {
    return QCoreApplication::translate("nubivane::Figures", figureRow(kind).name);
}

/// The tool that draws a kind.
constexpr Tool toolOf(weather::FigureKind kind) {
    switch (weather::rowOf(kind).family) {
        case weather::FigureFamily::Front:
            return Tool::front;
        case weather::FigureFamily::Isoline:
            return Tool::isoline;
        case weather::FigureFamily::Area:
            return Tool::area;
        case weather::FigureFamily::Arrow:
        case weather::FigureFamily::WindBarb:
            return Tool::arrow;
        case weather::FigureFamily::Text:
            return Tool::text;
    }
    return Tool::cursor;
}

/// What a tool can draw, in the order of its fly-out; nothing for the tools without one.
inline std::vector<weather::FigureKind> kindsOf(Tool tool) {
    std::vector<weather::FigureKind> kinds;
    for (const FigureRow& row : figureTable) {
        if (toolOf(row.kind) == tool) {
            kinds.push_back(row.kind);
        }
    }
    return kinds;
}

}  // namespace nubivane
