// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figure_tool.h"

#include "windows/drawing/map_drawing.h"
#include "windows/drawing/tool_table.h"

namespace nubivane {

FigureTool::FigureTool(MapDrawing& drawing, int mostPoints)
    : PenTool(drawing, QCursor(Qt::ArrowCursor)), mostPoints_(mostPoints) {}

void FigureTool::begin(QPoint position) {
    drawing().loadDrawAction();
    ControlPoints& points = drawing().points();
    if (points.pointCount() < mostPoints_) {
        points.addPoint(position);
        redraw();
    }
}

void FigureTool::go(QPoint position) {
    ControlPoints& points = drawing().points();
    points.setPoint(points.movingPoint, position);
    redraw();
}

void FigureTool::redraw() {
    drawing().pen().wipe();
    drawEdited();
    for (const QPoint& control : controls()) {
        drawing().pen().handle(control);
    }
    drawing().tellStep();
}

QString FigureTool::figureName() const {
    return QCoreApplication::translate("nubivane::DrawStrip",
                                       rowOf(drawing().workspace().Status.CurrentTool).hint);
}

void FigureTool::apply() {
    drawing().pen().wipe();
    drawFigure();
}

std::vector<QPoint> FigureTool::controls() const {
    const ControlPoints& points = drawing().points();
    std::vector<QPoint> used;
    for (int row = 0; row < points.pointCount(); ++row) {
        used.push_back(points.point(row));
    }
    return used;
}

}  // namespace nubivane
