// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QSize>
#include <QTimer>

#include <functional>
#include <optional>

class QWidget;

namespace nubivane {

/// Puts a window so that the corner of its frame lies at a place of the screen. How large the frame
/// is shows only when the window stands, and some window managers take the place for that of the
/// window inside it: where it has come to is looked at then, and mended.
class WindowPlace : public QObject {
    Q_OBJECT

  public:
    /// Where the corner of a frame of a size belongs.
    using Wanted = std::function<QPoint(const QSize& frame)>;

    explicit WindowPlace(QWidget& window);

    void put(Wanted wanted);
    void put(QPoint corner);

    /// The corner of the frame: where it was put as long as nobody has moved it, so that a window
    /// that is put there again and again never creeps.
    QPoint corner() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void watch();
    void sendAgain();
    void check();

    QWidget& window_;
    Wanted wanted_;
    std::optional<QPoint> put_;    ///< what was wanted last
    QPoint sent_;                  ///< where it was told to stand last
    std::optional<QPoint> found_;  ///< what came of it
    int tries_ = 0;
    bool painted_ = false;  ///< since it was shown last
    QTimer watching_;
};

}  // namespace nubivane
