// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace nubivane {

/// A button that is a field of one colour.
class SwatchButton : public QAbstractButton {
    Q_OBJECT

  public:
    explicit SwatchButton(QWidget* parent) : QAbstractButton(parent) {}

    /// A 32-bit colour, red in the low byte.
    qint32 BackColor() const { return backColor_; }
    void setBackColor(qint32 color);

    QSize sizeHint() const override { return {40, 24}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    qint32 backColor_ = 0;
};

}  // namespace nubivane
