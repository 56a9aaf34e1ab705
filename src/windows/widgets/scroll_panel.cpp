// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/scroll_panel.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int LeastRows = 5;

}  // namespace

ScrollPanel::ScrollPanel(QWidget* parent)
    : QFrame(parent),
      view_(new QWidget(this)),
      fraText_(new QWidget(view_)),
      VScroll_(new QScrollBar(Qt::Vertical, this)) {
    setObjectName("fraContainer");
    setFrameShape(QFrame::StyledPanel);
    fraText_->setObjectName("fraText");
    fraText_->installEventFilter(this);
    VScroll_->setObjectName("VScroll");
    VScroll_->setSingleStep(1);
    VScroll_->hide();
    connect(VScroll_, &QScrollBar::valueChanged, this, &ScrollPanel::place);
}

QSize ScrollPanel::minimumSizeHint() const {
    const int frame = 2 * frameWidth();
    return {fraText_->minimumSizeHint().width() + VScroll_->sizeHint().width() + frame,
            LeastRows * (fontMetrics().height() + 8) + frame};
}

/// The panel is made as tall as the bar's steps reach, so that no pixel of it stays out of sight.
void ScrollPanel::arrange() {
    const QRect room = contentsRect();
    const int excess = std::max(0, fraText_->sizeHint().height() - room.height());
    const int steps = (excess + Step - 1) / Step;
    const int barWidth = VScroll_->sizeHint().width();
    VScroll_->setVisible(steps > 0);
    VScroll_->setGeometry(room.right() + 1 - barWidth, room.top(), barWidth, room.height());
    VScroll_->setPageStep(std::max(1, room.height() / Step));
    VScroll_->setMaximum(steps);
    view_->setGeometry(room.adjusted(0, 0, steps > 0 ? -barWidth : 0, 0));
    fraText_->resize(view_->width(), room.height() + steps * Step);
    place();
}

void ScrollPanel::place() {
    fraText_->move(0, -VScroll_->value() * Step);
}

void ScrollPanel::ensureVisible(const QWidget& part) {
    const int top = part.mapTo(view_, QPoint(0, 0)).y();
    const int below = top + part.height() - view_->height();
    if (top < 0) {
        VScroll_->setValue(VScroll_->value() + (top - (Step - 1)) / Step);
    } else if (below > 0) {
        VScroll_->setValue(VScroll_->value() + (below + Step - 1) / Step);
    }
}

void ScrollPanel::resizeEvent(QResizeEvent*) {
    arrange();
}

void ScrollPanel::showEvent(QShowEvent*) {
    arrange();
}

void ScrollPanel::wheelEvent(QWheelEvent* event) {
    if (VScroll_->isEnabled()) {
        QApplication::sendEvent(VScroll_, event);
    }
}

bool ScrollPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == fraText_ && event->type() == QEvent::LayoutRequest) {
        arrange();
    }
    return QFrame::eventFilter(watched, event);
}

}  // namespace nubivane
