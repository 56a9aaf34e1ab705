// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/selected_sprite.h"

namespace nubivane {

QRect SelectedSprite::rect() const {
    const SpriteControl* selected = control();
    return selected ? selected->rect : QRect();
}

void SelectedSprite::Move(const QRect& rect) {
    if (SpriteControl* selected = control()) {
        canvas_.sprites().Move(*selected, rect);
    }
}

QRect SelectedSprite::borderedRect() const {
    const ShpSelector* selector = canvas_.selection().shpSelector();
    return selector ? selector->spriteRect() : rect();
}

void SelectedSprite::setBorderedRect(const QRect& rect) {
    canvas_.selection().surround(rect);
}

void SelectedSprite::show(const cLabel& look) {
    if (LblTesto* selected = label()) {
        canvas_.sprites().showLabel(*selected, look);
    }
}

void SelectedSprite::setBackColor(qint32 color) {
    if (LblTesto* selected = label()) {
        selected->setBackColor(color);
        canvas_.sprites().repaint(*selected);
    }
}

void SelectedSprite::setFontStrikethru(bool strikethru) {
    if (LblTesto* selected = label()) {
        selected->FontStrikethru = strikethru;
        canvas_.sprites().repaint(*selected);
    }
}

void SelectedSprite::StopAnimation() {
    if (GifSymbol* selected = symbol()) {
        canvas_.sprites().setPlaying(*selected, false);
    }
}

void SelectedSprite::StartAnimation() {
    if (GifSymbol* selected = symbol()) {
        canvas_.sprites().setPlaying(*selected, true);
    }
}

void SelectedSprite::setFileName(const QString& path) {
    if (GifSymbol* selected = symbol()) {
        canvas_.sprites().setFileName(*selected, path);
    }
}

void SelectedSprite::setToolTipText(const QString& text) {
    if (GifSymbol* selected = symbol()) {
        selected->ToolTipText = text;
    }
}

}  // namespace nubivane
