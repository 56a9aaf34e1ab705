// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/drawing.h"

#include <QPainter>

#include <iterator>
#include <utility>

namespace nubivane::weather {

namespace {

/// A pixel that is touched at its rim is a whole pixel.
constexpr qreal Rim = 1;

}  // namespace

Ink lineOf(const QPainterPath& path, const QColor& color, qreal width, Qt::PenCapStyle cap) {
    return {path, color, width, {}, cap};
}

Ink filled(const QPainterPath& path, const QColor& color) {
    return {path, {}, 0, color, Qt::FlatCap};
}

Ink dotOf(const QPointF& middle, qreal radius, const QColor& color) {
    QPainterPath disc;
    disc.addEllipse(middle, radius, radius);
    return filled(disc, color);
}

void append(Drawing& drawing, Drawing more) {
    drawing.insert(drawing.end(), std::make_move_iterator(more.begin()),
                   std::make_move_iterator(more.end()));
}

void paint(QPainter& painter, const Drawing& drawing) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Ink& ink : drawing) {
        const bool hasLine = ink.width > 0 && ink.line.isValid();
        painter.setPen(hasLine ? QPen(ink.line, ink.width, Qt::SolidLine, ink.cap, Qt::RoundJoin)
                               : QPen(Qt::NoPen));
        painter.setBrush(ink.fill.isValid() ? QBrush(ink.fill) : QBrush(Qt::NoBrush));
        painter.drawPath(ink.path);
    }
    painter.restore();
}

QRectF boundsOf(const Drawing& drawing) {
    QRectF bounds;
    for (const Ink& ink : drawing) {
        // A square cap reaches out by half the width in both directions.
        const qreal reach = ink.width + Rim;
        bounds |= ink.path.controlPointRect().adjusted(-reach, -reach, reach, reach);
    }
    // Whoever asks wants to know which pixels to paint.
    return bounds.isNull() ? bounds : QRectF(bounds.toAlignedRect());
}

}  // namespace nubivane::weather
