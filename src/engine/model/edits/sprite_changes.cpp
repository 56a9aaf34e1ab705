// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/sprite_changes.h"

#include <QCoreApplication>

namespace nubivane {

void moveSprite(Workspace& workspace, const SpriteId& id, QPoint position, Marks marks,
                const QString& series) {
    const auto move = [position](auto& sprite) {
        sprite.PosX = position.x();
        sprite.PosY = position.y();
    };
    if (id.kind == SpriteKind::Symbol) {
        changeSprite<cSymbol>(workspace, id, QT_TRANSLATE_NOOP("Edits", "Move symbol"), series,
                              move, marks);
    } else {
        changeSprite<cLabel>(workspace, id, QT_TRANSLATE_NOOP("Edits", "Move label"), series, move,
                             marks);
    }
}

std::optional<QPoint> positionOf(const Workspace& workspace, const SpriteId& id) {
    const cFrame& frame = workspace.Frames().Item(workspace.Status.CurrentFrame);
    if (!frame.Sprites().contains(id)) {
        return std::nullopt;
    }
    return std::visit([](const auto& sprite) { return QPoint(sprite.PosX, sprite.PosY); },
                      recordOf(frame, id));
}

}  // namespace nubivane
