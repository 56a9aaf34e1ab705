// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/zoom.h"

#include <QObject>

namespace nubivane {

class MapCanvas;
class MapViewport;

/// Shows the map larger and smaller, by Ctrl and the wheel and for whoever asks. What lies under
/// the pointer, or in the middle of what is seen, stays where it is as far as the map can be
/// scrolled.
class MapZoom : public QObject {
    Q_OBJECT

  public:
    MapZoom(MapViewport& viewport, MapCanvas& canvas);

    Zoom zoom() const;
    void zoomIn();
    void zoomOut();
    /// To a size, after which the map no longer follows the window's.
    void zoomTo(Zoom zoom);
    /// As large as the whole map can be seen, now and whenever the window has another size.
    void showWhole();
    bool isWhole() const { return whole_; }

  Q_SIGNALS:
    void changed();

  private:
    void turn(int notches, QPoint position);
    void apply(Zoom zoom, QPoint anchor, bool whole);
    void fit();
    QPoint middle() const;

    MapViewport& viewport_;
    MapCanvas& canvas_;
    bool whole_ = false;
};

}  // namespace nubivane
