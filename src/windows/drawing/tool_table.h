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
    Qt::Key key;       ///< takes it in hand, wherever no field takes letters
    int usualWidth;    ///< of its pen, until somebody asks for another one; pixels
};

/// In the order of `btnDraw`.
inline constexpr std::array<ToolRow, 13> toolTable = {{
    {Tool::cursor, "cursor", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Select and move symbols"),
     "", "", Qt::Key_S, 1},
    {Tool::draw, "draw", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Draw by hand"),
     QT_TRANSLATE_NOOP("Edits", "Draw"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Draw with the button held. Esc: back to the cursor."),
     Qt::Key_D, 1},
    {Tool::erase, "erase", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Erase what is drawn"),
     QT_TRANSLATE_NOOP("Edits", "Erase"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Erase with the button held. Esc: back to the cursor."),
     Qt::Key_E, 1},
    {Tool::color, "color", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Pick a color from the map"),
     "",
     QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Click a color of the map. Esc: back to the cursor."),
     Qt::Key_C, 1},
    {Tool::line, "line", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Line"),
     QT_TRANSLATE_NOOP("Edits", "Draw line"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click both ends of the line, then Apply. Esc: back to the cursor."),
     Qt::Key_L, 1},
    {Tool::curvy, "curvy", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Curve"),
     QT_TRANSLATE_NOOP("Edits", "Draw curve"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the points of the curve, then Apply. Esc: back to the cursor."),
     Qt::Key_U, 1},
    {Tool::circle, "circle", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Circle"),
     QT_TRANSLATE_NOOP("Edits", "Draw circle"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the middle and the rim, then Apply. Esc: back to the cursor."),
     Qt::Key_O, 1},
    {Tool::poly, "poly", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Open polygon"),
     QT_TRANSLATE_NOOP("Edits", "Draw polygon"),
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the corners, then Apply. Esc: back to the cursor."),
     Qt::Key_P, 1},
    {Tool::front, "front", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Fronts"), "",
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the points of the front; Enter draws it. Esc: back to the cursor."),
     Qt::Key_F, 3},
    {Tool::isoline, "isoline", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Isobars and other lines"),
     "",
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the points of the line; Enter draws it. Esc: back to the cursor."),
     Qt::Key_I, 1},
    {Tool::area, "area", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Areas of weather"), "",
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the points around the area; Enter draws it. "
                       "Esc: back to the cursor."),
     Qt::Key_A, 2},
    {Tool::arrow, "arrow", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Arrows and winds"), "",
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the points of the arrow from its tail; Enter "
                       "draws it. Esc: back to the cursor."),
     Qt::Key_R, 2},
    {Tool::text, "text", QT_TRANSLATE_NOOP("nubivane::DrawStrip", "Text along a curve"), "",
     QT_TRANSLATE_NOOP("nubivane::DrawStrip",
                       "Click the points below the text; Enter draws it. "
                       "Esc: back to the cursor."),
     Qt::Key_T, 3},
}};

constexpr const ToolRow& rowOf(Tool tool) {
    return toolTable[static_cast<std::size_t>(tool)];
}

}  // namespace nubivane
