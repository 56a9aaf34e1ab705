// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_child.h"

namespace nubivane {

QWindow* CanvasChild::window() const {
    return canvas_ ? canvas_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* CanvasChild::parent() const {
    return canvas_ ? QAccessible::queryAccessibleInterface(canvas_) : nullptr;
}

QString CanvasChild::text(QAccessible::Text kind) const {
    if (!isValid()) {
        return {};
    }
    switch (kind) {
        case QAccessible::Name:
            return name();
        case QAccessible::Description:
            return description();
        case QAccessible::Value:
            return value();
        default:
            return {};
    }
}

QRect CanvasChild::rect() const {
    if (!isValid()) {
        return {};
    }
    const QRect onCanvas = canvas_->toWidget(placeOnMap());
    return {canvas_->mapToGlobal(onCanvas.topLeft()), onCanvas.size()};
}

QAccessible::State CanvasChild::state() const {
    QAccessible::State state;
    if (isValid()) {
        state.offscreen = !canvas_->visibleRegion().intersects(canvas_->toWidget(placeOnMap()));
        addState(state);
    } else {
        state.invalid = true;
    }
    return state;
}

void* CanvasChild::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QString CanvasChild::localizedActionName(const QString& action) const {
    const QString own = nameOfAction(action);
    return own.isEmpty() ? QAccessibleActionInterface::localizedActionName(action) : own;
}

QString CanvasChild::localizedActionDescription(const QString& action) const {
    return localizedActionName(action);
}

void CanvasChild::doAction(const QString& action) {
    if (isValid()) {
        act(action);
    }
}

}  // namespace nubivane
