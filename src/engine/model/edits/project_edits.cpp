// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/project_edits.h"

#include "engine/model/workspace.h"

#include <algorithm>
#include <utility>

namespace nubivane {

ProjectEdits::ProjectEdits(Workspace& workspace, qsizetype mostBytes)
    : workspace_(workspace), mostBytes_(mostBytes), scene_(workspace, watchers_) {}

template <class Call>
void ProjectEdits::tell(Call call) const {
    for (EditWatcher* watcher : watchers_) {
        call(*watcher);
    }
}

void ProjectEdits::push(std::unique_ptr<Edit> edit) {
    edit->apply(scene_);
    const bool marks = edit->marksProject();
    if (!edit->isNothing()) {
        dropUndone();
        if (!absorbed(*edit)) {
            bytes_ += edit->bytes();
            edits_.push_back({std::move(edit), ++lastState_});
            ++index_;
        }
        sealed_ = false;
        forgetOldest();
    }
    finish(marks);
    tell([](EditWatcher& watcher) { watcher.historyChanged(); });
}

bool ProjectEdits::absorbed(const Edit& edit) {
    // What was saved must stay a state of its own.
    if (sealed_ || edits_.empty() || savedState_ == edits_.back().state) {
        return false;
    }
    Edit& last = *edits_.back();
    const qsizetype before = last.bytes();
    if (!last.absorb(edit)) {
        return false;
    }
    bytes_ += last.bytes() - before;
    edits_.back().state = ++lastState_;
    return true;
}

/// Marks the project where the edit does so and tells what it changed.
void ProjectEdits::finish(bool marks) {
    if (marks) {
        workspace_.ProjectChanged = true;
    }
    const ProjectChange change = scene_.takeChange();
    tell([&](EditWatcher& watcher) { watcher.edited(change); });
}

void ProjectEdits::dropUndone() {
    while (count() > index_) {
        bytes_ -= edits_.back().edit->bytes();
        edits_.pop_back();
        sealed_ = true;
    }
}

void ProjectEdits::forgetOldest() {
    while (bytes_ > mostBytes_ && index_ > 1) {
        bytes_ -= edits_.front().edit->bytes();
        firstState_ = edits_.front().state;
        edits_.pop_front();
        --index_;
        forgotten_ = true;
    }
}

void ProjectEdits::showFrame(qint32 frame) {
    seal();
    scene_.framesWillChange();
    workspace_.showFrame(frame);
    tell([](EditWatcher& watcher) { watcher.framesChanged(); });
}

void ProjectEdits::undo() {
    if (canUndo()) {
        step(false);
    }
}

void ProjectEdits::redo() {
    if (canRedo()) {
        step(true);
    }
}

void ProjectEdits::step(bool forwards) {
    tell([](EditWatcher& watcher) { watcher.travelBegins(); });
    Edit& edit = *edits_[static_cast<std::size_t>(forwards ? index_ : index_ - 1)];
    if (edit.frame() > 0 && edit.frame() != workspace_.Status.CurrentFrame) {
        showFrame(edit.frame());
    }
    forwards ? edit.apply(scene_) : edit.revert(scene_);
    index_ += forwards ? 1 : -1;
    sealed_ = true;
    finish(edit.marksProject());
    const EditPlace place = forwards ? edit.placeAfter() : edit.placeBefore();
    tell([&](EditWatcher& watcher) {
        watcher.historyChanged();
        watcher.reveal(place);
    });
}

void ProjectEdits::goTo(int index) {
    const int target = std::clamp(index, 0, count());
    if (target == index_) {
        return;
    }
    if (std::abs(target - index_) == 1) {
        step(target > index_);
        return;
    }
    tell([](EditWatcher& watcher) { watcher.travelBegins(); });
    scene_.framesWillChange();
    bool marks = false;
    EditPlace place;
    scene_.quiet = true;
    while (index_ != target) {
        const bool forwards = target > index_;
        Edit& edit = *edits_[static_cast<std::size_t>(forwards ? index_ : index_ - 1)];
        forwards ? edit.apply(scene_) : edit.revert(scene_);
        index_ += forwards ? 1 : -1;
        marks = marks || edit.marksProject();
        place = forwards ? edit.placeAfter() : edit.placeBefore();
    }
    scene_.quiet = false;
    sealed_ = true;
    workspace_.ProjectChanged = workspace_.ProjectChanged || marks;
    workspace_.storeCurrentFrame();
    workspace_.showFrame(place.frame > 0 ? place.frame : workspace_.Status.CurrentFrame);
    const ProjectChange change = scene_.takeChange();
    tell([&](EditWatcher& watcher) {
        watcher.framesChanged();
        watcher.edited(change);
        watcher.historyChanged();
        watcher.reveal(place);
    });
}

quint64 ProjectEdits::stateAfter(int index) const {
    return index == 0 ? firstState_ : edits_[static_cast<std::size_t>(index) - 1].state;
}

std::optional<int> ProjectEdits::savedIndex() const {
    for (int i = 0; savedState_ && i <= count(); ++i) {
        if (stateAfter(i) == *savedState_) {
            return i;
        }
    }
    return std::nullopt;
}

void ProjectEdits::markSaved() {
    seal();
    savedState_ = stateAfter(index_);
    cleanState_ = savedState_;
    tell([](EditWatcher& watcher) { watcher.historyChanged(); });
}

void ProjectEdits::markUnsaved() {
    seal();
    savedState_.reset();
    cleanState_.reset();
    tell([](EditWatcher& watcher) { watcher.historyChanged(); });
}

void ProjectEdits::clear() {
    edits_.clear();
    index_ = 0;
    bytes_ = 0;
    firstState_ = ++lastState_;
    savedState_.reset();
    cleanState_ = firstState_;
    sealed_ = true;
    forgotten_ = false;
    scene_.takeChange();
    tell([](EditWatcher& watcher) { watcher.historyChanged(); });
}

void ProjectEdits::renameFolder(const QString& from, const QString& to) {
    for (const Kept& kept : edits_) {
        kept.edit->renameFolder(from, to);
    }
}

}  // namespace nubivane
