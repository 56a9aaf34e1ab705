// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/selection.h"

namespace nubivane {

Selection::Selection(Workspace& workspace, SpriteStack& sprites)
    : workspace_(workspace), sprites_(sprites) {}

void Selection::select(SpriteControl& control) {
    workspace_.Status.CurrentShapeControlType = static_cast<qint16>(control.type().toInt());
    workspace_.Status.CurrentShapeControlKey = control.key();
    selectSprite(control);
}

void Selection::selectSprite(SpriteControl& control) {
    if (selector_) {
        changed(selector_->paintedRect());
    }
    selector_.emplace(control.rect, control.isResizable());
    changed(selector_->paintedRect());
    commandsChanged();
}

void Selection::clearSelection() {
    if (isEmpty()) {
        return;
    }
    workspace_.Status.CurrentShapeControlType = sprite_type::None;
    workspace_.Status.CurrentShapeControlKey.clear();
    hideFrame();
    commandsChanged();
}

void Selection::hideFrame() {
    if (selector_) {
        changed(selector_->paintedRect());
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
        changed(selector_->paintedRect());
        selector_->surround(sprite);
        changed(selector_->paintedRect());
    }
}

bool Selection::isEmpty() const {
    return workspace_.Status.CurrentShapeControlType == sprite_type::None ||
           workspace_.Status.CurrentShapeControlKey.isEmpty();
}

SpriteControl* Selection::control() const {
    return isEmpty() ? nullptr
                     : sprites_.find(QString::number(workspace_.Status.CurrentShapeControlType),
                                     workspace_.Status.CurrentShapeControlKey);
}

}  // namespace nubivane
