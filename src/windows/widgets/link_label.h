// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <functional>

namespace nubivane {

/// An underlined text that does something when it is clicked, or by Return and the space bar.
class LinkLabel : public QLabel {
    Q_OBJECT

  public:
    LinkLabel(const QString& text, const QColor& color, QWidget* parent = nullptr);

  Q_SIGNALS:
    void activated();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace nubivane
