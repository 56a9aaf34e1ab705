// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/frame_place.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <cstdlib>
#include <utility>

namespace nubivane {

namespace {

constexpr int WatchedMs = 700;    // long enough for a window manager to have its say
constexpr int MostTries = 4;      // with one that has its own mind it is left at that
constexpr int WidestFrame = 100;  // what lies further off is no matter of the frame, pixels

bool isFramesDoing(QPoint distance) {
    return std::abs(distance.x()) <= WidestFrame && std::abs(distance.y()) <= WidestFrame;
}

}  // namespace

FramePlace::FramePlace(QWidget& window) : QObject(&window), window_(window) {
    watching_.setSingleShot(true);
    watching_.setInterval(WatchedMs);
    window.installEventFilter(this);
}

void FramePlace::put(QPoint corner) {
    put([corner](const QSize&) { return corner; });
}

void FramePlace::put(Wanted wanted) {
    wanted_ = std::move(wanted);
    put_ = wanted_(window_.frameGeometry().size());
    found_.reset();
    tries_ = 0;
    moveTo(*put_);
    watching_.start();
}

void FramePlace::moveTo(QPoint place) {
    window_.move(place);
}

QPoint FramePlace::corner() const {
    const QPoint now = window_.frameGeometry().topLeft();
    return put_ && found_ == now ? *put_ : now;
}

bool FramePlace::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
            if (put_) {
                watching_.start();
            }
            [[fallthrough]];
        case QEvent::Paint:
        case QEvent::Resize:
        case QEvent::Move:
            if (watching_.isActive()) {
                QTimer::singleShot(0, this, &FramePlace::check);
            }
            break;
        default:
            break;
    }
    return false;
}

void FramePlace::check() {
    const QWindow* handle = window_.windowHandle();
    if (!watching_.isActive() || !handle || !handle->isExposed() || window_.isMaximized() ||
        window_.isMinimized() || window_.isFullScreen()) {
        return;
    }
    put_ = wanted_(window_.frameGeometry().size());
    const QPoint now = window_.frameGeometry().topLeft();
    const QPoint distance = *put_ - now;
    if (!isFramesDoing(distance)) {
        found_.reset();  // a person has moved it
        return;
    }
    found_ = now;
    if (!distance.isNull() && tries_ < MostTries) {
        ++tries_;
        moveTo(window_.pos() + distance);
    }
}

}  // namespace nubivane
