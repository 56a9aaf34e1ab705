// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/window_place.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace nubivane {

namespace {

constexpr int WatchedMs = 5000;  // for a window manager to have its say, also on a busy machine
constexpr int FramedMs = 150;    // from the first picture until the frame is told of
constexpr int MostTries = 4;     // with one that has its own mind it is left at that

/// Whether a window stands off where it was sent by its frame, and not because a person moved it.
bool isFramesDoing(QPoint distance, const QMargins& frame) {
    const QPoint corner(frame.left(), frame.top());
    return distance.isNull() || distance == corner || distance == -corner;
}

}  // namespace

WindowPlace::WindowPlace(QWidget& window) : QObject(&window), window_(window) {
    watching_.setSingleShot(true);
    watching_.setInterval(WatchedMs);
    window.installEventFilter(this);
}

void WindowPlace::put(QPoint corner) {
    put([corner](const QSize&) { return corner; });
}

void WindowPlace::put(Wanted wanted) {
    wanted_ = std::move(wanted);
    put_ = wanted_(window_.frameGeometry().size());
    found_.reset();
    tries_ = 0;
    sent_ = *put_;
    window_.move(sent_);
    watching_.start();
}

QPoint WindowPlace::corner() const {
    const QPoint now = window_.frameGeometry().topLeft();
    return put_ && found_ == now ? *put_ : now;
}

void WindowPlace::watch() {
    if (put_) {
        watching_.start();
        QTimer::singleShot(0, this, &WindowPlace::check);
    }
}

/// Whoever gives a window its frame may move it meanwhile, and where that crosses with what Qt has
/// asked for, Qt believes the window to stand elsewhere than it does. Asked for once more, now that
/// the frame is known, both agree.
void WindowPlace::sendAgain() {
    QWindow* handle = window_.windowHandle();
    if (put_ && handle && window_.frameGeometry().topLeft() == sent_ &&
        !handle->frameMargins().isNull() && !window_.isMaximized() && !window_.isFullScreen()) {
        handle->setFramePosition(sent_);
    }
}

bool WindowPlace::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
            painted_ = false;
            watch();
            break;
        case QEvent::Paint:
            if (!painted_) {
                painted_ = true;
                watch();
                QTimer::singleShot(FramedMs, this, &WindowPlace::sendAgain);
            }
            [[fallthrough]];
        case QEvent::Resize:
        case QEvent::Move:
            if (watching_.isActive()) {
                QTimer::singleShot(0, this, &WindowPlace::check);
            }
            break;
        default:
            break;
    }
    return false;
}

void WindowPlace::check() {
    const QWindow* handle = window_.windowHandle();
    if (!watching_.isActive() || !handle || !handle->isExposed() || window_.isMaximized() ||
        window_.isMinimized() || window_.isFullScreen()) {
        return;
    }
    const QPoint now = window_.frameGeometry().topLeft();
    const QMargins frame = handle->frameMargins();
    if (frame.isNull() && now != sent_) {
        return;  // a frame that is not told of yet: without it Qt would move the window beside it
    }
    if (!isFramesDoing(now - sent_, frame)) {
        found_.reset();  // a person has moved it
        watching_.stop();
        return;
    }
    put_ = wanted_(window_.frameGeometry().size());
    found_ = now;
    if (now != *put_ && tries_ < MostTries) {
        ++tries_;
        watching_.start();
        sent_ = *put_;
        window_.move(sent_);
    }
}

}  // namespace nubivane
