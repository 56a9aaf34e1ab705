// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace nubivane {

/// Paints a field of a colour with a thin edge; "none" is a white field with a stroke through it.
void paintSwatch(QPainter& painter, const QRect& rect, qint32 color);

/// A small field that shows a colour.
class ColorSwatch : public QWidget {
    Q_OBJECT

  public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    void setBackColor(qint32 color);
    qint32 BackColor() const { return color_; }

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    qint32 color_ = 0;
};

}  // namespace nubivane
