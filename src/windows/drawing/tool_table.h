// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/status.h"

#include <QCoreApplication>

#include <array>

namespace nubivane {

/// A button of the strip `pctTlbDraw`.
struct ToolRow {
    Tool tool;
    const char* name;  ///< of its icon
    const char* hint;
    const char* edit;  ///< what it does, in the list of edits
    const char* use;   ///< what to do with it, and how to leave it
};

/// In the order of `btnDraw`.
inline constexpr std::array<ToolRow, 8> toolTable = {{
    {Tool::cursor, "cursor", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Select and move symbols"),
     "", ""},
    {Tool::draw, "draw", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Draw by hand"),
     QT_TRANSLATE_NOOP("Edits", "Draw"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Draw with the button held. Esc: back to the cursor.")},
    {Tool::erase, "erase", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Erase what is drawn"),
     QT_TRANSLATE_NOOP("Edits", "Erase"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Erase with the button held. Esc: back to the cursor.")},
    {Tool::color, "color", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Pick a color from the map"),
     "",
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click a color of the map. Esc: back to the cursor.")},
    {Tool::line, "line", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Line"),
     QT_TRANSLATE_NOOP("Edits", "Draw line"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click both ends of the line, then Apply. Esc: back to the cursor.")},
    {Tool::curvy, "curvy", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Curve"),
     QT_TRANSLATE_NOOP("Edits", "Draw curve"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the points of the curve, then Apply. Esc: back to the cursor.")},
    {Tool::circle, "circle", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Circle"),
     QT_TRANSLATE_NOOP("Edits", "Draw circle"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the middle and the rim, then Apply. Esc: back to the cursor.")},
    {Tool::poly, "poly", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Open polygon"),
     QT_TRANSLATE_NOOP("Edits", "Draw polygon"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the corners, then Apply. Esc: back to the cursor.")},
}};

}  // namespace nubivane
