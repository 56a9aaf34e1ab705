// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>

namespace nubivane {

/// Nobody waits longer for another program that writes in the same folder.
inline constexpr std::chrono::milliseconds LockPatience{30'000};

/// Keeps other programs of ours out of a folder's files while it lives. The lock belongs to the
/// open folder, so it needs no file of its own and dies with its process, however that ends.
class FolderLock {
  public:
    enum class State {
        Held,
        Busy,    ///< another program holds it, and has held it all the time that was waited
        Unknown  ///< the folder cannot be opened, or its file system knows no locks
    };

    /// Waits at most `patience` for whoever holds it.
    explicit FolderLock(const QString& hostFolder,
                        std::chrono::milliseconds patience = LockPatience);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Whether somebody holds it at this moment.
    static bool isHeld(const QString& hostFolder);

    State state() const { return state_; }
    bool held() const { return state_ == State::Held; }
    /// Lets others in before this object's end.
    void release();

  private:
    int descriptor_;
    State state_ = State::Unknown;
};

}  // namespace nubivane
