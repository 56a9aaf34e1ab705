// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/zoom.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace nubivane {

namespace {

constexpr std::array steps = {25, 33, 50, 67, 75, 100, 125, 150, 200, 300, 400, 500, 600, 800};

int rounded(double value) {
    return static_cast<int>(std::lround(value));
}

int whole(double value) {
    return static_cast<int>(std::floor(value));
}

}  // namespace

Zoom::Zoom(int percent) : percent_(std::clamp(percent, Least, Most)) {}

Zoom Zoom::larger() const {
    const auto* next = std::upper_bound(steps.begin(), steps.end(), percent_);
    return Zoom(next == steps.end() ? Most : *next);
}

Zoom Zoom::smaller() const {
    const auto* next = std::lower_bound(steps.begin(), steps.end(), percent_);
    return Zoom(next == steps.begin() ? Least : *(next - 1));
}

int Zoom::toScreen(int extent) const {
    return std::max(1, rounded(extent * factor()));
}

QPoint Zoom::toScreen(QPoint mapPosition) const {
    return {whole((mapPosition.x() + 0.5) * factor()), whole((mapPosition.y() + 0.5) * factor())};
}

QRect Zoom::toScreen(const QRect& mapRect) const {
    if (mapRect.isNull()) {
        return mapRect;
    }
    const QPoint from(rounded(mapRect.x() * factor()), rounded(mapRect.y() * factor()));
    const QPoint to(rounded((mapRect.x() + mapRect.width()) * factor()),
                    rounded((mapRect.y() + mapRect.height()) * factor()));
    return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

QPoint Zoom::toMap(QPoint screenPosition) const {
    return {whole((screenPosition.x() + 0.5) / factor()),
            whole((screenPosition.y() + 0.5) / factor())};
}

QRect Zoom::toMap(const QRect& screenRect) const {
    const auto upTo = [this](int edge) { return static_cast<int>(std::ceil(edge / factor())) - 1; };
    return {QPoint(whole(screenRect.x() / factor()), whole(screenRect.y() / factor())),
            QPoint(upTo(screenRect.x() + screenRect.width()),
                   upTo(screenRect.y() + screenRect.height()))};
}

QRect Zoom::nearest(const QRect& screenRect) const {
    const QPoint from(rounded(screenRect.x() / factor()), rounded(screenRect.y() / factor()));
    const QPoint to(rounded((screenRect.x() + screenRect.width()) / factor()),
                    rounded((screenRect.y() + screenRect.height()) / factor()));
    return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

}  // namespace nubivane
