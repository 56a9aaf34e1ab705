// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figure_handles.h"

#include <QPainter>

namespace nubivane {

namespace {

const QColor InHand(47, 111, 176);

}  // namespace

FigureHandles::~FigureHandles() {
    if (canvas_) {
        canvas_->setOverlay(nullptr);
    }
}

void FigureHandles::attach(MapCanvas& canvas) {
    canvas_ = &canvas;
    canvas.setOverlay(this);
}

QRect FigureHandles::place(QPoint position) const {
    const QPoint middle = canvas_->toWidget(QRect(position, QSize(1, 1))).center();
    return {middle - QPoint(Reach, Reach), QSize(2 * Reach + 1, 2 * Reach + 1)};
}

void FigureHandles::show(const std::vector<QPoint>& points, std::optional<int> current) {
    refresh();
    points_ = points;
    current_ = current;
    refresh();
}

/// What stands there is painted again, and nothing else.
void FigureHandles::refresh() {
    for (const QPoint& point : points_) {
        canvas_->update(place(point));
    }
}

void FigureHandles::paint(QPainter& painter, const MapCanvas&) const {
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const QRect handle = place(points_[i]);
        const bool inHand = current_ && static_cast<std::size_t>(*current_) == i;
        painter.fillRect(handle, Qt::black);
        painter.fillRect(handle.adjusted(1, 1, -1, -1), Qt::white);
        if (inHand) {
            painter.fillRect(handle.adjusted(2, 2, -2, -2), InHand);
        }
    }
}

std::optional<int> FigureHandles::at(QPoint position) const {
    const QPoint pointed = canvas_->toWidget(QRect(position, QSize(1, 1))).center();
    if (current_ && place(points_[static_cast<std::size_t>(*current_)]).contains(pointed)) {
        return current_;
    }
    for (std::size_t i = points_.size(); i > 0; --i) {
        if (place(points_[i - 1]).contains(pointed)) {
            return static_cast<int>(i - 1);
        }
    }
    return std::nullopt;
}

qreal FigureHandles::onMap(qreal screenPixels) const {
    constexpr int Large = 1000;
    return screenPixels * Large / canvas_->toWidget(QRect(0, 0, Large, Large)).width();
}

}  // namespace nubivane
