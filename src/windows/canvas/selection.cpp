// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/selection.h"

#include "engine/model/edits/project_edits.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace nubivane {

Selection::Selection(Workspace& workspace, SpriteStack& sprites)
    : workspace_(workspace), sprites_(sprites) {}

void Selection::select(SpriteControl& control) {
    workspace_.edits().seal();
    tellBorders();
    others_.clear();
    workspace_.Status.selectSprite(control.id);
    selectSprite(control);
}

void Selection::selectAll(const std::vector<SpriteId>& ids) {
    std::vector<SpriteId> there;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(there),
                 [this](const SpriteId& id) { return sprites_.find(id) != nullptr; });
    if (there != this->ids() || (!there.empty() && !selector_)) {
        workspace_.edits().seal();
        put(std::move(there));
    }
}

void Selection::toggle(const SpriteControl& control) {
    std::vector<SpriteId> wanted = ids();
    if (std::erase(wanted, control.id) == 0) {
        wanted.push_back(control.id);
    }
    workspace_.edits().seal();
    put(std::move(wanted));
}

void Selection::forget(const SpriteId& id) {
    std::vector<SpriteId> left = ids();
    if (std::erase(left, id) > 0) {
        workspace_.edits().seal();
        put(std::move(left));
    }
}

/// Status, borders and commands by what is selected now.
void Selection::put(std::vector<SpriteId> ids) {
    hideBorder();
    if (ids.empty()) {
        others_.clear();
        workspace_.Status.selectSprite(std::nullopt);
    } else {
        workspace_.Status.selectSprite(ids.back());
        ids.pop_back();
        others_ = std::move(ids);
        showBorder();
    }
    Q_EMIT commandsChanged();
}

ShpSelector Selection::borderOf(const SpriteControl& control, bool alone) const {
    const QRect map(0, 0, workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
    return {control.rect, alone && control.isResizable(), map, zoom_};
}

void Selection::makeOtherBorders() {
    otherBorders_.clear();
    for (const SpriteId& id : others_) {
        if (const SpriteControl* other = sprites_.find(id)) {
            otherBorders_.push_back(borderOf(*other, false));
        }
    }
}

void Selection::selectSprite(SpriteControl& control) {
    tellBorders();
    selector_ = borderOf(control, others_.empty());
    makeOtherBorders();
    tellBorders();
    Q_EMIT commandsChanged();
}

void Selection::clearSelection() {
    if (isEmpty()) {
        return;
    }
    workspace_.edits().seal();
    workspace_.Status.selectSprite(std::nullopt);
    hideBorder();
    others_.clear();
    Q_EMIT commandsChanged();
}

void Selection::hideBorder() {
    tellBorders();
    selector_.reset();
    otherBorders_.clear();
}

void Selection::showBorder() {
    if (SpriteControl* selected = control()) {
        selectSprite(*selected);
    }
}

void Selection::tellBorders() {
    if (selector_) {
        Q_EMIT changed(selector_->paintedRect());
    }
    for (const ShpSelector& border : otherBorders_) {
        Q_EMIT changed(border.paintedRect());
    }
}

void Selection::follow() {
    if (const SpriteControl* selected = control()) {
        surround(selected->rect);
    }
    for (std::size_t i = 0; i < otherBorders_.size() && i < others_.size(); ++i) {
        const SpriteControl* other = sprites_.find(others_[i]);
        if (other && otherBorders_[i].spriteRect() != other->rect) {
            Q_EMIT changed(otherBorders_[i].paintedRect());
            otherBorders_[i].surround(other->rect);
            Q_EMIT changed(otherBorders_[i].paintedRect());
        }
    }
}

void Selection::surround(const QRect& sprite) {
    if (selector_) {
        Q_EMIT changed(selector_->paintedRect());
        selector_->surround(sprite);
        Q_EMIT changed(selector_->paintedRect());
    }
}

void Selection::setZoom(Zoom zoom) {
    zoom_ = zoom;
    const SpriteControl* selected = control();
    if (selector_ && selected) {
        const QRect sprite = selector_->spriteRect();
        selector_ = borderOf(*selected, others_.empty());
        selector_->surround(sprite);
    }
    if (selector_) {
        makeOtherBorders();
    }
}

void Selection::dragHandle(ShpSelector::Handle handle, QPoint position, QPoint grip) {
    Q_EMIT changed(selector_->paintedRect());
    selector_->drag(handle, position, grip);
    Q_EMIT changed(selector_->paintedRect());
}

bool Selection::isEmpty() const {
    return !workspace_.Status.selectedSprite();
}

bool Selection::contains(const SpriteId& id) const {
    const auto all = ids();
    return std::find(all.begin(), all.end(), id) != all.end();
}

std::vector<SpriteId> Selection::ids() const {
    const auto last = workspace_.Status.selectedSprite();
    if (!last) {
        return {};
    }
    std::vector<SpriteId> all = others_;
    std::erase(all, *last);
    all.push_back(*last);
    return all;
}

std::vector<SpriteControl*> Selection::controls() const {
    const auto all = ids();
    const QSet<SpriteId> selected(all.begin(), all.end());
    std::vector<SpriteControl*> found;
    for (SpriteControl* control : sprites_.controls()) {
        if (selected.contains(control->id)) {
            found.push_back(control);
        }
    }
    return found;
}

SpriteControl* Selection::control() const {
    const auto id = workspace_.Status.selectedSprite();
    return id ? sprites_.find(*id) : nullptr;
}

}  // namespace nubivane
