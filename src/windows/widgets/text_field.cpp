// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/text_field.h"

#include "engine/core/shell.h"
#include "windows/widgets/one_line.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

#include <limits>

namespace nubivane {

TextField::TextField(QWidget* parent) : QLineEdit(parent) {
    // What a project holds is never cut short by being looked at.
    setMaxLength(std::numeric_limits<int>::max());
    keepOneLine(*this);
}

void TextField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        entered();
        selectAll();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    switch (event->reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            break;  // the field keeps its place and gets the keyboard back
        default:
            left();
    }
}

CheckedField::CheckedField(Shell& shell, const QString& refusal, QWidget* parent)
    : TextField(parent), shell_(shell), refusal_(refusal) {}

void CheckedField::bind(std::function<QString()> value, std::function<bool(const QString&)> apply) {
    value_ = std::move(value);
    apply_ = std::move(apply);
}

bool CheckedField::take() {
    const bool good = apply_(text());
    showValue();
    return good;
}

void CheckedField::commit() {
    if (apply_ && !take()) {
        refuse();
    }
}

void CheckedField::refuse() {
    showValue();
    shell_.messageBox({refusal_, Icon::Critical, Buttons::Ok, {}});
    selectAll();
}

/// What nobody has changed was good enough before and is no reason to complain now.
void CheckedField::left() {
    if (apply_ && isModified() && text() != value_() && !take()) {
        // A box in the middle of a change of focus would swallow the click that caused it.
        QTimer::singleShot(0, this, &CheckedField::refuse);
    }
}

}  // namespace nubivane
