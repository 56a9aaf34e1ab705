// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/shp_selector.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace nubivane {

namespace {

constexpr int HandleSize = 7;
constexpr int GripSize = 11;  // easier to hit than to see
constexpr int MinimumSprite = 8;

constexpr std::array<ShpSelector::Handle, 8> handles = {
    {{-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}}};

/// The square of a handle.
QRect square(const QRect& frame, ShpSelector::Handle handle, int size) {
    const auto along = [](int low, int high, int side) {
        return side < 0 ? low : side > 0 ? high : (low + high) / 2;
    };
    const QPoint centre(along(frame.left(), frame.right(), handle.horizontal),
                        along(frame.top(), frame.bottom(), handle.vertical));
    return {centre.x() - size / 2, centre.y() - size / 2, size, size};
}

/// A square moved to where it is seen whole, as far as there is room.
QRect within(const QRect& square, const QRect& room) {
    const auto shift = [](int low, int high, int first, int last) {
        return low < first ? first - low : high > last ? last - high : 0;
    };
    return room.isEmpty()
               ? square
               : square.translated(shift(square.left(), square.right(), room.left(), room.right()),
                                   shift(square.top(), square.bottom(), room.top(), room.bottom()));
}

}  // namespace

std::optional<ShpSelector::Handle> ShpSelector::handleAt(QPoint position) const {
    if (!resizable_) {
        return std::nullopt;
    }
    for (const Handle handle : handles) {
        if (within(square(rect_, handle, GripSize), room_).contains(zoom_.toScreen(position))) {
            return handle;
        }
    }
    return std::nullopt;
}

QPoint ShpSelector::gripOffset(Handle handle, QPoint position) const {
    const QPoint side(handle.horizontal < 0 ? rect_.left() : rect_.right(),
                      handle.vertical < 0 ? rect_.top() : rect_.bottom());
    return zoom_.toScreen(position) - side;
}

Qt::CursorShape ShpSelector::cursorOf(Handle handle) {
    if (handle.horizontal == 0) {
        return Qt::SizeVerCursor;
    }
    if (handle.vertical == 0) {
        return Qt::SizeHorCursor;
    }
    return handle.horizontal == handle.vertical ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

QRect ShpSelector::paintedRect() const {
    QRect painted = rect_.adjusted(-4, -4, 4, 4);
    for (const Handle handle : handles) {
        painted |= within(square(rect_, handle, HandleSize), room_);
    }
    return zoom_.toMap(painted);
}

void ShpSelector::drag(Handle handle, QPoint at, QPoint grip) {
    const QPoint position = zoom_.toScreen(at) - grip;
    const int least = 2 * Distance + zoom_.toScreen(MinimumSprite) - 1;
    if (handle.horizontal < 0) {
        rect_.setLeft(std::min(position.x(), rect_.right() - least));
    } else if (handle.horizontal > 0) {
        rect_.setRight(std::max(position.x(), rect_.left() + least));
    }
    if (handle.vertical < 0) {
        rect_.setTop(std::min(position.y(), rect_.bottom() - least));
    } else if (handle.vertical > 0) {
        rect_.setBottom(std::max(position.y(), rect_.top() + least));
    }
    // On whole pixels of the map, each side on its own, so that the others stay where they are.
    const QRect wanted = zoom_.nearest(rect_.adjusted(Distance, Distance, -Distance, -Distance));
    QRect sprite = sprite_;
    if (handle.horizontal < 0) {
        sprite.setLeft(wanted.left());
    } else if (handle.horizontal > 0) {
        sprite.setRight(wanted.right());
    }
    if (handle.vertical < 0) {
        sprite.setTop(wanted.top());
    } else if (handle.vertical > 0) {
        sprite.setBottom(wanted.bottom());
    }
    surround(sprite);
}

void ShpSelector::paint(QPainter& painter) const {
    painter.save();
    // White under dark dashes stands out on any map.
    painter.setPen(QPen(QColor(255, 255, 255, 200), 1));
    painter.drawRect(rect_.adjusted(0, 0, -1, -1));
    painter.setPen(QPen(QColor(31, 78, 121), 1, Qt::DashLine));
    painter.drawRect(rect_.adjusted(0, 0, -1, -1));
    if (resizable_) {
        painter.setPen(QColor(31, 78, 121));
        painter.setBrush(Qt::white);
        for (const Handle handle : handles) {
            painter.drawRect(
                within(square(rect_, handle, HandleSize), room_).adjusted(0, 0, -1, -1));
        }
    }
    painter.restore();
}

}  // namespace nubivane
