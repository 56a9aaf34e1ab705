// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figures.h"

#include "windows/drawing/bezier.h"
#include "windows/drawing/map_drawing.h"

#include <cmath>

namespace nubivane {

CurveTool::CurveTool(MapDrawing& drawing, int mostPoints) : FigureTool(drawing, mostPoints) {}

/// In the width that it was last seen with.
void CurveTool::drawFigure() {
    const std::vector<QPoint> corners = bezierCorners(controls());
    if (corners.empty()) {
        return;
    }
    MapPen& pen = drawing().pen();
    pen.moveTo(corners.front());
    for (const QPoint& corner : corners) {
        pen.lineTo(corner);
    }
}

void CurveTool::drawEdited() {
    MapPen& pen = drawing().pen();
    const std::vector<QPoint> points = controls();
    for (std::size_t i = 1; points.size() > 2 && i < points.size(); ++i) {
        pen.dottedLine(points[i - 1], points[i]);
    }
    pen.followWidth();
    drawFigure();
}

LineTool::LineTool(MapDrawing& drawing) : CurveTool(drawing, 2) {}

CircleTool::CircleTool(MapDrawing& drawing) : FigureTool(drawing, 2) {}

void CircleTool::go(QPoint position) {
    if (drawing().points().pointCount() == 2) {
        FigureTool::go(position);
    }
}

/// What is seen while it is edited has the width that it will have.
void CircleTool::drawEdited() {
    drawing().pen().followWidth();
    drawFigure();
}

/// In the width that its handles left. There is no circle without its second point.
void CircleTool::drawFigure() {
    const std::vector<QPoint> points = controls();
    if (points.size() == 2) {
        const QPoint distance = points[1] - points[0];
        drawing().pen().circle(points[0], std::hypot(distance.x(), distance.y()));
    }
}

PolygonTool::PolygonTool(MapDrawing& drawing) : FigureTool(drawing, 15) {}

void PolygonTool::drawFigure() {
    drawing().pen().takeWidth();
    drawLines();
}

void PolygonTool::drawEdited() {
    drawing().pen().followWidth();
    drawLines();
}

void PolygonTool::drawLines() {
    MapPen& pen = drawing().pen();
    const std::vector<QPoint> points = controls();
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        pen.line(points[i + 1], points[i]);
    }
}

}  // namespace nubivane
