// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_control.h"

#include "engine/export/label_painter.h"

#include <QPainter>

namespace nubivane {

void GifSymbol::setAnimation(std::shared_ptr<const Animation> other) {
    animation = std::move(other);
    playing_ = false;
    image_ = 0;
}

void GifSymbol::StartAnimation(qint64 nowMs) {
    if (animation && animation->moves()) {
        playing_ = true;
        startedMs_ = nowMs;
        image_ = 0;
    }
}

bool GifSymbol::advance(qint64 nowMs) {
    if (!playing_) {
        return false;
    }
    const int image = animation->imageAt(nowMs - startedMs_);
    return std::exchange(image_, image) != image;
}

std::optional<qint64> GifSymbol::nextChange(qint64 nowMs) const {
    if (!playing_) {
        return std::nullopt;
    }
    const auto wait = animation->nextChange(nowMs - startedMs_);
    return wait ? std::optional(nowMs + *wait) : std::nullopt;
}

void GifSymbol::paint(QPainter& painter) const {
    if (animation) {
        painter.drawImage(rect, animation->images()[static_cast<std::size_t>(image_)].picture);
    }
}

void LblTesto::show(const cLabel& label) {
    const qint32 shown = look_.BackColor;
    look_ = label;
    look_.BackColor = shown;
    look_.BorderColor = 0;
    rect.setSize(labelSize(label));
}

void LblTesto::paint(QPainter& painter) const {
    paintLabel(painter, look_, rect, FontStrikethru);
}

}  // namespace nubivane
