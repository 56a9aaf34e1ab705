// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/recovery_keeper.h"

#include "engine/core/error.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"

#include <utility>

namespace nubivane {

namespace {

/// Writes a copy; returns the reason why it could not.
QString writeCopy(RecoveryCopy& copy, const WorkSnapshot& snapshot) {
    try {
        copy.write(snapshot);
        return {};
    } catch (const Error& error) {
        return error.description() + u' ' + error.cause();
    }
}

}  // namespace

RecoveryKeeper::RecoveryKeeper(Workspace& workspace, const QString& recoveryFolder,
                               const Delays& delays, QObject* parent)
    : QObject(parent),
      workspace_(workspace),
      delays_(delays),
      snapshots_(workspace),
      copy_(std::make_shared<RecoveryCopy>(recoveryFolder)) {
    thread_.setMaxThreadCount(1);  // so that copies are written in turn
    for (QTimer* timer : {&idle_, &longest_}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &RecoveryKeeper::write);
    }
    workspace_.edits().watch(*this);
}

RecoveryKeeper::~RecoveryKeeper() {
    workspace_.edits().unwatch(*this);
    thread_.waitForDone();
}

void RecoveryKeeper::historyChanged() {
    const ProjectEdits& edits = workspace_.edits();
    if (edits.count() == 0) {
        snapshots_.forgetAll();  // the whole project may be another one
    }
    if (!edits.isUnsaved()) {
        discard();
        return;
    }
    idle_.start(delays_.idle);
    if (!longest_.isActive()) {
        longest_.start(delays_.longest);
    }
}

void RecoveryKeeper::write() {
    if (writing_) {
        idle_.start(delays_.idle);
        return;
    }
    idle_.stop();
    longest_.stop();
    writing_ = true;
    stands_ = true;
    thread_.start([this, copy = copy_, snapshot = snapshots_.take()]() mutable {
        const QString reason = writeCopy(*copy, snapshot);
        // The last strokes' pixels are shared no longer than they must be: the next stroke would
        // have to copy them.
        snapshot = {};
        QMetaObject::invokeMethod(
            this, [this, reason] { finished(reason); }, Qt::QueuedConnection);
    });
}

void RecoveryKeeper::discard() {
    idle_.stop();
    longest_.stop();
    if (std::exchange(stands_, false)) {
        thread_.start([copy = copy_] { copy->clear(); });
    }
}

void RecoveryKeeper::finished(const QString& reason) {
    writing_ = false;
    if (reason.isEmpty()) {
        if (std::exchange(told_, false)) {
            Q_EMIT succeeded();
        }
        return;
    }
    if (!idle_.isActive() && workspace_.edits().isUnsaved()) {
        idle_.start(delays_.retry);
    }
    if (!std::exchange(told_, true)) {
        Q_EMIT failed(reason);
    }
}

void RecoveryKeeper::writeNow() {
    thread_.waitForDone();
    if (workspace_.edits().isUnsaved()) {
        stands_ = true;
        writeCopy(*copy_, snapshots_.take());
    }
}

void RecoveryKeeper::close() {
    discard();
    thread_.waitForDone();
}

}  // namespace nubivane
