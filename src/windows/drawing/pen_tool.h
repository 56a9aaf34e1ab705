// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/drawing_tool.h"

namespace nubivane {

class MapDrawing;

/// What all tools but the cursor have in common: they answer the left button alone, a press on a
/// control point starts dragging it whatever the tool, and any press marks the project.
class PenTool : public DrawingTool {
  public:
    PenTool(MapDrawing& drawing, QCursor pointer);

    void press(QPoint position, Qt::MouseButton button) final;
    void move(QPoint position) final;
    void leave(QPoint position) final;
    void release(Qt::MouseButton button) final;

    const char* editName() const final;
    QString nextStep() const final;

    QCursor pointer() const final { return pointer_; }
    QCursor pointerAt(QPoint position) const final;

  protected:
    /// A press beside all control points.
    virtual void begin(QPoint position) = 0;
    /// A move with the pen down.
    virtual void go(QPoint) {}
    /// A move beside the map with the pen down.
    virtual void goOut(QPoint) {}
    virtual void end() {}

    MapDrawing& drawing() const { return drawing_; }

  private:
    MapDrawing& drawing_;
    QCursor pointer_;
};

}  // namespace nubivane
