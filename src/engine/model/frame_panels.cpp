// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/frame_panels.h"

namespace nubivane {

Picture FramePanels::picture(qint32 frame) const {
    return contains(frame) ? panels_[static_cast<std::size_t>(frame) - 1] : Picture();
}

void FramePanels::setPicture(qint32 frame, const Picture& picture) {
    if (contains(frame)) {
        panels_[static_cast<std::size_t>(frame) - 1] = picture;
    }
}

void FramePanels::reset(qint32 count) {
    panels_.assign(static_cast<std::size_t>(count), Picture());
}

void FramePanels::insert(qint32 frame, const Picture& picture) {
    if (frame > Count()) {
        resize(frame - 1);  // fewer panels than Frames after a project that was read in part
    }
    panels_.insert(panels_.begin() + (frame - 1), picture);
}

void FramePanels::remove(qint32 frame) {
    if (contains(frame)) {
        panels_.erase(panels_.begin() + (frame - 1));
    }
}

}  // namespace nubivane
