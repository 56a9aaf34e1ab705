// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/main/project_lock.h"
#include "windows/main/recovery.h"
#include "windows/main/termination.h"

namespace nubivane {

/// All that keeps a person's work beyond the window: the bar that tells of it, recovery, the lock
/// beside the project, and the ends of the process that are no proper close.
class Safekeeping : public QObject {
    Q_OBJECT

  public:
    Safekeeping(frmMap& window, Workspace& workspace, const QString& recoveryFolder,
                const RecoveryKeeper::Delays& delays = {});

    /// Shows what editors that did not end as they should have left.
    void offer() { recovery_.offer(); }
    /// The window was closed as it should be.
    void close();

    NoticeBar& bar() { return *bar_; }

  private:
    void keepAll();

    NoticeBar* bar_;  ///< the window's
    Recovery recovery_;
    ProjectLock lock_;
    Termination termination_;
};

}  // namespace nubivane
