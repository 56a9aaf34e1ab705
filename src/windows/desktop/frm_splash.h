// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

namespace nubivane {

/// The window shown while the editor is being built: for 1.5 seconds, then its timer tells `init`,
/// the splash goes, and it tells `done`.
class frmSplash : public QWidget {
    Q_OBJECT

  public:
    static constexpr int ShownMs = 1500;

    explicit frmSplash(int shownMs = ShownMs);

  Q_SIGNALS:
    void init();
    void done();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void Timer1_Timer();

    QTimer Timer1_;
    QPixmap picture_;
    QString lblTitle_;
};

}  // namespace nubivane
