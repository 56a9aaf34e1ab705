// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/prompt_edit.h"

#include "windows/widgets/quiet_color.h"

#include <QApplication>
#include <QFocusEvent>

namespace nubivane {

namespace {

/// The keyboard comes from, or goes to, another window or this one's own menu.
bool staysInPlace(const QFocusEvent& event) {
    return event.reason() == Qt::ActiveWindowFocusReason ||
           event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
}

}  // namespace

PromptEdit::PromptEdit(const QString& prompt, QWidget* parent)
    : QPlainTextEdit(parent), prompt_(prompt) {
    setTabChangesFocus(true);
    showPrompt();
}

void PromptEdit::setQuiet(bool quiet) {
    QPalette colors = QApplication::palette(this);
    if (quiet) {
        colors.setColor(QPalette::Text, quietColor(colors, QPalette::Text, QPalette::Base));
    }
    setPalette(colors);
}

void PromptEdit::showPrompt() {
    setPlainText(prompt_);
    setQuiet(true);
}

void PromptEdit::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (toPlainText() == prompt_) {
        clear();
        setQuiet(false);
    }
    if (!staysInPlace(*event)) {
        // After the press that may have brought the keyboard has placed the cursor.
        QMetaObject::invokeMethod(this, &QPlainTextEdit::selectAll, Qt::QueuedConnection);
    }
}

void PromptEdit::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (!staysInPlace(*event) && toPlainText().trimmed().isEmpty() &&
        !quiet_.contains(QApplication::focusWidget())) {
        showPrompt();
    }
}

}  // namespace nubivane
