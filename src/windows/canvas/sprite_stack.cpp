// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_stack.h"

#include "engine/core/host_files.h"
#include "engine/picture/animation_cache.h"
#include "windows/canvas/map_bounds.h"

#include <algorithm>
#include <utility>

namespace nubivane {

SpriteStack::SpriteStack(Workspace& workspace, AnimationCache& animations,
                         std::function<qint64()> now)
    : workspace_(workspace), animations_(animations), now_(std::move(now)) {}

void SpriteStack::loadFrameSprites(qint32 frame) {
    if (frame < 1 || frame > workspace_.Frames().Count()) {
        return;
    }
    const cSprites& sprites = workspace_.Frames().Item(frame).Sprites();
    for (const cSymbol& symbol : sprites.Symbols()) {
        if (host_files::fileExists(symbol.PathFileGif)) {
            show(loadSymbol(symbol));
        }
    }
    for (const cLabel& label : sprites.Labels()) {
        LblTesto& control = loadLabel(label);
        control.setBackColor(label.BackColor);
        show(control);
    }
    Q_EMIT playingChanged();
}

GifSymbol& SpriteStack::loadSymbol(const cSymbol& symbol) {
    GifSymbol& control = makeSymbol(symbol.PathFileGif);
    symbol.Index = control.Index;
    control.id = {SpriteKind::Symbol, symbol.Key_};
    control.rect = QRect(symbol.PosX, symbol.PosY, symbol.Width, symbol.Height);
    control.StartAnimation(now_());
    return control;
}

LblTesto& SpriteStack::loadLabel(const cLabel& label) {
    LblTesto& control = makeLabel();
    label.Index = control.Index;
    control.id = {SpriteKind::Label, label.Key_};
    control.show(label);
    control.rect.moveTo(label.PosX, label.PosY);
    return control;
}

void SpriteStack::loadSprite(qint32 frame, const SpriteId& id, Arrival arrival,
                             std::optional<int> depth) {
    const cSprites& sprites = workspace_.Frames().Item(frame).Sprites();
    SpriteControl* control = nullptr;
    if (id.kind == SpriteKind::Symbol) {
        const cSymbol& symbol = sprites.Symbols().Item(id.key);
        if (arrival == Arrival::Visit && !host_files::fileExists(symbol.PathFileGif)) {
            return;
        }
        control = &loadSymbol(symbol);
    } else {
        const cLabel& label = sprites.Labels().Item(id.key);
        LblTesto& made = loadLabel(label);
        // A pasted one gets its background when the Frame is visited anew.
        made.setBackColor(arrival == Arrival::Pasted ? NoColor : label.BackColor);
        control = &made;
    }
    if (arrival == Arrival::Dropped) {
        control->rect.moveTopLeft(insideMap(control->rect, workspace_.pctMap));
    } else if (arrival == Arrival::Visit) {
        const int place = depth.value_or(placeInList(sprites, id));
        order_.pop_back();
        order_.insert(order_.begin() + std::clamp(place, 0, static_cast<int>(order_.size())),
                      control);
    }
    show(*control);
    Q_EMIT playingChanged();
}

/// Above the nearest sprite below it in its list that is shown; Labels lie above all Symbols.
int SpriteStack::placeInList(const cSprites& sprites, const SpriteId& id) const {
    const auto above = [&](const auto& list, SpriteKind kind,
                           qint32 position) -> std::optional<int> {
        for (qint32 i = position - 1; i >= 1; --i) {
            if (const SpriteControl* below = find({kind, list.Item(i).Key_})) {
                return *depthOf(*below) + 1;
            }
        }
        return std::nullopt;
    };
    const cSymbols& symbols = sprites.Symbols();
    if (id.kind == SpriteKind::Symbol) {
        return above(symbols, SpriteKind::Symbol, symbols.positionOf(id.key)).value_or(0);
    }
    const cLabels& labels = sprites.Labels();
    const auto place = above(labels, SpriteKind::Label, labels.positionOf(id.key));
    return place ? *place : above(symbols, SpriteKind::Symbol, symbols.Count() + 1).value_or(0);
}

void SpriteStack::restack(qint32 frame) {
    const cSprites& sprites = workspace_.Frames().Item(frame).Sprites();
    std::vector<SpriteControl*> ordered;
    const auto take = [&](const auto& list, SpriteKind kind) {
        for (const auto& sprite : list) {
            if (SpriteControl* control = find({kind, sprite.Key_})) {
                ordered.push_back(control);
            }
        }
    };
    take(sprites.Symbols(), SpriteKind::Symbol);
    take(sprites.Labels(), SpriteKind::Label);
    order_ = std::move(ordered);
    for (const SpriteControl* control : order_) {
        Q_EMIT changed(control->rect);
    }
}

std::optional<int> SpriteStack::depthOf(const SpriteControl& control) const {
    const auto found = std::find(order_.begin(), order_.end(), &control);
    return found == order_.end() ? std::nullopt
                                 : std::optional(static_cast<int>(found - order_.begin()));
}

std::optional<QSize> SpriteStack::sizeOf(const QString& file) const {
    const auto animation = animations_.get(file);
    return animation ? std::optional(animation->size()) : std::nullopt;
}

void SpriteStack::refresh(const SpriteRecord& before, const SpriteRecord& after) {
    if (const auto* symbol = std::get_if<cSymbol>(&after)) {
        if (auto* control = dynamic_cast<GifSymbol*>(find({SpriteKind::Symbol, symbol->Key_}))) {
            refreshSymbol(*control, std::get<cSymbol>(before), *symbol);
        }
        return;
    }
    const cLabel& label = std::get<cLabel>(after);
    if (auto* control = dynamic_cast<LblTesto*>(find({SpriteKind::Label, label.Key_}))) {
        refreshLabel(*control, std::get<cLabel>(before), label);
    }
}

namespace {

/// Only what has changed goes over: a control may stand elsewhere than its sprite until it is
/// moved.
template <class Record>
QRect movedRect(QRect rect, const Record& before, const Record& after) {
    if (before.PosX != after.PosX) {
        rect.moveLeft(after.PosX);
    }
    if (before.PosY != after.PosY) {
        rect.moveTop(after.PosY);
    }
    return rect;
}

}  // namespace

void SpriteStack::refreshSymbol(GifSymbol& control, const cSymbol& before, const cSymbol& after) {
    if (before.PathFileGif != after.PathFileGif) {
        setFileName(control, after.PathFileGif);
        control.StartAnimation(now_());
        Q_EMIT playingChanged();
    }
    if (before.Tooltip != after.Tooltip) {
        control.ToolTipText = after.Tooltip;
    }
    QRect rect = movedRect(control.rect, before, after);
    if (before.Width != after.Width) {
        rect.setWidth(after.Width);
    }
    if (before.Height != after.Height) {
        rect.setHeight(after.Height);
    }
    Move(control, rect);
}

/// The size follows the text.
void SpriteStack::refreshLabel(LblTesto& control, const cLabel& before, const cLabel& after) {
    if (before.Font.Strikeout != after.Font.Strikeout) {
        control.FontStrikethru = after.Font.Strikeout;
    }
    if (before.BackColor != after.BackColor) {
        control.setBackColor(after.BackColor);
    }
    showLabel(control, after);
    Move(control, movedRect(control.rect, before, after));
}

void SpriteStack::unloadAllSprites() {
    while (!order_.empty()) {
        unload(order_.back());
    }
    Q_EMIT playingChanged();
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
    Q_EMIT playingChanged();
}

void SpriteStack::unload(SpriteControl* control) {
    Q_EMIT leaving(*control);
    const QRect area = control->rect;
    order_.erase(std::find(order_.begin(), order_.end(), control));
    if (dynamic_cast<GifSymbol*>(control)) {
        gifSymbol_.unload(control->Index);
    } else {
        lblTesto_.unload(control->Index);
    }
    Q_EMIT changed(area);
}

SpriteControl* SpriteStack::find(const SpriteId& id) const {
    const auto found = std::find_if(order_.begin(), order_.end(),
                                    [&id](const auto* control) { return control->id == id; });
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
        Q_EMIT changed(before);
        Q_EMIT changed(rect);
    }
}

void SpriteStack::show(SpriteControl& control) {
    control.visible = true;
    Q_EMIT changed(control.rect);
    Q_EMIT arrived(control);
}

void SpriteStack::setPlaying(SpriteControl& control, bool playing) {
    auto* symbol = dynamic_cast<GifSymbol*>(&control);
    if (!symbol) {
        return;
    }
    if (playing) {
        symbol->StartAnimation(now_());
    } else {
        symbol->StopAnimation();
    }
    Q_EMIT playingChanged();
}

void SpriteStack::setFileName(GifSymbol& control, const QString& file) {
    control.setAnimation(animations_.get(file));
    Q_EMIT changed(control.rect);
    Q_EMIT playingChanged();
}

void SpriteStack::showLabel(LblTesto& control, const cLabel& label) {
    Q_EMIT changed(control.rect);
    control.show(label);
    Q_EMIT changed(control.rect);
}

}  // namespace nubivane
