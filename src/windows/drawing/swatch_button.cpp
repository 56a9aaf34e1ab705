// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/swatch_button.h"

#include "engine/gif/color_value.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

namespace nubivane {

void SwatchButton::setBackColor(qint32 color) {
    backColor_ = color;
    update();
}

/// A rim of white inside one of grey parts any colour from any ground.
void SwatchButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect field = rect().adjusted(2, 2, -3, -3);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::white);
    painter.drawRect(field);
    painter.fillRect(field.adjusted(2, 2, -1, -1), colorOf(backColor_));
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

}  // namespace nubivane
