// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_edits.h"
#include "engine/model/workspace.h"

#include <QPoint>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

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

/// A sprite and where it is to stand.
struct SpriteMove {
    SpriteId id;
    QPoint to;
};

/// Moves several sprites by one edit. One alone is moved as `moveSprite` does, unless the edit has
/// a name of its own.
void moveSprites(Workspace& workspace, const std::vector<SpriteMove>& moves, Marks marks,
                 const QString& series = {}, const char* name = nullptr);

/// Adds copies of records to the current Frame by one edit, in their order. Returns their names.
std::vector<SpriteId> addSprites(Workspace& workspace, std::vector<SpriteRecord> records,
                                 Marks marks, Arrival arrival, const char* name);

/// Adds copies of sprites of the current Frame at the positions given, by one edit, above the
/// others in the order in which they lie. Returns their names.
std::vector<SpriteId> copySprites(Workspace& workspace, const std::vector<SpriteMove>& copies,
                                  Marks marks);

/// Takes sprites off the current Frame by one edit. `depthOf` tells their places from below.
void removeSprites(Workspace& workspace, const std::vector<SpriteId>& ids, Marks marks,
                   const char* name,
                   const std::function<std::optional<int>(const SpriteId&)>& depthOf);

/// A sprite's record at another position.
SpriteRecord movedTo(SpriteRecord record, QPoint position);

/// The position of a sprite, or nothing.
std::optional<QPoint> positionOf(const Workspace& workspace, const SpriteId& id);

}  // namespace nubivane
