// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/color_tool.h"

#include "engine/gif/color_value.h"
#include "windows/drawing/map_drawing.h"
#include "windows/drawing/tool_pointers.h"

namespace nubivane {

ColorTool::ColorTool(MapDrawing& drawing) : PenTool(drawing, toolPointer("color")) {}

void ColorTool::begin(QPoint position) {
    const QColor picked = drawing().colorAt(position);
    if (picked.isValid()) {
        drawing().setDrawColor(valueOf(picked));
    }
}

}  // namespace nubivane
