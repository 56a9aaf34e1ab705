// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/map_pan.h"

#include "windows/canvas/map_canvas.h"
#include "windows/canvas/map_viewport.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace nubivane {

MapPan::MapPan(MapViewport& viewport, MapCanvas& canvas)
    : QObject(&viewport), viewport_(viewport), canvas_(canvas) {
    canvas.installEventFilter(this);
    viewport.installEventFilter(this);
}

bool MapPan::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return press(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseMove:
            return move(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return release(static_cast<QMouseEvent&>(*event));
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return watched == &canvas_ &&
                   key(static_cast<QKeyEvent&>(*event), event->type() == QEvent::KeyPress);
        case QEvent::FocusOut:
            // The release of the key goes to whoever has the keyboard then.
            if (watched == &canvas_ && std::exchange(ready_, false)) {
                showHand();
            }
            return false;
        default:
            return false;
    }
}

bool MapPan::press(const QMouseEvent& event) {
    const bool takesHold =
        event.button() == Qt::MiddleButton || (ready_ && event.button() == Qt::LeftButton);
    if (!held_ && takesHold && !(event.buttons() & ~event.button())) {
        held_ = event.globalPosition().toPoint();
        button_ = event.button();
        showHand();
    }
    return held_.has_value();
}

bool MapPan::move(const QMouseEvent& event) {
    if (!held_) {
        return ready_;  // a tool would put its own pointer there
    }
    const QPoint at = event.globalPosition().toPoint();
    viewport_.scrollBy(*held_ - at);
    held_ = at;
    return true;
}

bool MapPan::release(const QMouseEvent& event) {
    if (!held_) {
        return false;
    }
    if (event.button() == button_) {
        held_.reset();
        showHand();
    }
    return true;
}

bool MapPan::key(const QKeyEvent& event, bool down) {
    if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        ready_ = down;
        showHand();
    }
    return true;
}

void MapPan::showHand() {
    if (!held_ && !ready_) {
        if (const auto pointer = std::exchange(pointer_, std::nullopt)) {
            canvas_.setCursor(*pointer);
        }
        return;
    }
    if (!pointer_) {
        pointer_ = canvas_.cursor();
    }
    canvas_.setCursor(held_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

}  // namespace nubivane
