// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/map_grid.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace nubivane {

namespace {

/// Seen on light and dark ground alike.
const QColor GridColor(128, 128, 128, 110);

}  // namespace

void MapGrid::paint(QPainter& painter, const QRect& part, QSize map, Zoom zoom) const {
    if (distance_ <= 0 || distance_ * zoom.factor() < Closest) {
        return;
    }
    const QRect seen = zoom.toMap(part);
    const auto place = [&](int line) {
        return static_cast<int>(std::lround(line * zoom.factor()));
    };
    const auto first = [&](int from) { return std::max(1, from / distance_) * distance_; };
    for (int x = first(seen.left()); x < map.width() && x <= seen.right() + 1; x += distance_) {
        painter.fillRect(QRect(place(x), part.top(), 1, part.height()) & part, GridColor);
    }
    for (int y = first(seen.top()); y < map.height() && y <= seen.bottom() + 1; y += distance_) {
        painter.fillRect(QRect(part.left(), place(y), part.width(), 1) & part, GridColor);
    }
}

}  // namespace nubivane
