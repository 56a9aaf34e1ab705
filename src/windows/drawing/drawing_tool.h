// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QPoint>

namespace nubivane {

/// One of the tools of the strip `pctTlbDraw`: what the mouse does on the bare map while it is the
/// current one. Positions are pixels of the map.
class DrawingTool {
  public:
    virtual ~DrawingTool() = default;

    /// Each of them may raise `Error`; what was being drawn is lost then.
    virtual void press(QPoint position, Qt::MouseButton button) = 0;
    virtual void move(QPoint position) = 0;
    /// The pointer has gone to a position beside the map.
    virtual void leave(QPoint) {}
    virtual void release(Qt::MouseButton button) = 0;

    /// Draws the figure that is being edited as it will stay.
    virtual void apply() {}
    /// Draws it with its handles, as after a change of pen.
    virtual void redraw() {}
    /// Drops what the tool holds of the map.
    virtual void cancel() {}
    virtual void chosen() {}

    virtual QCursor pointer() const = 0;
    /// The pointer over a position, where that makes a difference.
    virtual QCursor pointerAt(QPoint) const { return pointer(); }
};

}  // namespace nubivane
