// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QPoint>
#include <QString>

#include <optional>
#include <vector>

class QKeyEvent;

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
    /// False as long as there would be nothing to see of it.
    virtual bool canApply() const { return true; }
    /// What that is called in the list of edits; lives as long as the program.
    virtual const char* editName() const = 0;
    /// Draws it with its handles, as after a change of pen.
    virtual void redraw() {}
    /// Drops what the tool holds of the map.
    virtual void cancel() {}
    virtual void chosen() {}

    /// The tool holds points of its own, the last step of which can be taken back, and all dropped.
    virtual bool isUnfinished() const { return false; }
    virtual void takeBack() {}
    virtual void drop() {}

    /// The points of the figure under edit; none for a tool without figures.
    virtual std::vector<QPoint> figurePoints() const { return {}; }
    /// What people call it.
    virtual QString figureName() const { return {}; }
    /// The point that keys work on, where points can be taken in hand.
    virtual std::optional<int> pointInHand() const { return {}; }
    virtual void takePointInHand(int) {}
    virtual void removePoint(int) {}

    /// What to do next, in a sentence.
    virtual QString nextStep() const = 0;
    /// A key while the map has the keyboard. True when the tool knew it.
    virtual bool pressMapKey(const QKeyEvent&) { return false; }

    virtual QCursor pointer() const = 0;
    /// The pointer over a position, where that makes a difference.
    virtual QCursor pointerAt(QPoint) const { return pointer(); }
};

}  // namespace nubivane
