#include "editor/sprite_keys.h"

#include "editor/sprite_model.h"

#include <QKeyEvent>

namespace nubivane {

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
    cFrame& frame = workspace.Frames().Item(workspace.Status.CurrentFrame);
    const auto position =
        control ? sprite_model::position(frame, control->type(), control->key()) : std::nullopt;
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
        sprite_model::setPosition(frame, control->type(), control->key(), moved);
        sprites.Move(*control, QRect(moved, control->rect.size()));
        selection.follow();
    }
    return true;
}

}  // namespace nubivane
