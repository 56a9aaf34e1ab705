// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/map_viewport.h"

#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int Rest = 70;   // where the map lies when nothing is scrolled, pixels
constexpr int Margin = 5;  // free ground that must be left beside the map
constexpr int ShadowSize = 6;
constexpr int Notch = 120;  // of a wheel, eighths of a degree

}  // namespace

MapViewport::MapViewport(QWidget* parent)
    : QWidget(parent),
      hScroll1_(new QScrollBar(Qt::Horizontal, this)),
      vScroll1_(new QScrollBar(Qt::Vertical, this)),
      barGround_(new QWidget(this)) {
    barGround_->setAutoFillBackground(true);
    setObjectName("pctBackGround");
    hScroll1_->setObjectName("HScroll1");
    vScroll1_->setObjectName("VScroll1");
    for (QScrollBar* bar : {hScroll1_, vScroll1_}) {
        bar->setMinimum(1);
        bar->hide();
        connect(bar, &QScrollBar::valueChanged, this, &MapViewport::placeMap);
    }
}

void MapViewport::setMap(QWidget* map) {
    map_ = map;
    map_->setParent(this);
    map_->lower();
    setScrollBars();
}

void MapViewport::setScrollBars() {
    if (!map_) {
        return;
    }
    map_->move(Rest, Rest);
    setScrollBar(hScroll1_, Rest, map_->width(), width());
    setScrollBar(vScroll1_, Rest, map_->height(), height());
    placeBars();
    map_->move(Rest, Rest);
    update();
}

void MapViewport::setScrollBar(QScrollBar* bar, int mapStart, int mapExtent, int viewportExtent) {
    const bool needed = mapStart + mapExtent + Margin > viewportExtent;
    const QSignalBlocker noScrolling(bar);
    // With a maximum of 1 there would be no step to scroll by.
    bar->setMaximum(needed ? std::max(2, (mapExtent - viewportExtent) / 2) : 2);
    bar->setValue(1);
    bar->setPageStep(std::max(1, bar->maximum() / 5));
    bar->setVisible(needed);
}

/// Where the map begins on one axis for the value of its bar.
int MapViewport::offset(const QScrollBar* bar, int mapExtent, int viewportExtent) const {
    if (bar->isHidden()) {
        return Rest;
    }
    const double distance = mapExtent + 2.0 * Rest - viewportExtent;
    const int step = std::max(1, static_cast<int>(distance / (bar->maximum() - 1)));
    return step + Rest - bar->value() * step;
}

void MapViewport::placeMap() {
    if (map_) {
        map_->move(offset(hScroll1_, map_->width(), width()),
                   offset(vScroll1_, map_->height(), height()));
        update();
    }
}

void MapViewport::placeBars() {
    const int thickness = vScroll1_->sizeHint().width();
    const bool hasH = !hScroll1_->isHidden();
    const bool hasV = !vScroll1_->isHidden();
    vScroll1_->setGeometry(width() - thickness - 1, 1, thickness,
                           std::max(0, height() - 2 - (hasH ? thickness : 0)));
    hScroll1_->setGeometry(1, height() - thickness - 1,
                           std::max(0, width() - 2 - (hasV ? thickness : 0)), thickness);
    QRegion strips;
    if (hasV) {
        strips += QRect(width() - thickness - 2, 0, thickness + 2, height());
    }
    if (hasH) {
        strips += QRect(0, height() - thickness - 2, width(), thickness + 2);
    }
    barGround_->setGeometry(rect());
    barGround_->setMask(strips);
    barGround_->setVisible(hasH || hasV);
    for (QWidget* part : std::initializer_list<QWidget*>{barGround_, hScroll1_, vScroll1_}) {
        part->raise();
    }
}

QRect MapViewport::visibleMapRect() const {
    return map_ ? rect().translated(-map_->pos()).intersected(map_->rect()) : QRect();
}

void MapViewport::setHint(const QString& text) {
    if (hint_ != text) {
        hint_ = text;
        update();
    }
}

void MapViewport::resizeEvent(QResizeEvent*) {
    setScrollBars();
}

void MapViewport::wheelEvent(QWheelEvent* event) {
    QScrollBar* bar =
        event->modifiers() & Qt::ShiftModifier || vScroll1_->isHidden() ? hScroll1_ : vScroll1_;
    if (!bar->isHidden()) {
        // Fine wheels and touchpads send parts of a notch.
        wheel_ += event->angleDelta().y() + event->angleDelta().x();
        const int notch = std::max(1, bar->maximum() / 8);
        const int pixels = wheel_ * notch / Notch;
        wheel_ -= pixels * Notch / notch;
        bar->setValue(bar->value() - pixels);
    }
    event->accept();
}

/// A quiet ground in the theme's own tone, on which the map casts a soft shadow.
void MapViewport::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor window = palette().color(QPalette::Window);
    const bool dark = window.lightness() < 128;
    painter.fillRect(rect(), dark ? window.darker(125) : window.darker(112));
    if (!map_ || map_->width() <= 2) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int i = ShadowSize; i > 0; --i) {
        painter.setBrush(QColor(0, 0, 0, 10));
        painter.drawRoundedRect(QRectF(map_->geometry()).adjusted(-i, -i + 2, i, i + 2), i, i);
    }
    if (!hint_.isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.setOpacity(0.75);
        const int left = std::max(0, map_->x());
        const QRect area(left, std::max(0, map_->y() - 56), std::min(map_->width(), width() - left),
                         44);
        painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, hint_);
    }
}

}  // namespace nubivane
