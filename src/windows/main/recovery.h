// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/main/recovery_keeper.h"

namespace nubivane {

class frmMap;
class RecoveryBar;

/// Brings together what keeps unsaved work, the bar that offers it again, and the main window.
class Recovery : public QObject {
    Q_OBJECT

  public:
    Recovery(frmMap& window, Workspace& workspace, const QString& recoveryFolder);

    /// Shows what an editor that did not end as it should has left.
    void offer();
    /// The process ends in a moment, with the window as it is.
    void writeNow() { keeper_.writeNow(); }
    /// The window was closed as it should be.
    void close() { keeper_.close(); }

  private:
    void restore(const RecoveryEntry& entry);
    void showCopy(const RecoveryEntry& entry);
    bool open(const RecoveryEntry& entry, const QString& project);

    frmMap& window_;
    Workspace& workspace_;
    RecoveryBar* bar_;  ///< the window's
    RecoveryKeeper keeper_;
};

}  // namespace nubivane
