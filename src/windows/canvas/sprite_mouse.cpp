// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_mouse.h"

#include "engine/core/shell.h"
#include "engine/model/edits/sprite_changes.h"
#include "engine/model/weather_tool.h"
#include "windows/canvas/map_bounds.h"

namespace nubivane {

using namespace Qt::StringLiterals;

SpriteMouse::SpriteMouse(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                         Shell& shell)
    : workspace_(workspace), sprites_(sprites), selection_(selection), shell_(shell) {}

bool SpriteMouse::press(QPoint position, Qt::MouseButton button) {
    if (drag_ || resize_) {
        return true;  // another button during a gesture must not begin a second one
    }
    if (button == Qt::LeftButton && pressHandle(position)) {
        return true;
    }
    SpriteControl* control = sprites_.at(position);
    // A front passes below its symbols: their places are as good as any for its points.
    if (!control || isWeatherTool(workspace_.Status.CurrentTool)) {
        return false;
    }
    if (button == Qt::RightButton) {
        selection_.clearSelection();
        selection_.select(*control);
        Q_EMIT menuAsked();
    } else if (button == Qt::LeftButton) {
        pressSprite(*control, position);
    }
    return true;
}

bool SpriteMouse::pressHandle(QPoint position) {
    const ShpSelector* selector = selection_.shpSelector();
    const auto handle = selector && workspace_.Status.CurrentTool == Tool::cursor
                            ? selector->handleAt(position)
                            : std::nullopt;
    if (handle) {
        const SpriteControl* control = selection_.control();
        resize_ = Resize{*handle, control ? control->rect : QRect(),
                         selector->gripOffset(*handle, position)};
    }
    return handle.has_value();
}

void SpriteMouse::pressSprite(SpriteControl& control, QPoint position) {
    if (workspace_.Status.CurrentTool != Tool::cursor) {
        const bool symbol = control.id.kind == SpriteKind::Symbol;
        shell_.messageBox(
            {symbol
                 ? tr("Operation not allowed in draw mode. Select cursor from toolbar and try "
                      "again.")
                 : tr("This operation is not allowed in draw mode. Select cursor from toolbar and "
                      "try again."),
             Icon::Exclamation,
             Buttons::Ok,
             {}});
        return;
    }
    selection_.clearSelection();
    if (locked_) {
        selection_.select(control);
        return;
    }
    drag_ = Drag{control.id, control.rect, position.x() - control.rect.x(),
                 position.y() - control.rect.y()};
    sprites_.setPlaying(control, false);
}

bool SpriteMouse::move(QPoint position, Qt::MouseButtons buttons) {
    if (!(buttons & Qt::LeftButton)) {
        return false;
    }
    if (drag_) {
        moveDragged(position);
    } else if (resize_) {
        moveHandle(position);
    }
    return drag_ || resize_;
}

void SpriteMouse::moveDragged(QPoint position) {
    if (SpriteControl* control = sprites_.find(drag_->id)) {
        const QPoint topLeft(position.x() - drag_->pressX, position.y() - drag_->pressY);
        sprites_.Move(*control, QRect(topLeft, control->rect.size()));
    }
}

void SpriteMouse::moveHandle(QPoint position) {
    const ShpSelector* selector = selection_.shpSelector();
    SpriteControl* control = selection_.control();
    if (selector && control) {
        selection_.dragHandle(resize_->handle, position, resize_->grip);
        sprites_.Move(*control, selector->spriteRect());
    }
}

bool SpriteMouse::release(Qt::MouseButton button) {
    if (button != Qt::LeftButton || (!drag_ && !resize_)) {
        return false;
    }
    if (drag_) {
        endDrag();
    } else {
        endResize();
    }
    return true;
}

/// The project is marked even by a drag that ends where it began.
void SpriteMouse::endDrag() {
    const Drag drag = *std::exchange(drag_, std::nullopt);
    SpriteControl* control = sprites_.find(drag.id);
    if (!control) {
        return;
    }
    const QPoint position = insideMap(control->rect, workspace_.pctMap);
    moveSprite(workspace_, drag.id, position, Marks::Project);
    sprites_.Move(*control, QRect(position, control->rect.size()));
    sprites_.setPlaying(*control, true);
    if (!selection_.shpSelector()) {
        selection_.select(*control);
    }
}

void SpriteMouse::endResize() {
    resize_.reset();
    const SpriteControl* control = selection_.control();
    if (control && control->id.kind == SpriteKind::Symbol) {
        changeSprite<cSymbol>(workspace_, control->id, QT_TRANSLATE_NOOP("Edits", "Resize symbol"),
                              {}, [control](cSymbol& symbol) {
                                  symbol.PosY = control->rect.y();
                                  symbol.PosX = control->rect.x();
                                  symbol.Width = control->rect.width();
                                  symbol.Height = control->rect.height();
                              });
    }
}

void SpriteMouse::cancel() {
    if (const auto drag = std::exchange(drag_, std::nullopt)) {
        if (SpriteControl* control = sprites_.find(drag->id)) {
            sprites_.Move(*control, drag->from);
            sprites_.setPlaying(*control, true);
        }
    }
    const auto resize = std::exchange(resize_, std::nullopt);
    SpriteControl* control = selection_.control();
    if (resize && control) {
        sprites_.Move(*control, resize->from);
        selection_.follow();
    }
}

std::optional<Qt::CursorShape> SpriteMouse::cursorAt(QPoint position) const {
    const ShpSelector* selector = std::as_const(selection_).shpSelector();
    const auto handle = selector ? selector->handleAt(position) : std::nullopt;
    return handle ? std::optional(ShpSelector::cursorOf(*handle)) : std::nullopt;
}

}  // namespace nubivane
