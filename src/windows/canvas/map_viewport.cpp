// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/map_viewport.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

constexpr int Rest = 70;       // where the map lies when nothing is scrolled, pixels
constexpr int TightRest = 16;  // the same for a map that is to be seen whole
constexpr int Margin = 5;      // free ground that must be left beside the map
constexpr int ShadowSize = 6;
constexpr int Notch = 120;  // of a wheel, eighths of a degree

}  // namespace

MapViewport::MapViewport(QWidget* parent)
    : QWidget(parent),
      hScroll1_(new QScrollBar(Qt::Horizontal, this)),
      vScroll1_(new QScrollBar(Qt::Vertical, this)),
      barGround_(new QWidget(this)),
      rest_(Rest) {
    barGround_->setAutoFillBackground(true);
    setObjectName("pctBackGround");
    hScroll1_->setObjectName("HScroll1");
    vScroll1_->setObjectName("VScroll1");
    for (QScrollBar* bar : {hScroll1_, vScroll1_}) {
        bar->setMinimum(1);
        bar->hide();
        connect(bar, &QScrollBar::valueChanged, this, &MapViewport::barMoved);
    }
}

void MapViewport::setMap(QWidget* map) {
    map_ = map;
    map_->setParent(this);
    map_->lower();
    setScrollBars();
}

MapViewport::Axis MapViewport::horizontal() const {
    return {hScroll1_, map_->width(), width(), rest_};
}

MapViewport::Axis MapViewport::vertical() const {
    return {vScroll1_, map_->height(), height(), rest_};
}

int MapViewport::Axis::distance() const {
    return bar->isHidden() ? 0 : map + 2 * rest - viewport;
}

int MapViewport::Axis::step() const {
    return std::max(1, distance() / (bar->maximum() - 1));
}

/// A map that fits goes from one of its few positions to the next, one of which shows it whole.
int MapViewport::Axis::notch() const {
    const int most = std::max(1, viewport / 4);
    return std::clamp(map <= viewport ? step() : distance() / 8, 1, most);
}

/// Whole steps fall short of the far edge by what was cut off them: the last value takes the rest.
int MapViewport::Axis::scrolledAt(int value) const {
    return value >= bar->maximum() ? distance() : std::min((value - 1) * step(), distance());
}

int MapViewport::Axis::valueAt(int scrolled) const {
    return scrolled >= distance() ? bar->maximum()
                                  : std::min(1 + scrolled / step(), bar->maximum() - 1);
}

void MapViewport::setScrollBars() {
    if (!map_) {
        return;
    }
    setScrollBar(horizontal());
    setScrollBar(vertical());
    placeBars();
    placeMap({});
}

void MapViewport::setScrollBar(const Axis& axis) {
    const bool needed = axis.rest + axis.map + Margin > axis.viewport;
    // With a maximum of 1 there would be no step to scroll by; a map that fits has a position
    // between the two that show its margins.
    const int least = axis.map <= axis.viewport ? 3 : 2;
    const QSignalBlocker noScrolling(axis.bar);
    axis.bar->setMaximum(needed ? std::max(least, (axis.map - axis.viewport) / 2) : 2);
    axis.bar->setValue(1);
    axis.bar->setPageStep(std::max(1, axis.bar->maximum() / 5));
    axis.bar->setVisible(needed);
}

void MapViewport::barMoved() {
    if (map_) {
        placeMap({horizontal().scrolledAt(hScroll1_->value()),
                  vertical().scrolledAt(vScroll1_->value())});
    }
}

void MapViewport::placeMap(QPoint scrolled) {
    map_->move(restPosition() - scrolled);
    update();
}

QPoint MapViewport::notch() const {
    return map_ ? QPoint(horizontal().notch(), vertical().notch()) : QPoint(1, 1);
}

bool MapViewport::scrollBy(QPoint pixels) {
    if (!map_) {
        return false;
    }
    const QPoint before = restPosition() - map_->pos();
    const QPoint wanted = before + pixels;
    const QPoint scrolled(std::clamp(wanted.x(), 0, horizontal().distance()),
                          std::clamp(wanted.y(), 0, vertical().distance()));
    if (scrolled == before) {
        return false;
    }
    for (const auto& [axis, at] :
         {std::pair(horizontal(), scrolled.x()), std::pair(vertical(), scrolled.y())}) {
        const QSignalBlocker noScrolling(axis.bar);
        axis.bar->setValue(axis.valueAt(at));
        axis.bar->update();
    }
    placeMap(scrolled);
    return true;
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

void MapViewport::ensureVisible(const QRect& rect) {
    const QRect seen = visibleMapRect();
    const QRect wanted = map_ ? rect & map_->rect() : QRect();
    if (seen.contains(wanted)) {
        return;
    }
    const QPoint off = wanted.center() - seen.center();
    const bool across = wanted.left() < seen.left() || wanted.right() > seen.right();
    const bool along = wanted.top() < seen.top() || wanted.bottom() > seen.bottom();
    scrollBy({across ? off.x() : 0, along ? off.y() : 0});
}

void MapViewport::setHint(const QString& text) {
    if (hint_ != text) {
        hint_ = text;
        update();
    }
}

QSize MapViewport::room() const {
    return size() - QSize(rest_ + Margin, rest_ + Margin);
}

void MapViewport::setTight(bool tight) {
    if (std::exchange(rest_, tight ? TightRest : Rest) != rest_) {
        setScrollBars();
    }
}

void MapViewport::resizeEvent(QResizeEvent*) {
    setScrollBars();
    Q_EMIT resized();
}

void MapViewport::mousePressEvent(QMouseEvent* event) {
    QWidget::mousePressEvent(event);
    Q_EMIT groundPressed();
}

void MapViewport::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() & Qt::ControlModifier) {
        turned_ += event->angleDelta().y();
        if (const int notches = turned_ / Notch) {
            Q_EMIT zoomTurned(notches, event->position().toPoint());
        }
        turned_ %= Notch;
        event->accept();
        return;
    }
    const bool sideways = event->modifiers() & Qt::ShiftModifier || vScroll1_->isHidden();
    // Fine wheels and touchpads send parts of a notch.
    wheel_ += (event->angleDelta().y() + event->angleDelta().x()) *
              (sideways ? notch().x() : notch().y());
    const int pixels = wheel_ / Notch;
    wheel_ -= pixels * Notch;
    scrollBy(sideways ? QPoint(-pixels, 0) : QPoint(0, -pixels));
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
