// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/drag_marks.h"
#include "windows/canvas/rubber_band.h"
#include "windows/canvas/selection.h"
#include "windows/canvas/snap_guides.h"
#include "windows/canvas/sprite_drag.h"

#include <QObject>
#include <QPoint>

#include <optional>

namespace nubivane {

class Shell;

/// What the mouse does with sprites: select, drag, resize. A gesture lives from press to release
/// and ends in one place; a change of Frame drops it. Positions are pixels of the map.
///
/// Shift and Ctrl take sprites into the selection and out of it, Ctrl and a drag leave copies, Alt
/// reaches what lies below and holds the guides off. A press beside all sprites begins a rubber
/// band.
class SpriteMouse : public QObject {
    Q_OBJECT

  public:
    SpriteMouse(Workspace& workspace, SpriteStack& sprites, Selection& selection, Shell& shell);

    /// The lock of the whole map: sprites can be selected, not moved.
    void setLocked(bool locked) { locked_ = locked; }
    /// What draws sprites to itself while they are dragged.
    void setSnapping(SnapGuides::Setting setting) { snapping_ = setting; }
    /// How large the map is shown: guides reach as far on any screen.
    void setZoom(Zoom zoom) { zoom_ = zoom; }

    /// Each returns whether the event was for a sprite or its border.
    bool press(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers keys = {});
    bool move(QPoint position, Qt::MouseButtons buttons, Qt::KeyboardModifiers keys = {});
    bool release(Qt::MouseButton button);
    /// Takes back a gesture under way, as when the Frame changes.
    void cancel();
    /// A sprite is about to leave the Frame: it may be one of those that are dragged.
    void spriteWillGo();

    bool isUnderWay() const;
    /// The pointer for a position over a handle, or nothing.
    std::optional<Qt::CursorShape> cursorAt(QPoint position) const;
    const DragMarks& marks() const { return marks_; }

  Q_SIGNALS:
    void menuAsked();                 ///< the popup menu of the sprite just selected
    void changed(const QRect& area);  ///< of the map, to be painted again

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
        QPoint grip;  ///< from the border's side to the pointer at the press
    };
    /// What a release means that comes without a move.
    struct Click {
        SpriteId id;
        bool toggles;
    };

    bool pressHandle(QPoint position);
    void pressSprite(SpriteControl& control, QPoint position, Qt::KeyboardModifiers keys);
    void pressAlone(SpriteControl& control, QPoint position);
    void pressWithOthers(const SpriteControl& control, QPoint position, Qt::KeyboardModifiers keys);
    bool refusesTool(const SpriteControl& control);
    void askMenu(SpriteControl& control);
    bool beginBand(QPoint position, Qt::KeyboardModifiers keys);
    SpriteControl* pressedAt(QPoint position, Qt::KeyboardModifiers keys) const;
    void moveDragged(QPoint position, Qt::KeyboardModifiers keys);
    void moveMany(QPoint position, Qt::KeyboardModifiers keys);
    void moveHandle(QPoint position);
    std::optional<SnapGuides> guides(std::vector<QRect> others, Qt::KeyboardModifiers keys) const;
    void endDrag();
    void endMany();
    void endResize();

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    Shell& shell_;
    DragMarks marks_;
    RubberBand band_;
    SpriteDrag many_;
    SnapGuides::Setting snapping_;
    Zoom zoom_;
    bool locked_ = false;
    std::optional<Drag> drag_;
    std::optional<Resize> resize_;
    std::optional<Click> click_;
};

}  // namespace nubivane
