// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/sprite_stack.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace nubivane {

/// The one timer that keeps all Symbols of the canvas playing. It is set to the next image that is
/// due and stands still while nothing moves or the canvas is hidden.
class CanvasClock : public QObject {
  public:
    explicit CanvasClock(SpriteStack& sprites);

    /// Milliseconds since the clock was made.
    qint64 now() const { return time_.elapsed(); }
    /// Looks anew for what is due: after sprites came, went, began or ceased to play.
    void schedule();
    void setVisible(bool visible);
    bool isRunning() const { return timer_.isActive(); }

  private:
    void tick();

    SpriteStack& sprites_;
    QElapsedTimer time_;
    QTimer timer_;
    bool visible_ = false;
};

}  // namespace nubivane
