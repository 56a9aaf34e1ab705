// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_edits.h"
#include "engine/model/workspace.h"

#include <QPoint>

#include <memory>
#include <utility>

namespace nubivane {

/// Changes of sprites of the current Frame, as edits. A sprite that is gone is passed over.

/// `mutate` gets a copy of the record. Edits with one series in a row become one.
template <class Record, class Mutate>
void changeSprite(Workspace& workspace, const SpriteId& id, const char* name, QString series,
                  Mutate mutate, Marks marks = Marks::Nothing) {
    const qint32 number = workspace.Status.CurrentFrame;
    const cFrame& frame = workspace.Frames().Item(number);
    if (frame.Sprites().contains(id)) {
        auto record = std::get<Record>(recordOf(frame, id));
        mutate(record);
        workspace.edits().push(std::make_unique<ChangeSprite>(
            name, marks, number, std::move(record), std::move(series)));
    }
}

void moveSprite(Workspace& workspace, const SpriteId& id, QPoint position, Marks marks,
                const QString& series = {});

/// The position of a sprite, or nothing.
std::optional<QPoint> positionOf(const Workspace& workspace, const SpriteId& id);

}  // namespace nubivane
