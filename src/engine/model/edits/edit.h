// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"

#include <QString>

namespace nubivane {

class EditScene;

/// Whether an edit marks the project as changed (`ProjectChanged`). Not every edit does: nudges,
/// resizing, deleting and the property windows never have.
enum class Marks { Nothing, Project };

/// One change of the open project that a person made: it can be done, taken back and done again any
/// number of times, always in turn. It keeps whatever that needs.
class Edit {
  public:
    /// `name` is what people call it, "Move symbol"; it has to live as long as the program.
    Edit(const char* name, Marks marks, qint32 frame) : name_(name), marks_(marks), frame_(frame) {}
    virtual ~Edit() = default;
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;

    QString text() const;
    bool marksProject() const { return marks_ == Marks::Project; }
    /// The Frame on which it works, by its number before and after; 0 for the project as a whole.
    qint32 frame() const { return frame_; }

    virtual void apply(EditScene& scene) = 0;
    virtual void revert(EditScene& scene) = 0;

    /// What to look at after it was done, and after it was taken back.
    virtual EditPlace placeAfter() const { return {frame_, std::nullopt}; }
    virtual EditPlace placeBefore() const { return placeAfter(); }

    /// True when doing it changes nothing, so that it need not be kept.
    virtual bool isNothing() const { return false; }
    /// Takes the next edit in, which was done already, so that both become this one.
    virtual bool absorb(const Edit& /*next*/) { return false; }
    /// Memory that it holds, about.
    virtual qsizetype bytes() const { return 200; }
    /// A folder of symbols has another name: records kept here follow it.
    virtual void renameFolder(const QString& /*from*/, const QString& /*to*/) {}

  private:
    const char* name_;
    Marks marks_;
    qint32 frame_;
};

}  // namespace nubivane
