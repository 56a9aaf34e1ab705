// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/map_pen.h"

#include "engine/core/error.h"
#include "engine/core/number_text.h"
#include "engine/gif/color_value.h"

#include <QPainter>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int HandleReach = 5;  // from the middle of a handle to its outline

QRect around(QPoint from, QPoint to, int reach) {
    const QPoint first(std::min(from.x(), to.x()), std::min(from.y(), to.y()));
    const QPoint last(std::max(from.x(), to.x()), std::max(from.y(), to.y()));
    return QRect(first, last).adjusted(-reach, -reach, reach, reach);
}

}  // namespace

std::optional<int> MapPen::widthOf(const QString& text) {
    const auto width = toInt16(text);
    return width && *width >= 1 ? std::optional<int>(*width) : std::nullopt;
}

void MapPen::takeWidth() {
    const auto width = widthOf(widthText_);
    if (!width) {
        throw Error(error_number::TypeMismatch, u"takeWidth"_s, u"Type mismatch."_s,
                    u"the pen's width is no number of at least 1"_s);
    }
    drawWidth_ = *width;
}

void MapPen::followWidth() {
    drawWidth_ = widthOf(widthText_).value_or(drawWidth_);
}

QColor MapPen::color() const {
    return colorOf(DrawColor);
}

QPen MapPen::pen() const {
    return {color(), static_cast<qreal>(drawWidth_), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// The middle of a pixel is the middle of an odd line; an even one lies between two pixels. Either
/// way its core has the colour as it is.
void MapPen::aim(QPainter& painter) const {
    painter.setPen(pen());
    if (drawWidth_ > 1) {
        painter.setRenderHint(QPainter::Antialiasing);
        const double half = drawWidth_ % 2 == 1 ? 0.5 : 0.0;
        painter.translate(half, half);
    }
}

void MapPen::paint(const QRect& area, const std::function<void(QPainter&)>& draw) {
    const QRect inside = area & QRect(0, 0, surface_.ScaleWidth(), surface_.ScaleHeight());
    if (inside.isEmpty()) {
        return;
    }
    QPainter painter(&surface_.scratchLayer(inside));
    painter.setClipRect(inside);
    draw(painter);
    Q_EMIT changed(inside);
}

void MapPen::wipe() {
    const QRect wiped = surface_.wipeScratchLayer();
    if (!wiped.isEmpty()) {
        Q_EMIT changed(wiped);
    }
}

void MapPen::dot() {
    paint(around(position_, position_, reach()), [this](QPainter& painter) {
        aim(painter);
        painter.drawPoint(position_);
    });
}

void MapPen::lineTo(QPoint position) {
    line(position_, position);
    position_ = position;
}

void MapPen::line(QPoint from, QPoint to) {
    paint(around(from, to, reach()), [&](QPainter& painter) {
        aim(painter);
        painter.drawLine(from, to);
    });
}

void MapPen::dottedLine(QPoint from, QPoint to) {
    paint(around(from, to, 1), [&](QPainter& painter) {
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.drawLine(from, to);
    });
}

void MapPen::circle(QPoint centre, double radius) {
    const QRectF bounds(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    paint(bounds.toAlignedRect().adjusted(-reach(), -reach(), reach(), reach()),
          [&](QPainter& painter) {
              aim(painter);
              painter.drawEllipse(bounds);
          });
}

void MapPen::handle(QPoint centre) {
    const QRect outline = around(centre, centre, HandleReach);
    paint(outline, [&](QPainter& painter) {
        painter.fillRect(outline, Qt::black);
        painter.fillRect(outline.adjusted(1, 1, -1, -1), Qt::white);
    });
    followWidth();
}

void MapPen::draw(const weather::Drawing& drawing) {
    paint(weather::boundsOf(drawing).toAlignedRect(),
          [&](QPainter& painter) { weather::paint(painter, drawing); });
}

void MapPen::lay(const QImage& picture, QPoint corner) {
    paint(QRect(corner, picture.size()),
          [&](QPainter& painter) { painter.drawImage(corner, picture); });
}

void MapPen::copyBlock(const QImage& source, const QRect& block) {
    const QRect part = block & source.rect();
    paint(part, [&](QPainter& painter) { painter.drawImage(part.topLeft(), source, part); });
}

}  // namespace nubivane
