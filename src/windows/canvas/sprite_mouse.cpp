// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_mouse.h"

#include "engine/core/shell.h"
#include "engine/model/edits/sprite_changes.h"
#include "engine/model/status.h"
#include "windows/canvas/map_bounds.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int GuideReach = 5;  // pixels of the screen

constexpr Qt::KeyboardModifiers AddingKeys = Qt::ShiftModifier | Qt::ControlModifier;

}  // namespace

SpriteMouse::SpriteMouse(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                         Shell& shell)
    : workspace_(workspace),
      sprites_(sprites),
      selection_(selection),
      shell_(shell),
      band_(sprites, selection, marks_),
      many_(workspace, sprites, selection, marks_) {
    connect(&marks_, &DragMarks::changed, this, &SpriteMouse::changed);
}

bool SpriteMouse::isUnderWay() const {
    return drag_ || resize_ || many_.isUnderWay() || band_.isUnderWay();
}

bool SpriteMouse::press(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    if (isUnderWay()) {
        return true;  // another button during a gesture must not begin a second one
    }
    if (button == Qt::LeftButton && pressHandle(position)) {
        return true;
    }
    // A front passes below its symbols: their places are as good as any for its points.
    if (isWeatherTool(workspace_.Status.CurrentTool)) {
        return false;
    }
    SpriteControl* control = pressedAt(position, keys);
    if (!control) {
        return button == Qt::LeftButton && beginBand(position, keys);
    }
    if (button == Qt::RightButton) {
        askMenu(*control);
    } else if (button == Qt::LeftButton) {
        pressSprite(*control, position, keys);
    }
    return true;
}

/// The uppermost sprite there; with Alt the one below that which is selected, round and round.
SpriteControl* SpriteMouse::pressedAt(QPoint position, Qt::KeyboardModifiers keys) const {
    if (!(keys & Qt::AltModifier)) {
        return sprites_.at(position);
    }
    std::vector<SpriteControl*> there;  // from top to bottom
    const auto& all = sprites_.controls();
    std::copy_if(all.rbegin(), all.rend(), std::back_inserter(there),
                 [position](const SpriteControl* control) {
                     return control->visible && control->rect.contains(position);
                 });
    if (there.empty()) {
        return nullptr;
    }
    const auto selected = std::find(there.begin(), there.end(), selection_.control());
    return selected == there.end() || selected + 1 == there.end() ? there.front() : *(selected + 1);
}

/// One of many keeps the others: the menu is for all of them.
void SpriteMouse::askMenu(SpriteControl& control) {
    if (!selection_.contains(control.id) || selection_.ids().size() < 2) {
        selection_.clearSelection();
        selection_.select(control);
    }
    Q_EMIT menuAsked();
}

/// The press itself goes on to the bare map, unless it keeps what is selected.
bool SpriteMouse::beginBand(QPoint position, Qt::KeyboardModifiers keys) {
    if (workspace_.Status.CurrentTool != Tool::cursor) {
        return false;
    }
    const bool adds = keys & AddingKeys;
    band_.begin(position, adds);
    return adds;
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

bool SpriteMouse::refusesTool(const SpriteControl& control) {
    if (workspace_.Status.CurrentTool == Tool::cursor) {
        return false;
    }
    const bool symbol = control.id.kind == SpriteKind::Symbol;
    shell_.messageBox(
        {symbol ? tr("Operation not allowed in draw mode. Select cursor from toolbar and try "
                     "again.")
                : tr("This operation is not allowed in draw mode. Select cursor from toolbar and "
                     "try again."),
         Icon::Exclamation,
         Buttons::Ok,
         {}});
    return true;
}

void SpriteMouse::pressSprite(SpriteControl& control, QPoint position, Qt::KeyboardModifiers keys) {
    if (refusesTool(control)) {
        return;
    }
    const bool isOneOfMany = selection_.contains(control.id) && selection_.ids().size() > 1;
    const bool adds = keys & AddingKeys;
    if (!adds && (locked_ || !isOneOfMany)) {
        pressAlone(control, position);
    } else if (locked_) {
        selection_.toggle(control);
    } else {
        pressWithOthers(control, position, keys);
    }
}

/// Selected or dragged without those that were selected before.
void SpriteMouse::pressAlone(SpriteControl& control, QPoint position) {
    selection_.clearSelection();
    if (locked_) {
        selection_.select(control);
        return;
    }
    drag_ = Drag{control.id, control.rect, position.x() - control.rect.x(),
                 position.y() - control.rect.y()};
    sprites_.setPlaying(control, false);
}

/// A drag takes along what is selected, but for Ctrl on another sprite, which copies that one
/// alone.
void SpriteMouse::pressWithOthers(const SpriteControl& control, QPoint position,
                                  Qt::KeyboardModifiers keys) {
    const bool adds = keys & AddingKeys;
    const bool copies = keys & Qt::ControlModifier;
    click_ = Click{control.id, adds};
    std::vector<SpriteId> dragged = selection_.ids();
    if (!selection_.contains(control.id)) {
        if (copies) {
            dragged.clear();
        }
        dragged.push_back(control.id);
    }
    many_.begin(copies ? SpriteDrag::Kind::Copy : SpriteDrag::Kind::Move, dragged, position);
}

bool SpriteMouse::move(QPoint position, Qt::MouseButtons buttons, Qt::KeyboardModifiers keys) {
    if (!(buttons & Qt::LeftButton)) {
        return false;
    }
    if (drag_) {
        moveDragged(position, keys);
    } else if (resize_) {
        moveHandle(position);
    } else if (many_.isUnderWay()) {
        moveMany(position, keys);
    } else if (band_.isUnderWay()) {
        band_.moveTo(position);
    }
    return isUnderWay();
}

std::optional<SnapGuides> SpriteMouse::guides(std::vector<QRect> others,
                                              Qt::KeyboardModifiers keys) const {
    if ((!snapping_.guides && snapping_.grid == 0) || keys & Qt::AltModifier) {
        return std::nullopt;
    }
    const QSize map(workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
    const int reach = std::max(1, static_cast<int>(GuideReach / zoom_.factor()));
    return SnapGuides(snapping_, map, std::move(others), reach);
}

void SpriteMouse::moveMany(QPoint position, Qt::KeyboardModifiers keys) {
    const auto drawn = guides(many_.others(), keys);
    many_.moveTo(position, drawn ? &*drawn : nullptr);
}

void SpriteMouse::moveDragged(QPoint position, Qt::KeyboardModifiers keys) {
    SpriteControl* control = sprites_.find(drag_->id);
    if (!control) {
        return;
    }
    QRect wanted(QPoint(position.x() - drag_->pressX, position.y() - drag_->pressY),
                 control->rect.size());
    std::vector<QRect> others;
    for (const SpriteControl* other : sprites_.controls()) {
        if (other != control && other->visible) {
            others.push_back(other->rect);
        }
    }
    if (const auto drawn = guides(std::move(others), keys)) {
        const auto snapped = drawn->snap(wanted);
        wanted.translate(snapped.offset);
        marks_.setLines(snapped.lines);
    } else {
        marks_.setLines({});
    }
    sprites_.Move(*control, wanted);
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
    if (button != Qt::LeftButton || !isUnderWay()) {
        return false;
    }
    if (drag_) {
        endDrag();
    } else if (resize_) {
        endResize();
    } else if (many_.isUnderWay()) {
        endMany();
    } else {
        band_.end();
    }
    return true;
}

/// Without a move it was a click: into the selection or out of it, or on one of many.
void SpriteMouse::endMany() {
    const auto click = std::exchange(click_, std::nullopt);
    const bool moved = many_.end();
    SpriteControl* control = click && !moved ? sprites_.find(click->id) : nullptr;
    if (control && click->toggles) {
        selection_.toggle(*control);
    } else if (control) {
        selection_.select(*control);
    }
}

/// The project is marked even by a drag that ends where it began.
void SpriteMouse::endDrag() {
    const Drag drag = *std::exchange(drag_, std::nullopt);
    marks_.clear();
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

void SpriteMouse::spriteWillGo() {
    if (many_.isUnderWay()) {
        cancel();
    }
}

void SpriteMouse::cancel() {
    click_.reset();
    many_.cancel();
    band_.cancel();
    marks_.clear();
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
