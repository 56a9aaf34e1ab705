// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/link_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace nubivane {

LinkLabel::LinkLabel(const QString& text, const QColor& color, QWidget* parent)
    : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, color);
    setPalette(colors);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleDescription(tr("Link"));
}

void LinkLabel::mousePressEvent(QMouseEvent* event) {
    event->accept();  // so that the release comes here too
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        Q_EMIT activated();
    }
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            Q_EMIT activated();
            break;
        default:
            QLabel::keyPressEvent(event);
    }
}

void LinkLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void LinkLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

}  // namespace nubivane
