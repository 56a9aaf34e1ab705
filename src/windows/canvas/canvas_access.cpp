// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_access.h"

#include "windows/canvas/canvas_news.h"
#include "windows/canvas/figure_access.h"
#include "windows/canvas/sprite_access.h"

#include <QSet>

namespace nubivane {

CanvasAccess::CanvasAccess(MapCanvas& canvas)
    : QAccessibleWidget(&canvas, QAccessible::Canvas), canvas_(canvas) {}

CanvasAccess::~CanvasAccess() {
    for (const QAccessible::Id id : std::as_const(sprites_)) {
        QAccessible::deleteAccessibleInterface(id);
    }
    if (figure_) {
        QAccessible::deleteAccessibleInterface(figure_);
    }
}

void CanvasAccess::install(MapCanvas& map) {
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* canvas = qobject_cast<MapCanvas*>(object);
        return canvas ? new CanvasAccess(*canvas) : nullptr;
    });
    // One that was asked for before is a plain surface.
    if (QAccessibleInterface* known = QAccessible::queryAccessibleInterface(&map)) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    }
    new CanvasNews(map);
}

int CanvasAccess::spriteCount() const {
    return static_cast<int>(canvas_.sprites().controls().size());
}

int CanvasAccess::childCount() const {
    return spriteCount() + (figure().isValid() ? 1 : 0) + QAccessibleWidget::childCount();
}

QAccessibleInterface* CanvasAccess::child(int index) const {
    if (index < 0) {
        return nullptr;
    }
    if (index < spriteCount()) {
        return &spriteAt(index);
    }
    index -= spriteCount();
    if (figure().isValid()) {
        if (index == 0) {
            return &figure();
        }
        --index;
    }
    return QAccessibleWidget::child(index);
}

SpriteAccess& CanvasAccess::spriteAt(int index) const {
    const SpriteId& id = canvas_.sprites().controls()[static_cast<std::size_t>(index)]->id;
    auto* sprite = static_cast<SpriteAccess*>(QAccessible::accessibleInterface(sprites_.value(id)));
    if (!sprite) {
        sprite = new SpriteAccess(canvas_, id);
        sprites_.insert(id, QAccessible::registerAccessibleInterface(sprite));
        if (sprites_.size() > spriteCount()) {
            forgetGone();
        }
    }
    sprite->setIndex(index);
    return *sprite;
}

void CanvasAccess::forgetGone() const {
    QSet<SpriteId> there;
    for (const SpriteControl* control : canvas_.sprites().controls()) {
        there.insert(control->id);
    }
    sprites_.removeIf([&there](const QHash<SpriteId, QAccessible::Id>::iterator& known) {
        const bool gone = !there.contains(known.key());
        if (gone) {
            QAccessible::deleteAccessibleInterface(known.value());
        }
        return gone;
    });
}

FigureAccess& CanvasAccess::figure() const {
    if (!figure_) {
        figure_ = QAccessible::registerAccessibleInterface(new FigureAccess(canvas_));
    }
    return *static_cast<FigureAccess*>(QAccessible::accessibleInterface(figure_));
}

int CanvasAccess::indexOfChild(const QAccessibleInterface* child) const {
    if (const auto* sprite = dynamic_cast<const SpriteAccess*>(child)) {
        return sprite->index();
    }
    const int figures = figure().isValid() ? 1 : 0;
    if (dynamic_cast<const FigureAccess*>(child)) {
        return figures ? spriteCount() : -1;
    }
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : index + spriteCount() + figures;
}

QAccessibleInterface* CanvasAccess::childAt(int x, int y) const {
    if (figure().isValid() && figure().childAt(x, y)) {
        return &figure();
    }
    const QPoint onMap = canvas_.toMap(canvas_.mapFromGlobal(QPoint(x, y)));
    const SpriteControl* control = canvas_.sprites().at(onMap);
    const auto index = control ? canvas_.sprites().depthOf(*control) : std::nullopt;
    return index ? &spriteAt(*index) : nullptr;
}

QAccessibleInterface* CanvasAccess::focusChild() const {
    if (canvas_.hasFocus()) {
        if (const auto inHand =
                figure().isValid() ? canvas_.figure()->pointInHand() : std::nullopt) {
            return figure().child(*inHand);
        }
        const SpriteControl* selected = canvas_.selection().control();
        const auto index = selected ? canvas_.sprites().depthOf(*selected) : std::nullopt;
        if (index) {
            return &spriteAt(*index);
        }
    }
    return QAccessibleWidget::focusChild();
}

}  // namespace nubivane
