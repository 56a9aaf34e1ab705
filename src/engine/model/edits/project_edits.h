// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"
#include "engine/model/edits/edit_scene.h"

#include <QString>

#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace nubivane {

class Workspace;

/// The one door through which an open project is changed, and the stack of the edits that went
/// through it. It bounds its memory by dropping the oldest edits, which is why it is no
/// QUndoStack: that one can bound their number alone, and only while it is empty.
class ProjectEdits {
  public:
    /// Memory that all edits together may hold, bytes.
    static constexpr qsizetype MostBytes = 256 * 1024 * 1024;

    explicit ProjectEdits(Workspace& workspace, qsizetype mostBytes = MostBytes);

    /// Watchers are told in the order in which they came.
    void watch(EditWatcher& watcher) { watchers_.push_back(&watcher); }
    void unwatch(EditWatcher& watcher) { std::erase(watchers_, &watcher); }

    /// Does an edit and keeps it; what had been undone is forgotten. One that continues the last
    /// edit becomes part of it, one that changes nothing is not kept. Raises what the edit raises,
    /// which then has changed nothing.
    void push(std::unique_ptr<Edit> edit);
    /// The next edit will not become part of the last one.
    void seal() { sealed_ = true; }

    /// Brings another Frame onto the canvas; no edit.
    void showFrame(qint32 frame);

    bool canUndo() const { return index_ > 0; }
    bool canRedo() const { return index_ < count(); }
    /// The name of the edit that comes next; empty without one.
    QString undoText() const { return canUndo() ? at(index_ - 1).text() : QString(); }
    QString redoText() const { return canRedo() ? at(index_).text() : QString(); }
    /// Each shows the place where it works and does nothing where there is nothing to do.
    void undo();
    void redo();
    /// Takes back or does again whatever leads to the state after the first `index` edits.
    void goTo(int index);

    int count() const { return static_cast<int>(edits_.size()); }
    /// Number of edits that are done.
    int index() const { return index_; }
    const Edit& at(int position) const { return *edits_[static_cast<std::size_t>(position)]; }
    /// A number that tells the state after the first `index` edits from every other state.
    quint64 stateAfter(int index) const;
    /// The state that was saved last, as an index; nothing when it cannot be reached any more.
    std::optional<int> savedIndex() const;
    /// True when older edits had to go for the sake of memory.
    bool hasForgotten() const { return forgotten_; }
    qsizetype bytes() const { return bytes_; }

    /// True when the project is another than the one that was opened, begun or saved last.
    bool isUnsaved() const { return cleanState_ != stateAfter(index_); }

    /// The project as it stands is the saved one.
    void markSaved();
    /// No file holds the project as it stands: unsaved work was brought back.
    void markUnsaved();
    /// Another project is open: nothing can be undone.
    void clear();
    /// A folder of symbols has another name: the edits kept follow it.
    void renameFolder(const QString& from, const QString& to);

  private:
    struct Kept {
        std::unique_ptr<Edit> edit;
        quint64 state;  ///< after it
        Edit& operator*() const { return *edit; }
    };

    template <class Call>
    void tell(Call call) const;
    void step(bool forwards);
    void finish(bool marks);
    bool absorbed(const Edit& edit);
    void dropUndone();
    void forgetOldest();

    Workspace& workspace_;
    const qsizetype mostBytes_;
    std::vector<EditWatcher*> watchers_;
    EditScene scene_;
    std::deque<Kept> edits_;
    int index_ = 0;
    quint64 firstState_ = 0;  ///< before the oldest edit
    quint64 lastState_ = 0;   ///< the newest number given
    std::optional<quint64> savedState_;
    std::optional<quint64> cleanState_{0};  ///< in which nobody would miss anything
    qsizetype bytes_ = 0;
    bool sealed_ = true;
    bool forgotten_ = false;
};

}  // namespace nubivane
