// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QImage;

namespace nubivane {

/// Who watches an export: its run window, or nobody. Called on the thread that works, after every
/// picture at least. To stop an export the watcher raises `Error`: then nothing is left of it.
class ExportWatcher {
  public:
    virtual ~ExportWatcher() = default;

    virtual void setCaption(const QString&) {}
    virtual void setProgress(int) {}  ///< percent
    /// The stage as it was just captured.
    virtual void showStage(const QImage&) {}
    virtual void working() {}
    /// A sentence for the person about a file that is written all the same, such as letters that
    /// no font has.
    virtual void remark(const QString&) {}
};

}  // namespace nubivane
