// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"

#include <QLockFile>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace nubivane {

class Notice;
class NoticeBar;
class Workspace;

/// Says in the bar who else has the project open. A hidden lock file beside the project, which goes
/// with the last editor, tells the others; it keeps nobody out. That of a process that has died is
/// taken over at once, that of another machine after a day.
class ProjectLock : public QObject, private EditWatcher {
    Q_OBJECT

  public:
    ProjectLock(Workspace& workspace, NoticeBar& bar);
    ~ProjectLock() override;

    /// Takes the lock away; the process ends in a moment.
    void release();

    /// Host path of the lock file of a project (path text).
    static QString lockFileOf(const QString& project);

  private:
    void historyChanged() override { follow(); }
    void follow();
    void tryLock();
    void tellWhoHasIt();

    Workspace& workspace_;
    NoticeBar& bar_;
    QString project_;  ///< path text; empty for none
    std::unique_ptr<QLockFile> lock_;
    QPointer<Notice> notice_;
    QTimer again_;
};

}  // namespace nubivane
