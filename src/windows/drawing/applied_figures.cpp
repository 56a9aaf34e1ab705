// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/applied_figures.h"

#include "engine/model/edits/picture_edits.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

/// The edit that made a state, if it has been done and drew something.
const DrawOnFrame* drawingOf(const ProjectEdits& edits, quint64 state) {
    for (int i = edits.index(); i > 0; --i) {
        if (edits.stateAfter(i) == state) {
            return dynamic_cast<const DrawOnFrame*>(&edits.at(i - 1));
        }
    }
    return nullptr;
}

}  // namespace

void AppliedFigures::keep(const ProjectEdits& edits, AppliedFigure figure,
                          std::optional<quint64> instead) {
    if (kept_.size() == Most) {
        kept_.pop_front();
    }
    kept_.push_back({edits.stateAfter(edits.index()), std::move(figure), instead});
}

const AppliedFigures::Kept* AppliedFigures::find(quint64 state) const {
    const auto kept = std::find_if(kept_.begin(), kept_.end(),
                                   [state](const Kept& each) { return each.state == state; });
    return kept == kept_.end() ? nullptr : &*kept;
}

/// The Frames' numbers are those of the edits only as long as no Frame came, went or moved.
const AppliedFigures::Kept* AppliedFigures::last(const ProjectEdits& edits) const {
    for (int i = edits.index(); i > 0 && edits.at(i - 1).frame() > 0; --i) {
        if (const Kept* kept = find(edits.stateAfter(i))) {
            return kept;
        }
    }
    return nullptr;
}

bool AppliedFigures::canTakeUp(const ProjectEdits& edits) const {
    return last(edits) != nullptr;
}

std::optional<FigureTakenUp> AppliedFigures::takeUp(Workspace& workspace) const {
    ProjectEdits& edits = workspace.edits();
    const Kept* kept = last(edits);
    const DrawOnFrame* drawing = kept ? drawingOf(edits, kept->state) : nullptr;
    if (!drawing) {
        return std::nullopt;
    }
    FigureTakenUp taken{kept->figure, kept->state, drawing->frame(), {}, {}};
    if (workspace.Status.CurrentFrame != taken.frame) {
        edits.showFrame(taken.frame);
    }
    QImage picture = workspace.pctMap.pixels().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QRect area;
    bool seen = false;
    // A figure that had been edited again hides what lay below the one before.
    while (kept && drawing) {
        seen = drawing->change().lift(picture) || seen;
        area |= drawing->change().area();
        drawing = kept->instead ? drawingOf(edits, *kept->instead) : nullptr;
        kept = kept->instead ? find(*kept->instead) : nullptr;
    }
    if (!seen) {
        return std::nullopt;
    }
    taken.below = picture.copy(area);
    taken.corner = area.topLeft();
    return taken;
}

}  // namespace nubivane
