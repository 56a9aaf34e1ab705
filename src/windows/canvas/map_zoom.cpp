// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/map_zoom.h"

#include "windows/canvas/map_canvas.h"
#include "windows/canvas/map_viewport.h"

#include <algorithm>

namespace nubivane {

MapZoom::MapZoom(MapViewport& viewport, MapCanvas& canvas)
    : QObject(&viewport), viewport_(viewport), canvas_(canvas) {
    connect(&viewport, &MapViewport::zoomTurned, this, &MapZoom::turn);
    connect(&viewport, &MapViewport::resized, this, &MapZoom::fit);
    connect(&canvas, &MapCanvas::mapResized, this, &MapZoom::fit);
}

Zoom MapZoom::zoom() const {
    return canvas_.zoom();
}

void MapZoom::zoomIn() {
    zoomTo(zoom().larger());
}

void MapZoom::zoomOut() {
    zoomTo(zoom().smaller());
}

void MapZoom::zoomTo(Zoom zoom) {
    apply(zoom, middle(), false);
}

void MapZoom::showWhole() {
    viewport_.setTight(true);
    whole_ = true;
    fit();
}

void MapZoom::turn(int notches, QPoint position) {
    Zoom wanted = zoom();
    for (int i = 0; i < std::abs(notches); ++i) {
        wanted = notches > 0 ? wanted.larger() : wanted.smaller();
    }
    apply(wanted, position, false);
}

void MapZoom::fit() {
    const QSizeF map = canvas_.mapSize();
    if (!whole_ || map.isEmpty()) {
        return;
    }
    const QSize room = viewport_.room() - QSize(2, 2);
    apply(Zoom(static_cast<int>(
              100 * std::min(room.width() / map.width(), room.height() / map.height()))),
          middle(), true);
}

QPoint MapZoom::middle() const {
    return canvas_.mapTo(&viewport_, viewport_.visibleMapRect().center());
}

void MapZoom::apply(Zoom zoom, QPoint anchor, bool whole) {
    const QPointF onMap =
        QPointF(canvas_.mapFrom(&viewport_, anchor) - QPoint(1, 1)) / this->zoom().factor();
    if (zoom != this->zoom() || whole != whole_) {
        whole_ = whole;
        canvas_.setZoom(zoom);
        viewport_.setTight(whole);
        viewport_.setScrollBars();
        const QPoint wanted = anchor - (onMap * zoom.factor()).toPoint() - QPoint(1, 1);
        viewport_.scrollBy(canvas_.pos() - wanted);
    }
    Q_EMIT changed();
}

}  // namespace nubivane
