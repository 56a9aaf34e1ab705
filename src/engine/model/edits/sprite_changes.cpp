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

SpriteRecord movedTo(SpriteRecord record, QPoint position) {
    std::visit(
        [position](auto& sprite) {
            sprite.PosX = position.x();
            sprite.PosY = position.y();
        },
        record);
    return record;
}

namespace {

/// A series is about the sprites that it names.
QString seriesFor(const QString& series, const std::vector<SpriteMove>& moves) {
    if (series.isEmpty()) {
        return {};
    }
    QString text = series;
    for (const SpriteMove& move : moves) {
        text += (move.id.kind == SpriteKind::Symbol ? u'S' : u'L') + move.id.key;
    }
    return text;
}

}  // namespace

void moveSprites(Workspace& workspace, const std::vector<SpriteMove>& moves, Marks marks,
                 const QString& series, const char* name) {
    if (moves.size() == 1 && !name) {
        moveSprite(workspace, moves.front().id, moves.front().to, marks, series);
        return;
    }
    const char* const called = name ? name : QT_TRANSLATE_NOOP("Edits", "Move selection");
    const qint32 number = workspace.Status.CurrentFrame;
    const cFrame& frame = workspace.Frames().Item(number);
    auto group = std::make_unique<EditGroup>(called, marks, number, seriesFor(series, moves));
    bool any = false;
    for (const SpriteMove& move : moves) {
        if (frame.Sprites().contains(move.id)) {
            group->add(std::make_unique<ChangeSprite>(
                called, marks, number, movedTo(recordOf(frame, move.id), move.to), series));
            any = true;
        }
    }
    if (any) {
        workspace.edits().push(std::move(group));
    }
}

std::vector<SpriteId> addSprites(Workspace& workspace, std::vector<SpriteRecord> records,
                                 Marks marks, Arrival arrival, const char* name) {
    const qint32 number = workspace.Status.CurrentFrame;
    const cFrame& frame = workspace.Frames().Item(number);
    auto group = std::make_unique<EditGroup>(name, marks, number);
    std::vector<SpriteId> ids;
    for (SpriteRecord& record : records) {
        auto add =
            std::make_unique<AddSprite>(name, marks, frame, number, std::move(record), arrival);
        ids.push_back(add->id());
        group->add(std::move(add));
    }
    if (!ids.empty()) {
        workspace.edits().push(std::move(group));
    }
    return ids;
}

std::vector<SpriteId> copySprites(Workspace& workspace, const std::vector<SpriteMove>& copies,
                                  Marks marks) {
    const cFrame& frame = workspace.Frames().Item(workspace.Status.CurrentFrame);
    std::vector<SpriteRecord> records;
    for (const SpriteMove& copy : copies) {
        if (frame.Sprites().contains(copy.id)) {
            records.push_back(movedTo(recordOf(frame, copy.id), copy.to));
        }
    }
    return addSprites(workspace, std::move(records), marks, Arrival::Visit,
                      QT_TRANSLATE_NOOP("Edits", "Duplicate"));
}

void removeSprites(Workspace& workspace, const std::vector<SpriteId>& ids, Marks marks,
                   const char* name,
                   const std::function<std::optional<int>(const SpriteId&)>& depthOf) {
    const qint32 number = workspace.Status.CurrentFrame;
    auto group = std::make_unique<EditGroup>(name, marks, number);
    // From the uppermost down, so that taking it back puts each onto those below it.
    for (auto id = ids.rbegin(); id != ids.rend(); ++id) {
        group->add(std::make_unique<RemoveSprite>(name, marks, number, *id, depthOf(*id)));
    }
    if (!ids.empty()) {
        workspace.edits().push(std::move(group));
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
