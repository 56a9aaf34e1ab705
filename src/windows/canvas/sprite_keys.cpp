// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_keys.h"

#include "engine/model/edits/sprite_changes.h"
#include "windows/canvas/map_bounds.h"

#include <QKeyEvent>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Where a key moves to; nothing for another key.
std::optional<QPoint> direction(int key) {
    switch (key) {
        case Qt::Key_Left:
            return QPoint(-1, 0);
        case Qt::Key_Up:
            return QPoint(0, -1);
        case Qt::Key_Right:
            return QPoint(1, 0);
        case Qt::Key_Down:
            return QPoint(0, 1);
        default:
            return std::nullopt;
    }
}

/// How far the keys held send it; nothing where they mean something else.
std::optional<int> reachOf(Qt::KeyboardModifiers keys, bool onMap) {
    constexpr int Far = 10;  // pixels
    switch (keys & ~Qt::KeypadModifier) {
        case Qt::ShiftModifier:
            return 1;
        case Qt::NoModifier:
            return onMap ? std::optional(1) : std::nullopt;
        case Qt::ControlModifier:
            return onMap ? std::optional(Far) : std::nullopt;
        default:
            return std::nullopt;
    }
}

/// One sprite goes on until its centre reaches the edge of the map.
void nudgeOne(Workspace& workspace, SpriteStack& sprites, Selection& selection, QPoint step,
              int reach) {
    SpriteControl* control = selection.control();
    const auto position = control ? positionOf(workspace, control->id) : std::nullopt;
    if (!position) {
        return;
    }
    const QPoint half(control->rect.width() / 2, control->rect.height() / 2);
    const auto allowed = [&](QPoint from) {
        const QPoint centre = half + from;
        return step.x() < 0   ? centre.x() > 0
               : step.x() > 0 ? centre.x() < workspace.pctMap.Width()
               : step.y() < 0 ? centre.y() > 0
                              : centre.y() < workspace.pctMap.Height();
    };
    QPoint moved = *position;
    for (int i = 0; i < reach && allowed(moved); ++i) {
        moved += step;
    }
    if (moved != *position) {
        moveSprite(workspace, control->id, moved, Marks::Nothing, u"nudge"_s);
        sprites.Move(*control, QRect(moved, control->rect.size()));
        selection.follow();
    }
}

/// Several go on as long as all of them are inside the map.
void nudgeMany(Workspace& workspace, const Selection& selection, QPoint step, int reach) {
    QRect whole;
    for (const SpriteControl* control : selection.controls()) {
        whole |= control->rect;
    }
    const QPoint moved =
        insideMap(whole.translated(step * reach), workspace.pctMap) - whole.topLeft();
    // Those that stick out already do not jump back by a key that leads elsewhere.
    const QPoint offset(step.x() == 0 ? 0 : moved.x(), step.y() == 0 ? 0 : moved.y());
    if (QPoint::dotProduct(offset, step) <= 0) {
        return;
    }
    std::vector<SpriteMove> moves;
    for (const SpriteControl* control : selection.controls()) {
        moves.push_back({control->id, control->rect.topLeft() + offset});
    }
    moveSprites(workspace, moves, Marks::Nothing, u"nudge"_s);
}

}  // namespace

bool nudgeSelection(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                    const QKeyEvent& key, bool onMap) {
    const auto step = direction(key.key());
    const auto reach = reachOf(key.modifiers(), onMap);
    if (!step || !reach || selection.isEmpty()) {
        return false;
    }
    if (selection.ids().size() > 1) {
        nudgeMany(workspace, selection, *step, *reach);
    } else {
        nudgeOne(workspace, sprites, selection, *step, *reach);
    }
    return true;
}

bool stepSelection(const Workspace& workspace, const SpriteStack& sprites, Selection& selection,
                   const QKeyEvent& key) {
    const bool up = key.key() == Qt::Key_PageUp;
    if ((!up && key.key() != Qt::Key_PageDown) ||
        (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier ||
        workspace.Status.CurrentTool != Tool::cursor) {
        return false;
    }
    const std::vector<SpriteControl*>& controls = sprites.controls();
    const std::size_t count = controls.size();
    if (count == 0) {
        return true;
    }
    const auto selected = std::find(controls.begin(), controls.end(), selection.control());
    const auto index = static_cast<std::size_t>(selected - controls.begin());
    std::size_t next = up ? count - 1 : 0;
    if (selected != controls.end()) {
        next = (index + (up ? count - 1 : 1)) % count;
    }
    selection.clearSelection();
    selection.select(*controls[next]);
    return true;
}

}  // namespace nubivane
