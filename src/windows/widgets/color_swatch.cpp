// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/color_swatch.h"

#include "engine/gif/color_value.h"
#include "engine/model/forecast.h"

#include <QPainter>

namespace nubivane {

void paintSwatch(QPainter& painter, const QRect& rect, qint32 color) {
    painter.save();
    painter.fillRect(rect, color == NoColor ? QColor(Qt::white) : colorOf(color));
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    if (color == NoColor) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(200, 40, 40), 1.5));
        painter.drawLine(rect.bottomLeft() + QPoint(1, 0), rect.topRight() + QPoint(0, 1));
    }
    painter.restore();
}

ColorSwatch::ColorSwatch(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorSwatch::setBackColor(qint32 color) {
    color_ = color;
    update();
}

QSize ColorSwatch::sizeHint() const {
    const int height = fontMetrics().ascent() + 3;
    return {height * 2, height};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSwatch(painter, rect(), color_);
}

}  // namespace nubivane
