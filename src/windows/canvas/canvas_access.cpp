// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_access.h"

#include "windows/canvas/map_canvas.h"
#include "windows/canvas/sprite_name.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

QString said(const char* text) {
    return QCoreApplication::translate("nubivane::CanvasAccess", text);
}

const QString& editAction() {
    static const QString name = QStringLiteral("Edit");
    return name;
}

}  // namespace

/// One sprite. It looks at the canvas each time it is asked, so that it is never out of date.
class CanvasAccess::Sprite : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    Sprite(MapCanvas& canvas, SpriteId id) : canvas_(&canvas), id_(std::move(id)) {}

    const SpriteId& id() const { return id_; }

    bool isValid() const override { return canvas_ && control(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return canvas_ ? canvas_->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(canvas_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
            case QAccessible::Name:
                return name();
            case QAccessible::Description:
                return description();
            case QAccessible::Value:
                return place();
            default:
                return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        const SpriteControl* shown = control();
        const QRect onCanvas = shown ? canvas_->toWidget(shown->rect) : QRect();
        return {canvas_ ? canvas_->mapToGlobal(onCanvas.topLeft()) : QPoint(), onCanvas.size()};
    }
    QAccessible::Role role() const override {
        return id_.kind == SpriteKind::Symbol ? QAccessible::Graphic : QAccessible::StaticText;
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = true;
        state.multiSelectable = true;
        state.extSelectable = true;
        state.focusable = true;
        state.movable = true;
        state.sizeable = id_.kind == SpriteKind::Symbol;
        state.invalid = !isValid();
        if (isValid()) {
            const SpriteControl* last = canvas_->selection().control();
            state.selected = canvas_->selection().contains(id_);
            state.focused = last && last->id == id_ && canvas_->hasFocus();
            state.offscreen =
                !canvas_->visibleRegion().intersects(canvas_->toWidget(control()->rect));
        }
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override {
        return {pressAction(), toggleAction(), editAction(), showMenuAction()};
    }
    QString localizedActionName(const QString& action) const override {
        return action == pressAction() ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Select"))
               : action == toggleAction()
                   ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Take into the selection"))
               : action == editAction() ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Edit"))
                                        : QAccessibleActionInterface::localizedActionName(action);
    }
    QString localizedActionDescription(const QString& action) const override {
        return localizedActionName(action);
    }
    QStringList keyBindingsForAction(const QString& action) const override {
        return action == editAction() ? QStringList(QStringLiteral("Return")) : QStringList();
    }
    void doAction(const QString& action) override {
        SpriteControl* shown = control();
        if (!shown) {
            return;
        }
        if (action == pressAction()) {
            canvas_->selection().select(*shown);
        } else if (action == toggleAction()) {
            canvas_->selection().toggle(*shown);
        } else if (action == editAction()) {
            canvas_->selection().select(*shown);
            Q_EMIT canvas_->spriteActivated(id_);
        } else if (action == showMenuAction()) {
            canvas_->selection().select(*shown);
            Q_EMIT canvas_->menuAsked();
        }
    }

  private:
    SpriteControl* control() const { return canvas_ ? canvas_->sprites().find(id_) : nullptr; }
    QString name() const { return isValid() ? spriteName(canvas_->workspace(), id_) : QString(); }
    QString place() const {
        const SpriteControl* shown = control();
        return shown ? QStringLiteral("%1, %2, %3 x %4")
                           .arg(shown->rect.x())
                           .arg(shown->rect.y())
                           .arg(shown->rect.width())
                           .arg(shown->rect.height())
                     : QString();
    }
    QString description() const {
        return (id_.kind == SpriteKind::Symbol
                    ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Symbol at %1"))
                    : said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Label at %1")))
            .arg(place());
    }

    QPointer<MapCanvas> canvas_;
    SpriteId id_;
};

CanvasAccess::CanvasAccess(MapCanvas& canvas)
    : QAccessibleWidget(&canvas, QAccessible::Canvas), canvas_(canvas) {}

CanvasAccess::~CanvasAccess() {
    for (const QAccessible::Id id : sprites_) {
        QAccessible::deleteAccessibleInterface(id);
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
}

void CanvasAccess::tellSelection(MapCanvas& canvas) {
    if (!QAccessible::isActive()) {
        return;
    }
    const auto& controls = canvas.sprites().controls();
    const auto selected = std::find(controls.begin(), controls.end(), canvas.selection().control());
    QAccessibleEvent within(&canvas, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&within);
    if (selected != controls.end() && canvas.hasFocus()) {
        QAccessibleEvent focus(&canvas, QAccessible::Focus);
        focus.setChild(static_cast<int>(selected - controls.begin()));
        QAccessible::updateAccessibility(&focus);
    }
}

int CanvasAccess::childCount() const {
    return static_cast<int>(canvas_.sprites().controls().size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* CanvasAccess::child(int index) const {
    const int sprites = static_cast<int>(canvas_.sprites().controls().size());
    if (index < 0 || index >= sprites) {
        return index < sprites ? nullptr : QAccessibleWidget::child(index - sprites);
    }
    return spriteAt(static_cast<std::size_t>(index));
}

CanvasAccess::Sprite* CanvasAccess::spriteAt(std::size_t index) const {
    const SpriteId& wanted = canvas_.sprites().controls()[index]->id;
    Sprite* found = nullptr;
    std::erase_if(sprites_, [&](QAccessible::Id id) {
        auto* sprite = static_cast<Sprite*>(QAccessible::accessibleInterface(id));
        if (!sprite || !sprite->isValid()) {
            QAccessible::deleteAccessibleInterface(id);
            return true;
        }
        found = sprite->id() == wanted ? sprite : found;
        return false;
    });
    if (!found) {
        found = new Sprite(canvas_, wanted);
        sprites_.push_back(QAccessible::registerAccessibleInterface(found));
    }
    return found;
}

int CanvasAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto& controls = canvas_.sprites().controls();
    if (const auto* sprite = dynamic_cast<const Sprite*>(child)) {
        const auto at = std::find_if(
            controls.begin(), controls.end(),
            [sprite](const SpriteControl* control) { return control->id == sprite->id(); });
        return at == controls.end() ? -1 : static_cast<int>(at - controls.begin());
    }
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : index + static_cast<int>(controls.size());
}

QAccessibleInterface* CanvasAccess::childAt(int x, int y) const {
    const QPoint onMap = canvas_.toMap(canvas_.mapFromGlobal(QPoint(x, y)));
    const auto& controls = canvas_.sprites().controls();
    const auto at = std::find(controls.begin(), controls.end(), canvas_.sprites().at(onMap));
    return at == controls.end() ? nullptr
                                : spriteAt(static_cast<std::size_t>(at - controls.begin()));
}

QAccessibleInterface* CanvasAccess::focusChild() const {
    const auto& controls = canvas_.sprites().controls();
    const auto at = std::find(controls.begin(), controls.end(), canvas_.selection().control());
    return at == controls.end() || !canvas_.hasFocus()
               ? QAccessibleWidget::focusChild()
               : spriteAt(static_cast<std::size_t>(at - controls.begin()));
}

}  // namespace nubivane
