// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>

#include <vector>

class QPainter;

namespace nubivane::weather {

/// A path and how it is inked. Without a width it has no line, without a valid colour no filling.
struct Ink {
    QPainterPath path;
    QColor line{};
    qreal width = 0;
    QColor fill{};
    Qt::PenCapStyle cap = Qt::FlatCap;
};

/// What a figure consists of, in the order of painting.
using Drawing = std::vector<Ink>;

/// A line along a path.
Ink lineOf(const QPainterPath& path, const QColor& color, qreal width,
           Qt::PenCapStyle cap = Qt::FlatCap);
/// A path filled without an outline.
Ink filled(const QPainterPath& path, const QColor& color);
/// A disc.
Ink dotOf(const QPointF& middle, qreal radius, const QColor& color);

void append(Drawing& drawing, Drawing more);

/// Paints antialiased, whatever the painter was set to, and leaves the painter as it was.
void paint(QPainter& painter, const Drawing& drawing);
/// The pixels that `paint` may touch, whole ones.
QRectF boundsOf(const Drawing& drawing);

}  // namespace nubivane::weather
