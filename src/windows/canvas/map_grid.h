// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/zoom.h"

#include <QSize>

class QPainter;

namespace nubivane {

/// The lines of the grid to which sprites are drawn, as they are seen over the map: faint, and one
/// pixel of the screen wide however large the map is shown. They are no part of any picture.
class MapGrid {
  public:
    /// Lines that are closer would be a veil, pixels of the screen.
    static constexpr int Closest = 4;

    /// The distance of the lines, pixels of the map; 0 for none.
    void setDistance(int distance) { distance_ = distance; }
    int distance() const { return distance_; }

    /// Paints what lies in a part of the map; painter and part are in pixels of the screen.
    void paint(QPainter& painter, const QRect& part, QSize map, Zoom zoom) const;

  private:
    int distance_ = 0;
};

}  // namespace nubivane
