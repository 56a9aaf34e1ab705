// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// Keeps other programs of ours out of a folder's files while it lives. The lock belongs to the
/// open folder, so it needs no file of its own and dies with its process, however that ends. Waits
/// for whoever holds it; where the file system knows no locks, nothing is held.
class FolderLock {
  public:
    explicit FolderLock(const QString& hostFolder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    bool held() const { return held_; }

  private:
    int descriptor_;
    bool held_ = false;
};

}  // namespace nubivane
