// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_clock.h"

#include <algorithm>

namespace nubivane {

CanvasClock::CanvasClock(SpriteStack& sprites) : sprites_(sprites) {
    time_.start();
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &CanvasClock::tick);
}

void CanvasClock::setVisible(bool visible) {
    visible_ = visible;
    schedule();
}

void CanvasClock::schedule() {
    std::optional<qint64> next;
    for (int i = 1; visible_ && i <= sprites_.gifSymbol().upperBound(); ++i) {
        const GifSymbol* symbol = sprites_.gifSymbol().find(i);
        const auto change = symbol ? symbol->nextChange(now()) : std::nullopt;
        if (change) {
            next = next ? std::min(*next, *change) : *change;
        }
    }
    if (next) {
        timer_.start(static_cast<int>(std::max<qint64>(0, *next - now())));
    } else {
        timer_.stop();
    }
}

void CanvasClock::tick() {
    const qint64 time = now();
    for (int i = 1; i <= sprites_.gifSymbol().upperBound(); ++i) {
        GifSymbol* symbol = sprites_.gifSymbol().find(i);
        if (symbol && symbol->advance(time)) {
            sprites_.repaint(*symbol);
        }
    }
    schedule();
}

}  // namespace nubivane
