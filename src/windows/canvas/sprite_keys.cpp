// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_keys.h"

#include "engine/model/edits/sprite_changes.h"

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

}  // namespace

bool nudgeSelection(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                    const QKeyEvent& key) {
    const auto step = direction(key.key());
    if (!step || (key.modifiers() & ~Qt::KeypadModifier) != Qt::ShiftModifier ||
        selection.isEmpty()) {
        return false;
    }
    SpriteControl* control = selection.control();
    const auto position = control ? positionOf(workspace, control->id) : std::nullopt;
    if (!position) {
        return true;
    }
    const QPoint centre(control->rect.width() / 2 + position->x(),
                        control->rect.height() / 2 + position->y());
    const bool allowed = step->x() < 0   ? centre.x() > 0
                         : step->x() > 0 ? centre.x() < workspace.pctMap.Width()
                         : step->y() < 0 ? centre.y() > 0
                                         : centre.y() < workspace.pctMap.Height();
    if (allowed) {
        const QPoint moved = *position + *step;
        moveSprite(workspace, control->id, moved, Marks::Nothing, u"nudge"_s);
        sprites.Move(*control, QRect(moved, control->rect.size()));
        selection.follow();
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
