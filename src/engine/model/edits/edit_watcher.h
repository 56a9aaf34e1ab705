// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprites.h"

#include <QList>
#include <QRect>

#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace nubivane {

/// A sprite's record by value.
using SpriteRecord = std::variant<cSymbol, cLabel>;

/// How a sprite comes onto the map: as a visit of its Frame shows it, or as placing and pasting do.
enum class Arrival {
    Visit,
    Dropped,  ///< shown inside the map, wherever the model has it
    Pasted,   ///< a Label is shown without its background
};

/// Where an edit works: a Frame, and the sprite if it is about one.
struct EditPlace {
    qint32 frame = 0;  ///< 0 for the project as a whole
    std::optional<SpriteId> sprite = {};
    QRect area = {};                    ///< of the map; empty where there is none
    std::vector<SpriteId> others = {};  ///< sprites beside that one

    /// A Frame and any number of its sprites, of which the last one counts most.
    static EditPlace of(qint32 frame, std::vector<SpriteId> sprites) {
        EditPlace place{frame};
        if (!sprites.empty()) {
            place.sprite = sprites.back();
            sprites.pop_back();
            place.others = std::move(sprites);
        }
        return place;
    }
};

/// What an edit, or taking it back, has changed, by the Frames' numbers afterwards. It is all that
/// somebody needs who keeps a copy of the project.
struct ProjectChange {
    QList<qint32> frames;    ///< whose sprites, texts or name are others
    QList<qint32> pictures;  ///< whose picture is another one
    bool order = false;      ///< Frames came, went or changed places
    bool map = false;        ///< the map under all Frames is another one
};

/// Follows the edits of an open project: canvas, tabs, windows, whoever keeps copies. Everything is
/// told after it was done, unless its name says otherwise.
class EditWatcher {
  public:
    virtual ~EditWatcher() = default;

    /// An edit is about to be taken back or done again: drop what is unfinished.
    virtual void travelBegins() {}

    /// The Frame on the canvas is about to be left, or Frames to come, go or move.
    virtual void framesWillChange() {}
    /// `CurrentFrame` and `pctMap` are those of the Frame to be shown; Frames and captions may be
    /// others.
    virtual void framesChanged() {}
    virtual void captionChanged(qint32 /*frame*/) {}
    /// Title, subtitle, box or elements of a forecast.
    virtual void textsChanged(qint32 /*frame*/) {}

    /// `depth` is the place from below among the Frame's controls, where it is known.
    virtual void spriteAdded(qint32 /*frame*/, const SpriteId&, Arrival,
                             std::optional<int> /*depth*/) {}
    virtual void spriteWillGo(qint32 /*frame*/, const SpriteId&) {}
    virtual void spriteChanged(qint32 /*frame*/, const SpriteRecord& /*before*/,
                               const SpriteRecord& /*after*/) {}
    /// The sprites of a Frame have another order, bottom to top.
    virtual void spritesReordered(qint32 /*frame*/) {}
    virtual void spritesWillBeReplaced(qint32 /*frame*/) {}
    virtual void spritesReplaced(qint32 /*frame*/) {}

    /// A part of `pctMap`, or all of it, has other pixels.
    virtual void pictureChanged(const QRect& /*area*/) {}

    /// After an edit was taken back or done again: bring the place before the person's eyes.
    virtual void reveal(const EditPlace&) {}
    /// Once for each edit done, taken back or done again.
    virtual void edited(const ProjectChange&) {}
    /// What can be undone and redone, or the list of edits, is another one.
    virtual void historyChanged() {}
};

}  // namespace nubivane
