// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/frames.h"

namespace nubivane {

using namespace Qt::StringLiterals;

cFrame& cFrames::Add() {
    frames_.push_back(std::make_unique<cFrame>());
    return *frames_.back();
}

void cFrames::Insert(qint32 index, std::unique_ptr<cFrame> frame) {
    const std::size_t position = index == Count() + 1 ? frames_.size() : at(index);
    frames_.insert(frames_.begin() + static_cast<std::ptrdiff_t>(position), std::move(frame));
}

std::unique_ptr<cFrame> cFrames::Take(qint32 index) {
    const auto place = frames_.begin() + static_cast<std::ptrdiff_t>(at(index));
    std::unique_ptr<cFrame> frame = std::move(*place);
    frames_.erase(place);
    return frame;
}

qint16 cFrames::NumSprite() const {
    qint32 sum = 0;
    for (const auto& frame : frames_) {
        sum += frame->Sprites().Count();
    }
    return static_cast<qint16>(sum);
}

std::size_t cFrames::at(qint32 index) const {
    if (index < 1 || index > Count()) {
        throw Error(error_number::OutOfRange, u"cFrames"_s, u"Position outside the list."_s,
                    QStringLiteral("Frame %1 of %2").arg(index).arg(Count()));
    }
    return static_cast<std::size_t>(index) - 1;
}

}  // namespace nubivane
