// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figure_handles.h"

#include <QPainter>

#include <cstdlib>

namespace nubivane {

namespace {

const QColor InHand(47, 111, 176);
constexpr qreal PreviewWidth = 1.5;  // pixels of the screen

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
    const QPoint middle = canvas_->zoom().toScreen(position) + QPoint(1, 1);
    return {middle - QPoint(Reach, Reach), QSize(2 * Reach + 1, 2 * Reach + 1)};
}

void FigureHandles::show(const std::vector<QPoint>& points, std::optional<int> current) {
    refresh();
    setPreview({});
    points_ = points;
    current_ = current;
    refresh();
}

void FigureHandles::setPreview(const QPainterPath& preview) {
    if (canvas_ && preview != preview_) {
        refreshPreview();
        preview_ = preview;
        refreshPreview();
    }
}

QTransform FigureHandles::toCanvas() const {
    const qreal factor = canvas_->zoom().factor();
    return {factor, 0, 0, factor, 1, 1};
}

void FigureHandles::refreshPreview() {
    if (!preview_.isEmpty()) {
        constexpr int Around = 2;
        canvas_->update(toCanvas()
                            .mapRect(preview_.boundingRect())
                            .toAlignedRect()
                            .adjusted(-Around, -Around, Around, Around));
    }
}

/// What stands there is painted again, and nothing else.
void FigureHandles::refresh() {
    for (const QPoint& point : points_) {
        canvas_->update(place(point));
    }
}

/// Dashes in two colours are seen on every ground.
void FigureHandles::paintPreview(QPainter& painter) const {
    const QPainterPath onCanvas = toCanvas().map(preview_);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(onCanvas, QPen(Qt::white, PreviewWidth));
    painter.strokePath(onCanvas, QPen(InHand, PreviewWidth, Qt::DashLine));
    painter.restore();
}

void FigureHandles::paint(QPainter& painter, const MapCanvas&) const {
    paintPreview(painter);
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

/// A press is known by its pixel of the map alone, which counts where any of it lies on a handle.
std::optional<int> FigureHandles::at(QPoint position) const {
    const qreal reach = onMap(Reach) + 0.5;
    const auto isNear = [&](const QPoint& point) {
        const QPoint way = position - point;
        return std::abs(way.x()) <= reach && std::abs(way.y()) <= reach;
    };
    if (current_ && isNear(points_[static_cast<std::size_t>(*current_)])) {
        return current_;
    }
    for (std::size_t i = points_.size(); i > 0; --i) {
        if (isNear(points_[i - 1])) {
            return static_cast<int>(i - 1);
        }
    }
    return std::nullopt;
}

qreal FigureHandles::onMap(qreal screenPixels) const {
    return screenPixels / canvas_->zoom().factor();
}

}  // namespace nubivane
