// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace nubivane {

/// A field for one line of text that is longer than the field: it is shown wrapped, and the field
/// grows with it up to a few rows. Enter selects the text, Tab leaves the field, and no line break
/// comes in.
class WrappedField : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit WrappedField(QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// The text is another one, typed or set.
    void lineChanged(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    int heightOf(int rows) const;
    void fitRows();
};

}  // namespace nubivane
