// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/zoom.h"

#include <QRect>

#include <optional>

class QPainter;

namespace nubivane {

/// The border with eight handles around the selected sprite. Sprites and positions are pixels of
/// the map; border and handles keep their size on the screen however large the map is shown.
class ShpSelector {
  public:
    /// How far the border lies outside the sprite on each side, pixels of the screen.
    static constexpr int Distance = 8;

    /// Handles by the sides they move.
    struct Handle {
        int horizontal;  ///< -1 left side, 0 none, 1 right side
        int vertical;    ///< -1 top, 0 none, 1 bottom
    };

    /// `room` is the map, on which the handles of a sprite at its border stay whole.
    ShpSelector(const QRect& sprite, bool resizable, const QRect& room = {}, Zoom zoom = Zoom())
        : resizable_(resizable), room_(zoom.toScreen(room)), zoom_(zoom) {
        surround(sprite);
    }

    /// Puts the border around a sprite.
    void surround(const QRect& sprite) {
        sprite_ = sprite;
        rect_ = zoom_.toScreen(sprite).adjusted(-Distance, -Distance, Distance, Distance);
    }
    /// The border, pixels of the screen.
    const QRect& rect() const { return rect_; }
    /// The sprite's rectangle that belongs to the border.
    const QRect& spriteRect() const { return sprite_; }
    /// What painting the border touches, pixels of the map.
    QRect paintedRect() const;

    /// The handle at a position, or nothing.
    std::optional<Handle> handleAt(QPoint position) const;
    /// From the sides that a handle moves to a position, pixels of the screen.
    QPoint gripOffset(Handle handle, QPoint position) const;
    /// The shape of pointer for a handle.
    static Qt::CursorShape cursorOf(Handle handle);

    /// Moves the sides of a handle so that it lies at a position, less where it was gripped; a
    /// sprite keeps at least 8 x 8 pixels.
    void drag(Handle handle, QPoint position, QPoint grip = {});

    /// The painter's pixels are those of the screen, from the map's corner.
    void paint(QPainter& painter) const;

  private:
    QRect sprite_;
    QRect rect_;
    bool resizable_;
    QRect room_;
    Zoom zoom_;
};

}  // namespace nubivane
