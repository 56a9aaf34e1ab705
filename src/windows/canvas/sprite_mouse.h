// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/selection.h"

#include <QObject>
#include <QPoint>

#include <optional>

namespace nubivane {

class Shell;

/// What the mouse does with sprites: select, drag, resize. A gesture lives from press to release
/// and ends in one place; a change of Frame drops it. Positions are pixels of the map.
class SpriteMouse : public QObject {
    Q_OBJECT

  public:
    SpriteMouse(Workspace& workspace, SpriteStack& sprites, Selection& selection, Shell& shell);

    /// The lock of the whole map: sprites can be selected, not moved.
    void setLocked(bool locked) { locked_ = locked; }

    /// Each returns whether the event was for a sprite or its border.
    bool press(QPoint position, Qt::MouseButton button);
    bool move(QPoint position, Qt::MouseButtons buttons);
    bool release(Qt::MouseButton button);
    /// Takes back a gesture under way, as when the Frame changes.
    void cancel();

    bool isUnderWay() const { return drag_ || resize_; }
    /// The pointer for a position over a handle, or nothing.
    std::optional<Qt::CursorShape> cursorAt(QPoint position) const;

  Q_SIGNALS:
    void menuAsked();  ///< the popup menu of the sprite just selected

  private:
    struct Drag {
        SpriteId id;
        QRect from;  ///< where the control stood
        int pressX;  ///< pointer inside the sprite at the press
        int pressY;
    };
    struct Resize {
        ShpSelector::Handle handle;
        QRect from;   ///< where the control stood
        QPoint grip;  ///< from the border's side to the pointer at the press, screen
    };

    bool pressHandle(QPoint position);
    void pressSprite(SpriteControl& control, QPoint position);
    void moveDragged(QPoint position);
    void moveHandle(QPoint position);
    void endDrag();
    void endResize();

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    Shell& shell_;
    bool locked_ = false;
    std::optional<Drag> drag_;
    std::optional<Resize> resize_;
};

}  // namespace nubivane
