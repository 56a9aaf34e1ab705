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
    {Tool::cursor, "cursor", "Select and move symbols", "", ""},
    {Tool::draw, "draw", "Draw by hand", QT_TRANSLATE_NOOP("Edits", "Draw"),
     "Draw with the button held. Esc: back to the cursor."},
    {Tool::erase, "erase", "Erase what is drawn", QT_TRANSLATE_NOOP("Edits", "Erase"),
     "Erase with the button held. Esc: back to the cursor."},
    {Tool::color, "color", "Pick a color from the map", "",
     "Click a color of the map. Esc: back to the cursor."},
    {Tool::line, "line", "Line", QT_TRANSLATE_NOOP("Edits", "Draw line"),
     "Click both ends of the line, then Apply. Esc: back to the cursor."},
    {Tool::curvy, "curvy", "Curve", QT_TRANSLATE_NOOP("Edits", "Draw curve"),
     "Click the points of the curve, then Apply. Esc: back to the cursor."},
    {Tool::circle, "circle", "Circle", QT_TRANSLATE_NOOP("Edits", "Draw circle"),
     "Click the middle and the rim, then Apply. Esc: back to the cursor."},
    {Tool::poly, "poly", "Open polygon", QT_TRANSLATE_NOOP("Edits", "Draw polygon"),
     "Click the corners, then Apply. Esc: back to the cursor."},
}};

}  // namespace nubivane
