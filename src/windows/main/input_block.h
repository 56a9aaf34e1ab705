// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace nubivane {

/// Keeps the person's input from a window for a while: pointer, keys, drops and the close box.
/// Unlike a disabled window it neither turns grey for the time of a save nor loses the place of the
/// keyboard.
class InputBlock : public QObject {
    Q_OBJECT

  public:
    explicit InputBlock(QWidget& window) : window_(window) {}

    void setActive(bool active);
    bool isActive() const { return active_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& window_;
    bool active_ = false;
};

}  // namespace nubivane
