// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/picture_box.h"

#include "windows/widgets/quiet_color.h"

#include <QPainter>
#include <QStyleOptionFrame>

namespace nubivane {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {}

void PictureBox::setImage(const QImage& image) {
    image_ = image;
    update();
}

void PictureBox::setEmptyText(const QString& text) {
    emptyText_ = text;
    update();
}

void PictureBox::setBordered(bool bordered) {
    bordered_ = bordered;
    update();
}

void PictureBox::paintFrame(QPainter& painter) {
    painter.fillRect(rect(), palette().color(QPalette::Base));
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.rect = rect();
    frame.lineWidth = 1;
    frame.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
}

void PictureBox::paintEvent(QPaintEvent*) {
    constexpr int Margin = 4;
    QPainter painter(this);
    QRect room = rect();
    if (bordered_) {
        paintFrame(painter);
        room.adjust(Margin, Margin, -Margin, -Margin);
    }
    if (image_.isNull()) {
        painter.setPen(quietColor(palette(), QPalette::WindowText, QPalette::Window));
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
        return;
    }
    QSize size = image_.size();
    if (size.width() > room.width() || size.height() > room.height()) {
        size = size.scaled(room.size(), Qt::KeepAspectRatio);
    }
    QRect target(QPoint(), size);
    target.moveCenter(room.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image_);
}

}  // namespace nubivane
