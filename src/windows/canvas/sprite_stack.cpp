// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_stack.h"

#include "engine/core/host_files.h"
#include "engine/picture/animation_cache.h"

#include <algorithm>

namespace nubivane {

SpriteStack::SpriteStack(Workspace& workspace, AnimationCache& animations)
    : workspace_(workspace), animations_(animations) {}

void SpriteStack::loadFrameSprites(qint32 frame) {
    if (frame < 1 || frame > workspace_.Frames().Count()) {
        return;
    }
    cSprites& sprites = workspace_.Frames().Item(frame).Sprites();
    for (cSymbol& symbol : sprites.Symbols()) {
        if (!host_files::fileExists(symbol.PathFileGif)) {
            continue;
        }
        GifSymbol& control = makeSymbol(symbol.PathFileGif);
        symbol.Index = control.Index;
        control.Tag = "1|" + symbol.Key_ + '|';
        control.rect = QRect(symbol.PosX, symbol.PosY, symbol.Width, symbol.Height);
        control.StartAnimation(now());
        show(control);
    }
    for (cLabel& label : sprites.Labels()) {
        LblTesto& control = makeLabel();
        label.Index = control.Index;
        control.Tag = "2|" + label.Key_ + '|';
        control.show(label);
        control.setBackColor(label.BackColor);
        control.rect.moveTo(label.PosX, label.PosY);
        show(control);
    }
    playingChanged();
}

template <class List, class Array>
void SpriteStack::unloadList(List& sprites, Array& array, bool remove) {
    for (qint32 i = sprites.Count(); i >= 1; --i) {
        auto& sprite = sprites.Item(i);
        // An index may be stale; only the control that bears this sprite's tag is its own.
        SpriteControl* control = array.find(sprite.Index);
        if (!control || control->key() != sprite.Key_) {
            control = find(QString::number(sprite.Type_), sprite.Key_);
        }
        if (control) {
            unload(control);
        }
        if (remove) {
            sprites.Remove(i);
        }
    }
}

void SpriteStack::unloadFrameSprites(qint32 frame, bool remove) {
    if (frame < 1 || frame > workspace_.Frames().Count()) {
        return;
    }
    cSprites& sprites = workspace_.Frames().Item(frame).Sprites();
    unloadList(sprites.Symbols(), gifSymbol_, remove);
    unloadList(sprites.Labels(), lblTesto_, remove);
    playingChanged();
}

void SpriteStack::unloadAllSprites(bool remove) {
    while (!order_.empty()) {
        unload(order_.back());
    }
    if (remove) {
        for (qint32 i = 1; i <= workspace_.Frames().Count(); ++i) {
            workspace_.Frames().Item(i).Sprites().RemovaAll();
        }
    }
    playingChanged();
}

GifSymbol& SpriteStack::makeSymbol(const QString& file) {
    GifSymbol& control = gifSymbol_.load();
    control.animation = animations_.get(file);
    order_.push_back(&control);
    return control;
}

LblTesto& SpriteStack::makeLabel() {
    LblTesto& control = lblTesto_.load();
    order_.push_back(&control);
    return control;
}

void SpriteStack::discard(SpriteControl& control) {
    unload(&control);
    playingChanged();
}

void SpriteStack::unload(SpriteControl* control) {
    const QRect area = control->rect;
    order_.erase(std::find(order_.begin(), order_.end(), control));
    if (dynamic_cast<GifSymbol*>(control)) {
        gifSymbol_.unload(control->Index);
    } else {
        lblTesto_.unload(control->Index);
    }
    changed(area);
}

SpriteControl* SpriteStack::find(const QString& type, const QString& key) const {
    const QString tag = type + '|' + key + '|';
    const auto found = std::find_if(order_.begin(), order_.end(),
                                    [&tag](const auto* control) { return control->Tag == tag; });
    return found == order_.end() ? nullptr : *found;
}

SpriteControl* SpriteStack::at(QPoint position) const {
    const auto found = std::find_if(order_.rbegin(), order_.rend(), [&](const auto* control) {
        return control->visible && control->rect.contains(position);
    });
    return found == order_.rend() ? nullptr : *found;
}

void SpriteStack::Move(SpriteControl& control, const QRect& rect) {
    const QRect before = std::exchange(control.rect, rect);
    if (control.visible && before != rect) {
        changed(before);
        changed(rect);
    }
}

void SpriteStack::show(SpriteControl& control) {
    control.visible = true;
    changed(control.rect);
}

void SpriteStack::setFileName(GifSymbol& control, const QString& file) {
    control.setAnimation(animations_.get(file));
    changed(control.rect);
    playingChanged();
}

void SpriteStack::showLabel(LblTesto& control, const cLabel& label) {
    changed(control.rect);
    control.show(label);
    changed(control.rect);
}

}  // namespace nubivane
