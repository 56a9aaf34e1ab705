// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/main/recovery_keeper.h"

#include <QPointer>

namespace nubivane {

class frmMap;
class Notice;
class NoticeBar;

/// Brings together what keeps unsaved work, the bar that offers it again, and the main window.
class Recovery : public QObject {
    Q_OBJECT

  public:
    Recovery(frmMap& window, Workspace& workspace, NoticeBar& bar, const QString& recoveryFolder,
             const RecoveryKeeper::Delays& delays = {});

    /// Shows what editors that did not end as they should have left.
    void offer();
    /// The process ends in a moment, with the window as it is.
    void writeNow() { keeper_.writeNow(); }
    /// The window was closed as it should be.
    void close() { keeper_.close(); }

  private:
    void addEntry(const RecoveryEntry& entry);
    void restore(const RecoveryEntry& entry, Notice* notice);
    bool open(const RecoveryEntry& entry, const QString& project);
    void tellFailure(const QString& reason);

    frmMap& window_;
    Workspace& workspace_;
    NoticeBar& bar_;
    const QString folder_;
    RecoveryKeeper keeper_;
    QPointer<Notice> failure_;
};

}  // namespace nubivane
