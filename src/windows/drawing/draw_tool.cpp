// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/draw_tool.h"

#include "windows/drawing/map_drawing.h"
#include "windows/drawing/tool_pointers.h"

#include <QCoreApplication>

namespace nubivane {

DrawTool::DrawTool(MapDrawing& drawing) : PenTool(drawing, toolPointer("drawcur")) {}

void DrawTool::begin(QPoint position) {
    MapPen& pen = drawing().pen();
    pen.wipe();
    pen.moveTo(position);
    // A width that is no number ends the stroke here, before the symbols have been stopped.
    pen.takeWidth();
    drawing().points().penDown = true;
    drawing().setAnimation(false);
    pen.dot();
}

void DrawTool::go(QPoint position) {
    drawing().pen().lineTo(position);
}

/// To the border, where the pen waits for the pointer to come back.
void DrawTool::goOut(QPoint position) {
    MapPen& pen = drawing().pen();
    pen.lineTo(drawing().borderBetween(pen.position(), position));
}

void DrawTool::end() {
    drawing().commitStroke(QT_TRANSLATE_NOOP("Edits", "Draw"));
}

}  // namespace nubivane
