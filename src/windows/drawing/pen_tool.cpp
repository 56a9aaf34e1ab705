// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/pen_tool.h"

#include "windows/drawing/map_drawing.h"
#include "windows/drawing/tool_table.h"

#include <QCoreApplication>

#include <utility>

namespace nubivane {

PenTool::PenTool(MapDrawing& drawing, QCursor pointer)
    : drawing_(drawing), pointer_(std::move(pointer)) {}

void PenTool::press(QPoint position, Qt::MouseButton button) {
    if (button != Qt::LeftButton) {
        return;
    }
    drawing_.tellBegin();
    ControlPoints& points = drawing_.points();
    const int hit = points.findPoint(position);
    if (hit > -1) {
        points.penDown = true;
        points.movingPoint = static_cast<qint16>(hit);
    } else {
        begin(position);
    }
}

void PenTool::move(QPoint position) {
    if (drawing_.points().penDown) {
        go(position);
    }
}

void PenTool::leave(QPoint position) {
    if (drawing_.points().penDown) {
        goOut(position);
    }
}

void PenTool::release(Qt::MouseButton button) {
    if (button == Qt::LeftButton) {
        drawing_.points().penDown = false;
        end();
    }
}

const char* PenTool::editName() const {
    return rowOf(drawing_.workspace().Status.CurrentTool).edit;
}

QString PenTool::nextStep() const {
    return QCoreApplication::translate("nubivane::DrawStrip",
                                       rowOf(drawing_.workspace().Status.CurrentTool).use);
}

QCursor PenTool::pointerAt(QPoint position) const {
    return drawing_.points().findPoint(position) > -1 ? QCursor(Qt::CrossCursor) : pointer_;
}

}  // namespace nubivane
