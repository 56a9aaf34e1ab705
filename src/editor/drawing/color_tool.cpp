#include "editor/drawing/color_tool.h"

#include "editor/drawing/map_drawing.h"
#include "editor/drawing/tool_pointers.h"
#include "picture/color_value.h"

namespace nubivane {

ColorTool::ColorTool(MapDrawing& drawing) : PenTool(drawing, toolPointer("color")) {}

void ColorTool::begin(QPoint position) {
    const QColor picked = drawing().colorAt(position);
    if (picked.isValid()) {
        drawing().setDrawColor(valueOf(picked));
    }
}

}  // namespace nubivane
