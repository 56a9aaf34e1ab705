// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_drag.h"

#include "engine/model/edits/sprite_changes.h"
#include "windows/canvas/drag_marks.h"
#include "windows/canvas/map_bounds.h"

#include <algorithm>
#include <utility>

namespace nubivane {

SpriteDrag::SpriteDrag(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                       DragMarks& marks)
    : workspace_(workspace), sprites_(sprites), selection_(selection), marks_(marks) {}

void SpriteDrag::begin(Kind kind, const std::vector<SpriteId>& ids, QPoint position) {
    kind_ = kind;
    press_ = position;
    offset_ = {};
    moved_ = false;
    whole_ = {};
    dragged_.clear();
    selected_ = ids;
    for (const SpriteControl* control : sprites_.controls()) {
        if (std::find(ids.begin(), ids.end(), control->id) != ids.end()) {
            dragged_.push_back({control->id, control->rect});
            whole_ |= control->rect;
        }
    }
}

std::vector<QRect> SpriteDrag::others() const {
    std::vector<QRect> rects;
    for (const SpriteControl* control : sprites_.controls()) {
        const bool moves = kind_ == Kind::Move && std::any_of(dragged_.begin(), dragged_.end(),
                                                              [control](const Dragged& dragged) {
                                                                  return dragged.id == control->id;
                                                              });
        if (!moves && control->visible) {
            rects.push_back(control->rect);
        }
    }
    return rects;
}

void SpriteDrag::moveTo(QPoint position, const SnapGuides* guides) {
    QPoint offset = position - press_;
    if (!moved_ && offset.isNull()) {
        return;
    }
    if (!std::exchange(moved_, true)) {
        selection_.hideBorder();
        if (kind_ == Kind::Move) {
            setPlaying(false);
        }
    }
    if (guides) {
        const auto snapped = guides->snap(whole_.translated(offset));
        offset += snapped.offset;
        marks_.setLines(within(offset) == offset ? snapped.lines : std::vector<QLine>());
    } else {
        marks_.setLines({});
    }
    show(within(offset));
}

QPoint SpriteDrag::within(QPoint offset) const {
    return insideMap(whole_.translated(offset), workspace_.pctMap) - whole_.topLeft();
}

void SpriteDrag::show(QPoint offset) {
    offset_ = offset;
    if (kind_ == Kind::Copy) {
        std::vector<DragMarks::Ghost> ghosts;
        for (const Dragged& dragged : dragged_) {
            if (const SpriteControl* control = sprites_.find(dragged.id)) {
                ghosts.push_back({control, offset});
            }
        }
        marks_.setGhosts(ghosts);
        return;
    }
    for (const Dragged& dragged : dragged_) {
        if (SpriteControl* control = sprites_.find(dragged.id)) {
            sprites_.Move(*control, dragged.from.translated(offset));
        }
    }
}

void SpriteDrag::setPlaying(bool playing) {
    for (const Dragged& dragged : dragged_) {
        if (SpriteControl* control = sprites_.find(dragged.id)) {
            sprites_.setPlaying(*control, playing);
        }
    }
}

bool SpriteDrag::end() {
    if (!moved_) {
        dragged_.clear();
        return false;
    }
    marks_.clear();
    if (kind_ == Kind::Copy) {
        finishCopy();
    } else {
        finishMove();
    }
    dragged_.clear();
    return true;
}

void SpriteDrag::finishMove() {
    setPlaying(true);
    std::vector<SpriteMove> moves;
    for (const Dragged& dragged : dragged_) {
        moves.push_back({dragged.id, dragged.from.topLeft() + offset_});
    }
    moveSprites(workspace_, moves, Marks::Project);
    selection_.selectAll(selected_);
}

void SpriteDrag::finishCopy() {
    std::vector<SpriteMove> copies;
    for (const Dragged& dragged : dragged_) {
        copies.push_back({dragged.id, dragged.from.topLeft() + offset_});
    }
    selection_.selectAll(copySprites(workspace_, copies, Marks::Project));
}

void SpriteDrag::cancel() {
    if (!isUnderWay()) {
        return;
    }
    marks_.clear();
    if (moved_ && kind_ == Kind::Move) {
        show({});
        setPlaying(true);
    }
    dragged_.clear();
    selection_.showBorder();
}

}  // namespace nubivane
