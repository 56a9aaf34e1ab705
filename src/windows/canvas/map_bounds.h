// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/map_surface.h"

#include <QRect>

namespace nubivane {

/// The top left corner that brings a rectangle back onto the map: below 0 becomes 0, otherwise what
/// sticks out at the far edge is taken off. The map counts with its border. A sprite wider than the
/// map therefore gets a negative position.
inline QPoint insideMap(const QRect& rect, const MapSurface& map) {
    const auto along = [](int position, int extent, int limit) {
        if (position < 0) {
            return 0;
        }
        return position + extent > limit ? limit - extent : position;
    };
    return {along(rect.x(), rect.width(), map.Width()),
            along(rect.y(), rect.height(), map.Height())};
}

}  // namespace nubivane
