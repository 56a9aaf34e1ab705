// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace nubivane {

/// A text box of several lines that holds a grey prompt until something is typed. The prompt is its
/// text like any other. Whoever enters the box finds all of it selected.
class PromptEdit : public QPlainTextEdit {
    Q_OBJECT

  public:
    PromptEdit(const QString& prompt, QWidget* parent);

    /// Widgets to which the keyboard may go without the prompt coming back.
    void setQuietNeighbours(const QList<QWidget*>& widgets) { quiet_ = widgets; }

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void showPrompt();
    void setQuiet(bool quiet);

    QString prompt_;
    QList<QWidget*> quiet_;
};

}  // namespace nubivane
