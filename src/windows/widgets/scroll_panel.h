// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QScrollBar;

namespace nubivane {

/// `fraContainer`: a window onto the panel `fraText`, which the scroll bar `VScroll` moves in steps
/// of 16 pixels when it is the taller one. Otherwise the bar is hidden and the panel has all the
/// room.
class ScrollPanel : public QFrame {
    Q_OBJECT

  public:
    static constexpr int Step = 16;

    explicit ScrollPanel(QWidget* parent);

    /// Where the content goes; its layout tells its height.
    QWidget* fraText() const { return fraText_; }
    QScrollBar* VScroll() const { return VScroll_; }

    /// Scrolls as far as needed to show all of a part of the content.
    void ensureVisible(const QWidget& part);

    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void arrange();
    void place();

    QWidget* view_;  ///< keeps the panel off the border
    QWidget* fraText_;
    QScrollBar* VScroll_;
};

}  // namespace nubivane
