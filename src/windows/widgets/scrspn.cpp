// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/scrspn.h"

#include "engine/core/number_text.h"
#include "windows/widgets/one_line.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int NotchOfWheel = 120;

}  // namespace

ScrSpn::ScrSpn(QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (const int direction : {1, -1}) {
        auto* arrow = new QToolButton(this);
        arrow->setObjectName(direction > 0 ? "up" : "down");
        arrow->setAccessibleName(direction > 0 ? tr("More") : tr("Less"));
        arrow->setArrowType(direction > 0 ? Qt::UpArrow : Qt::DownArrow);
        arrow->setAutoRepeat(true);
        // The keyboard steps in the field; two more stops on its way would only be in the way.
        arrow->setFocusPolicy(Qt::NoFocus);
        arrow->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Ignored);
        connect(arrow, &QToolButton::clicked, this, [this, direction] { step(direction); });
        column->addWidget(arrow);
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void ScrSpn::setRange(int min, int max) {
    min_ = min;
    max_ = std::max(min, max);
    setValue(value_);
}

void ScrSpn::setValue(int value) {
    value = std::clamp(value, min_, max_);
    if (value != value_) {
        value_ = value;
        writeField();
        Q_EMIT valueChanged(value_);
    }
}

void ScrSpn::attach(QLineEdit& field) {
    field_ = &field;
    keepOneLine(field);
    field.installEventFilter(this);
    connect(&field, &QLineEdit::textChanged, this, &ScrSpn::readField);
    writeField();
}

/// Writes even a value that has not moved: at the end of the range an arrow must still replace a
/// text that is no number.
void ScrSpn::step(int by) {
    setValue(value_ + by);
    writeField();
}

void ScrSpn::writeField() {
    if (field_) {
        field_->setText(QString::number(value_));
    }
}

/// The text stays as it is typed, "07" included.
void ScrSpn::readField() {
    const auto typed = toInt32(field_->text());
    if (typed && *typed >= min_ && *typed <= max_ && *typed != value_) {
        value_ = *typed;
        Q_EMIT valueChanged(value_);
    }
}

bool ScrSpn::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            step(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    if (event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ScrSpn::wheelEvent(QWheelEvent* event) {
    turned_ += event->angleDelta().y();
    if (const int notches = turned_ / NotchOfWheel) {
        step(notches);
    }
    turned_ %= NotchOfWheel;
    event->accept();
}

}  // namespace nubivane
