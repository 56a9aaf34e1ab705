// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"
#include "engine/model/frames.h"

#include <vector>

namespace nubivane {

class Workspace;

/// What edits work on: the open project for writing, and those who follow. Each notice is kept for
/// the summary that ends an edit. While it is quiet nobody is told anything; whoever set it so has
/// the windows look anew.
class EditScene {
  public:
    EditScene(Workspace& open, const std::vector<EditWatcher*>& watchers)
        : workspace(open), watchers_(watchers) {}

    Workspace& workspace;
    bool quiet = false;

    cFrame& frame(qint32 number);
    bool isShown(qint32 frame) const;

    void spriteAdded(qint32 frame, const SpriteId& id, Arrival arrival, std::optional<int> depth);
    void spriteWillGo(qint32 frame, const SpriteId& id);
    void spriteChanged(qint32 frame, const SpriteRecord& before, const SpriteRecord& after);
    void spritesReordered(qint32 frame);
    void spritesWillBeReplaced(qint32 frame);
    void spritesReplaced(qint32 frame);
    void captionChanged(qint32 frame);
    void textsChanged(qint32 frame);
    /// The canvas' picture is put into its panel before, so that panels hold all pictures.
    void framesWillChange();
    /// Shows a Frame after Frames came, went or moved.
    void framesChanged(qint32 shown);
    void mapChanged() { change_.map = true; }
    void pictureChanged(qint32 frame, const QRect& area);

    /// What was told since the last call.
    ProjectChange takeChange();

  private:
    template <class Call>
    void tell(Call call) const {
        if (!quiet) {
            for (EditWatcher* watcher : watchers_) {
                call(*watcher);
            }
        }
    }
    void noteFrame(qint32 frame);

    const std::vector<EditWatcher*>& watchers_;
    ProjectChange change_;
};

}  // namespace nubivane
