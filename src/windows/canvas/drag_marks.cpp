// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/drag_marks.h"

#include "windows/canvas/sprite_control.h"

#include <QPainter>

#include <utility>

namespace nubivane {

namespace {

constexpr double GhostOpacity = 0.6;
const QColor BandColor(31, 78, 121);
const QColor GuideColor(208, 48, 128);

}  // namespace

void DragMarks::setBand(const std::optional<QRect>& band) {
    if (band != band_) {
        tellBand();
        band_ = band;
        tellBand();
    }
}

void DragMarks::setLines(const std::vector<QLine>& lines) {
    if (lines != lines_) {
        tellLines();
        lines_ = lines;
        tellLines();
    }
}

void DragMarks::setGhosts(const std::vector<Ghost>& ghosts) {
    tellGhosts();
    ghosts_ = ghosts;
    tellGhosts();
}

void DragMarks::clear() {
    setBand({});
    setLines({});
    setGhosts({});
}

void DragMarks::tellBand() {
    if (band_) {
        Q_EMIT changed(band_->adjusted(-2, -2, 2, 2));
    }
}

void DragMarks::tellLines() {
    for (const QLine& line : lines_) {
        Q_EMIT changed(QRect(line.p1(), line.p2()).normalized().adjusted(-2, -2, 2, 2));
    }
}

void DragMarks::tellGhosts() {
    for (const Ghost& ghost : ghosts_) {
        Q_EMIT changed(ghost.control->rect.translated(ghost.offset));
    }
}

void DragMarks::paintGhosts(QPainter& painter) const {
    if (ghosts_.empty()) {
        return;
    }
    painter.save();
    painter.setOpacity(GhostOpacity);
    for (const Ghost& ghost : ghosts_) {
        painter.save();
        painter.translate(ghost.offset);
        ghost.control->paint(painter);
        painter.restore();
    }
    painter.restore();
}

void DragMarks::paintLines(QPainter& painter, Zoom zoom) const {
    painter.save();
    painter.setPen(QPen(GuideColor, 1));
    for (const QLine& line : lines_) {
        painter.drawLine(zoom.toScreen(line.p1()), zoom.toScreen(line.p2()));
    }
    if (band_) {
        painter.setPen(QPen(BandColor, 1));
        painter.setBrush(QColor(BandColor.red(), BandColor.green(), BandColor.blue(), 40));
        painter.drawRect(zoom.toScreen(*band_).adjusted(0, 0, -1, -1));
    }
    painter.restore();
}

}  // namespace nubivane
