// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/wrapped_field.h"

#include "windows/widgets/one_line.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

#include <algorithm>
#include <cmath>

namespace nubivane {

namespace {

constexpr int MostRows = 8;

}  // namespace

WrappedField::WrappedField(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(2);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        fitRows();
        Q_EMIT lineChanged(text());
    });
    fitRows();
}

QString WrappedField::text() const {
    return asOneLine(toPlainText());
}

void WrappedField::setText(const QString& text) {
    setPlainText(asOneLine(text));
}

int WrappedField::heightOf(int rows) const {
    return rows * fontMetrics().lineSpacing() +
           static_cast<int>(std::ceil(2 * document()->documentMargin())) + 2 * frameWidth();
}

QSize WrappedField::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 20, heightOf(1)};
}

QSize WrappedField::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 8, heightOf(1)};
}

void WrappedField::fitRows() {
    int rows = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        rows += std::max(1, block.lineCount());
    }
    setVerticalScrollBarPolicy(rows > MostRows ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setFixedHeight(heightOf(std::clamp(rows, 1, MostRows)));
}

void WrappedField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        selectAll();
        event->accept();
    } else if (event->key() == Qt::Key_Escape) {
        event->ignore();  // it closes the window
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void WrappedField::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason) {
        selectAll();
    }
}

void WrappedField::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        fitRows();
    }
}

void WrappedField::insertFromMimeData(const QMimeData* source) {
    insertPlainText(asOneLine(source->text()));
}

}  // namespace nubivane
