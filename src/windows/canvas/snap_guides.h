// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLine>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

namespace nubivane {

/// What draws a rectangle to itself that is being dragged: edges and centres of the other sprites,
/// the centre of the map, places that make two distances equal, or a grid. Pixels of the map.
class SnapGuides {
  public:
    struct Setting {
        bool guides = false;
        int grid = 0;  ///< distance of its lines; 0 for none
    };
    struct Snapped {
        QPoint offset;  ///< by which the rectangle has to be moved
        std::vector<QLine> lines;
    };

    /// `reach` is how near a rectangle must come.
    SnapGuides(Setting setting, QSize map, std::vector<QRect> others, int reach);

    Snapped snap(const QRect& dragged) const;

  private:
    Setting setting_;
    QSize map_;
    std::vector<QRect> others_;
    int reach_;
};

}  // namespace nubivane
