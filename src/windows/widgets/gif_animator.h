// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/animation.h"
#include "windows/widgets/picture_box.h"

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

namespace nubivane {

/// A box in which an animation plays as long as it can be seen.
class GifAnimator : public PictureBox {
    Q_OBJECT

  public:
    explicit GifAnimator(QWidget* parent);

    /// Plays an animation from its start; nothing empties the box.
    void setAnimation(std::shared_ptr<const Animation> animation);
    /// Plays a file (path with backslashes) at its own size. One that is not there or no picture
    /// takes the box away: whatever it decorates goes on without it.
    void playFile(const QString& path);
    bool isPlaying() const { return timer_.isActive(); }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void showImageOfNow();

    std::shared_ptr<const Animation> animation_;
    QElapsedTimer time_;
    QTimer timer_;
};

}  // namespace nubivane
