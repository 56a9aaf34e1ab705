// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <optional>

class QPainter;

namespace nubivane {

/// The border with eight handles around the selected sprite. Pixels of the map.
class ShpSelector {
  public:
    /// How far the border lies outside the sprite on each side.
    static constexpr int Distance = 8;

    /// Handles by the sides they move.
    struct Handle {
        int horizontal;  ///< -1 left side, 0 none, 1 right side
        int vertical;    ///< -1 top, 0 none, 1 bottom
    };

    /// `room` is the map, on which the handles of a sprite at its border stay whole.
    ShpSelector(const QRect& sprite, bool resizable, const QRect& room = {})
        : resizable_(resizable), room_(room) {
        surround(sprite);
    }

    /// Puts the border around a sprite.
    void surround(const QRect& sprite) {
        rect_ = sprite.adjusted(-Distance, -Distance, Distance, Distance);
    }
    const QRect& rect() const { return rect_; }
    /// The sprite's rectangle that belongs to the border.
    QRect spriteRect() const { return rect_.adjusted(Distance, Distance, -Distance, -Distance); }
    /// What painting the border touches.
    QRect paintedRect() const;

    /// The handle at a position, or nothing.
    std::optional<Handle> handleAt(QPoint position) const;
    /// From the sides that a handle moves to a position.
    QPoint gripOffset(Handle handle, QPoint position) const;
    /// The shape of pointer for a handle.
    static Qt::CursorShape cursorOf(Handle handle);

    /// Moves the sides of a handle so that it lies at a position; a sprite keeps at least
    /// 8 x 8 pixels.
    void drag(Handle handle, QPoint position);

    void paint(QPainter& painter) const;

  private:
    QRect rect_;
    bool resizable_;
    QRect room_;
};

}  // namespace nubivane
