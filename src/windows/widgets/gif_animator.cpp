// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/gif_animator.h"

#include "engine/core/error.h"

#include <utility>

namespace nubivane {

GifAnimator::GifAnimator(QWidget* parent) : PictureBox(parent) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &GifAnimator::showImageOfNow);
}

void GifAnimator::setAnimation(std::shared_ptr<const Animation> animation) {
    animation_ = std::move(animation);
    time_.start();
    showImageOfNow();
}

void GifAnimator::playFile(const QString& path) {
    try {
        const auto animation = std::make_shared<const Animation>(Animation::read(path));
        setFixedSize(animation->size());
        setAnimation(animation);
        show();
    } catch (const Error&) {
        setAnimation(nullptr);
        hide();
    }
}

void GifAnimator::showImageOfNow() {
    timer_.stop();
    setImage(animation_ ? animation_->pictureAt(time_.elapsed()) : QImage());
    if (animation_ && isVisible()) {
        if (const std::optional<int> next = animation_->nextChange(time_.elapsed())) {
            timer_.start(*next);
        }
    }
}

void GifAnimator::showEvent(QShowEvent* event) {
    PictureBox::showEvent(event);
    showImageOfNow();
}

void GifAnimator::hideEvent(QHideEvent* event) {
    timer_.stop();
    PictureBox::hideEvent(event);
}

}  // namespace nubivane
