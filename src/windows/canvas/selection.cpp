// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/selection.h"

#include "engine/model/edits/project_edits.h"

namespace nubivane {

Selection::Selection(Workspace& workspace, SpriteStack& sprites)
    : workspace_(workspace), sprites_(sprites) {}

void Selection::select(SpriteControl& control) {
    workspace_.edits().seal();
    workspace_.Status.selectSprite(control.id);
    selectSprite(control);
}

void Selection::selectSprite(SpriteControl& control) {
    if (selector_) {
        Q_EMIT changed(selector_->paintedRect());
    }
    const QRect map(0, 0, workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
    selector_.emplace(control.rect, control.isResizable(), map, zoom_);
    Q_EMIT changed(selector_->paintedRect());
    Q_EMIT commandsChanged();
}

void Selection::clearSelection() {
    if (isEmpty()) {
        return;
    }
    workspace_.edits().seal();
    workspace_.Status.selectSprite(std::nullopt);
    hideBorder();
    Q_EMIT commandsChanged();
}

void Selection::hideBorder() {
    if (selector_) {
        Q_EMIT changed(selector_->paintedRect());
        selector_.reset();
    }
}

void Selection::follow() {
    if (const SpriteControl* selected = control()) {
        surround(selected->rect);
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
        const QRect map(0, 0, workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
        const QRect sprite = selector_->spriteRect();
        selector_.emplace(sprite, selected->isResizable(), map, zoom_);
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

SpriteControl* Selection::control() const {
    const auto id = workspace_.Status.selectedSprite();
    return id ? sprites_.find(*id) : nullptr;
}

}  // namespace nubivane
