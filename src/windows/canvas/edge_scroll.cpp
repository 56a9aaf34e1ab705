// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/edge_scroll.h"

#include "windows/canvas/map_canvas.h"
#include "windows/canvas/map_viewport.h"

#include <algorithm>

namespace nubivane {

namespace {

constexpr int Band = 24;     // of the viewport's border in which a drag scrolls, pixels
constexpr int EveryMs = 40;  // smooth enough, and slow enough to stop in time
constexpr int Fastest = 16;  // pixels each time

/// How far to scroll on one axis: the further out, the faster.
int speed(int pointer, int extent) {
    const int band = std::min(Band, extent / 4);
    const int out = pointer < band             ? pointer - band
                    : pointer >= extent - band ? pointer - (extent - band) + 1
                                               : 0;
    return std::clamp(out, -Fastest, Fastest);
}

}  // namespace

EdgeScroll::EdgeScroll(MapViewport& viewport, MapCanvas& canvas)
    : QObject(&viewport), viewport_(viewport), canvas_(canvas) {
    timer_.setInterval(EveryMs);
    connect(&timer_, &QTimer::timeout, this, &EdgeScroll::scroll);
    connect(&canvas, &MapCanvas::dragMoved, this, &EdgeScroll::follow);
    connect(&canvas, &MapCanvas::dragEnded, &timer_, &QTimer::stop);
}

void EdgeScroll::follow(QPoint onCanvas) {
    pointer_ = canvas_.mapTo(&viewport_, onCanvas);
    if (speed(pointer_.x(), viewport_.width()) == 0 &&
        speed(pointer_.y(), viewport_.height()) == 0) {
        timer_.stop();
    } else if (!timer_.isActive()) {
        timer_.start();
    }
}

void EdgeScroll::scroll() {
    const QPoint by(speed(pointer_.x(), viewport_.width()),
                    speed(pointer_.y(), viewport_.height()));
    if (viewport_.scrollBy(by)) {
        canvas_.dragTo(canvas_.mapFrom(&viewport_, pointer_));
    }
}

}  // namespace nubivane
