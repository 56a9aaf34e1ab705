// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/project_lock.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/replaced_file.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"
#include "windows/main/notice_bar.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSysInfo>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Whether a lock of another machine is so old that its editor can hardly still run.
bool isLeftByAnotherMachine(const QString& lockFile, const QString& host) {
    constexpr qint64 SecondsOfADay = 86'400;
    return host != QSysInfo::machineHostName() &&
           QFileInfo(lockFile).lastModified().secsTo(QDateTime::currentDateTime()) > SecondsOfADay;
}

}  // namespace

ProjectLock::ProjectLock(Workspace& workspace, NoticeBar& bar) : workspace_(workspace), bar_(bar) {
    constexpr int AgainMs = 3000;
    again_.setInterval(AgainMs);
    connect(&again_, &QTimer::timeout, this, &ProjectLock::tryLock);
    workspace_.edits().watch(*this);
    follow();
}

ProjectLock::~ProjectLock() {
    workspace_.edits().unwatch(*this);
}

QString ProjectLock::lockFileOf(const QString& project) {
    const QFileInfo file(behindLinks(host_files::toHost(project)));
    return file.path() + "/."_L1 + file.fileName() + ".lock"_L1;
}

void ProjectLock::release() {
    lock_.reset();
    again_.stop();
    bar_.remove(notice_);
}

void ProjectLock::follow() {
    const QString& project = workspace_.Status.CurrentProject;
    if (project == project_) {
        return;
    }
    release();
    project_ = project;
    if (project.isEmpty()) {
        return;
    }
    try {
        lock_ = std::make_unique<QLockFile>(lockFileOf(project));
    } catch (const Error&) {
        return;  // links that lead in a circle
    }
    lock_->setStaleLockTime(0);  // no living process of this machine is overlooked
    tryLock();
}

void ProjectLock::tryLock() {
    if (lock_->tryLock(0)) {
        again_.stop();
        bar_.remove(notice_);
    } else if (lock_->error() == QLockFile::LockFailedError) {
        tellWhoHasIt();
        again_.start();
    }
}

void ProjectLock::tellWhoHasIt() {
    qint64 process = 0;
    QString host;
    QString program;
    lock_->getLockInfo(&process, &host, &program);
    const QString file = lock_->fileName();
    if (isLeftByAnotherMachine(file, host)) {
        QFile::remove(file);
        return;  // taken at the next look
    }
    if (notice_) {
        return;
    }
    const QString owner = QFileInfo(file).owner();
    notice_ = bar_.tellClosable(
        tr("%1 is open in another window too: by %2 on %3. A save asks before it replaces what "
           "was saved there.")
            .arg(getFileName(project_), owner.isEmpty() ? tr("somebody") : owner,
                 host.isEmpty() ? tr("another computer") : host));
}

}  // namespace nubivane
