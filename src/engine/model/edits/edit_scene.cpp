// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/edit_scene.h"

#include "engine/model/edits/edit.h"
#include "engine/model/workspace.h"

#include <QCoreApplication>

#include <utility>

namespace nubivane {

QString Edit::text() const {
    return QCoreApplication::translate("Edits", name_);
}

cFrame& EditScene::frame(qint32 number) {
    return workspace.Project->Frames().Item(number);
}

bool EditScene::isShown(qint32 frame) const {
    return frame == workspace.Status.CurrentFrame;
}

void EditScene::noteFrame(qint32 frame) {
    if (!change_.frames.contains(frame)) {
        change_.frames << frame;
    }
}

void EditScene::spriteAdded(qint32 frame, const SpriteId& id, Arrival arrival,
                            std::optional<int> depth) {
    noteFrame(frame);
    tell([&](EditWatcher& watcher) { watcher.spriteAdded(frame, id, arrival, depth); });
}

void EditScene::spriteWillGo(qint32 frame, const SpriteId& id) {
    noteFrame(frame);
    tell([&](EditWatcher& watcher) { watcher.spriteWillGo(frame, id); });
}

void EditScene::spriteChanged(qint32 frame, const SpriteRecord& before, const SpriteRecord& after) {
    noteFrame(frame);
    tell([&](EditWatcher& watcher) { watcher.spriteChanged(frame, before, after); });
}

void EditScene::spritesReordered(qint32 frame) {
    noteFrame(frame);
    tell([&](EditWatcher& watcher) { watcher.spritesReordered(frame); });
}

void EditScene::spritesWillBeReplaced(qint32 frame) {
    tell([&](EditWatcher& watcher) { watcher.spritesWillBeReplaced(frame); });
}

void EditScene::spritesReplaced(qint32 frame) {
    noteFrame(frame);
    tell([&](EditWatcher& watcher) { watcher.spritesReplaced(frame); });
}

void EditScene::captionChanged(qint32 frame) {
    noteFrame(frame);
    tell([&](EditWatcher& watcher) { watcher.captionChanged(frame); });
}

void EditScene::textsChanged(qint32 frame) {
    noteFrame(frame);
    tell([&](EditWatcher& watcher) { watcher.textsChanged(frame); });
}

void EditScene::framesWillChange() {
    tell([](EditWatcher& watcher) { watcher.framesWillChange(); });
    workspace.pctMap.wipeScratchLayer();
    workspace.storeCurrentFrame();
}

void EditScene::framesChanged(qint32 shown) {
    change_.order = true;
    workspace.showFrame(shown);
    tell([](EditWatcher& watcher) { watcher.framesChanged(); });
}

void EditScene::pictureChanged(qint32 frame, const QRect& area) {
    if (!change_.pictures.contains(frame)) {
        change_.pictures << frame;
    }
    if (isShown(frame)) {
        tell([&](EditWatcher& watcher) { watcher.pictureChanged(area); });
    }
}

ProjectChange EditScene::takeChange() {
    return std::exchange(change_, ProjectChange());
}

}  // namespace nubivane
