// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/recovery_keeper.h"

#include "engine/core/error.h"

namespace nubivane {

RecoveryKeeper::RecoveryKeeper(const Workspace& workspace, const QString& recoveryFolder,
                               QObject* parent)
    : QObject(parent),
      workspace_(workspace),
      copy_(std::make_shared<RecoveryCopy>(recoveryFolder)) {
    constexpr int IntervalMs = 2000;
    thread_.setMaxThreadCount(1);
    connect(&timer_, &QTimer::timeout, this, &RecoveryKeeper::look);
    timer_.start(IntervalMs);
}

RecoveryKeeper::~RecoveryKeeper() {
    thread_.waitForDone();
}

RecoveryKeeper::Base RecoveryKeeper::baseNow() const {
    return {workspace_.Project.get(),
            workspace_.opened ? std::optional(workspace_.opened->state) : std::nullopt};
}

/// Another map makes a new model of a project that is open already: an edit like others.
bool RecoveryKeeper::isNewBase() const {
    const Base now = baseNow();
    return now.state != base_.state || (!now.state && now.model != base_.model) || !saved_;
}

void RecoveryKeeper::look() {
    if (writing_) {
        return;
    }
    try {
        RecoverySnapshot snapshot = takeSnapshot(workspace_);
        if (isNewBase()) {
            base_ = baseNow();
            written_.reset();
            copy_->clear();
            // An edit may have followed the save or the opening before this look.
            saved_ = workspace_.ProjectChanged ? RecoverySnapshot() : snapshot;
        }
        if (sameWork(snapshot, *saved_)) {
            if (written_) {
                written_.reset();
                copy_->clear();
            }
            return;
        }
        if (!written_ || !sameWork(snapshot, *written_)) {
            start(std::move(snapshot));
        }
    } catch (const Error& error) {
        finished(error.cause());
    }
}

void RecoveryKeeper::start(RecoverySnapshot snapshot) {
    writing_ = true;
    written_ = snapshot;
    thread_.start([this, copy = copy_, work = std::move(snapshot)] {
        QString reason;
        try {
            copy->write(work);
        } catch (const Error& error) {
            reason = error.description() + u' ' + error.cause();
        }
        QMetaObject::invokeMethod(
            this, [this, reason] { finished(reason); }, Qt::QueuedConnection);
    });
}

void RecoveryKeeper::finished(const QString& reason) {
    writing_ = false;
    if (reason.isEmpty()) {
        told_ = false;
        return;
    }
    written_.reset();  // tried again at the next look
    if (!told_) {
        told_ = true;
        Q_EMIT failed(reason);
    }
}

void RecoveryKeeper::writeNow() {
    thread_.waitForDone();
    writing_ = false;
    look();
    thread_.waitForDone();
}

void RecoveryKeeper::isUnsaved() {
    base_ = baseNow();
    saved_ = RecoverySnapshot();  // like no project
    look();
}

void RecoveryKeeper::close() {
    timer_.stop();
    thread_.waitForDone();
    copy_->clear();
}

}  // namespace nubivane
