// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QTimer>

namespace nubivane {

class MapCanvas;
class MapViewport;

/// Scrolls the map while something is dragged near a border of its viewport, so that every place of
/// a large map can be reached in one drag. It goes on while the pointer rests there.
class EdgeScroll : public QObject {
    Q_OBJECT

  public:
    EdgeScroll(MapViewport& viewport, MapCanvas& canvas);

    bool isActive() const { return timer_.isActive(); }

  private:
    void follow(QPoint onCanvas);
    void scroll();

    MapViewport& viewport_;
    MapCanvas& canvas_;
    QPoint pointer_;  ///< on the viewport
    QTimer timer_;
};

}  // namespace nubivane
