// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_run.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"
#include "engine/net/targets.h"
#include "engine/net/transfer_error.h"
#include "engine/upload/server_memory.h"
#include "engine/upload/stored_password.h"
#include "engine/upload/unsendable_names.h"
#include "engine/upload/upload_plan.h"

#include <QScopedValueRollback>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int PauseBeforeConnectingMs = 500;

}  // namespace

UploadRun::UploadRun(Editor editor, UploadView& view, FtpOptions options)
    : editor_(editor), view_(view), options_(std::move(options)) {}

bool UploadRun::runUpload(bool initialising) {
    if (running_) {
        return false;
    }
    const SettingsStore& settings = editor_.workspace.settings;
    FtpServer server = uploadServer(settings);
    if (options_.port != FtpOptions().port) {
        server.port = options_.port;
    }
    {
        const QScopedValueRollback asking(running_, true);
        server.password = storedPassword(settings, server.host, server.user).password;
    }
    UploadWishes wishes;
    wishes.captions = true;
    wishes.connections = wantedConnections(settings);
    return runUpload(initialising, server, wishes);
}

bool UploadRun::runUpload(bool initialising, const FtpServer& server, const UploadWishes& wishes) {
    if (running_) {
        return false;
    }
    const QScopedValueRollback running(running_, true);
    initialising_ = initialising;
    FtpServer trusted = server;
    while (true) {
        const Outcome outcome = attempt(trusted, wishes);
        if (outcome != Outcome::Untrusted) {
            return outcome == Outcome::Done;
        }
        trusted.fingerprint = upload_->untrusted()->fingerprint;
    }
}

UploadRun::Outcome UploadRun::attempt(const FtpServer& server, const UploadWishes& wishes) {
    UploadCancelled_ = false;
    stopped_ = false;
    report_ = {};
    upload_.reset();
    try {
        if (!choosePlan(initialising_)) {
            return Outcome::Failed;
        }
        open(initialising_);
        send(server, wishes);
    } catch (const Error& error) {
        // What was given up half-way fails too, which is no news to the user.
        return UploadCancelled_ ? stop() : fail(error, server);
    } catch (const TransferError&) {
        return stop();
    }
    return UploadCancelled_ ? stop() : finish();
}

/// False when there is nothing to send, which the user is told.
bool UploadRun::choosePlan(bool initialising) {
    const UploadGroups groups = initialising ? UploadGroups{true, true, true}
                                             : FtpSettings::read(editor_.workspace.settings).groups;
    if (!groups.any()) {
        editor_.shell.messageBox({u"There is no file to upload. Change upload settings and retry"_s,
                                  Icon::Exclamation,
                                  Buttons::Ok,
                                  {}});
        view_.openFtpSettings(FtpTab::UploadList);
        return false;
    }
    plan_ = buildUploadPlan(editor_.workspace, groups.symbols, groups.maps, groups.htmlPage);
    unsendable_ = unsendableNames(editor_.workspace, groups);
    return true;
}

void UploadRun::open(bool initialising) {
    editor_.shell.processEvents();
    view_.Init(initialising ? u"Initializing..."_s : u"Uploading files..."_s);
    editor_.shell.setPointer(Pointer::Default);
    editor_.view.setEnabled(false);
}

void UploadRun::send(const FtpServer& server, const UploadWishes& wishes) {
    view_.setInfo(u"Connecting to the server..."_s);
    editor_.shell.wait(PauseBeforeConnectingMs);
    editor_.shell.processEvents();
    if (UploadCancelled_) {
        return;
    }
    UploadWatcher& watcher = *this;
    UploadWishes patient = wishes;
    patient.retryPauseMs = static_cast<int>(options_.retryPause.count());
    FtpOptions telling = options_;
    telling.log = [this](const QString& line) { note(line); };
    upload_ = std::make_unique<SiteUpload>(
        makeTransfer(server, telling), ServerMemory::placeOf(server, editor_.workspace.settings),
        plan_, patient, watcher);
    const auto stop = [this] {
        stopped_ = true;
        upload_->stop();
    };
    const auto tick = [this] { view_.setAmount(upload_->sent(), upload_->toSend()); };
    worker_.run([this] { report_ = upload_->run(); }, {.tick = tick, .interrupted = stop});
}

/// Shows something in the thread that the windows belong to. The connections do not wait for that:
/// they would wait for one another. After a cancel nothing more is shown.
void UploadRun::inCaller(const std::function<void()>& call) {
    if (stopped_) {
        throw TransferError(TransferError::Kind::Stopped, u"stopped"_s);
    }
    const auto unlessStopped = [this, call] {
        if (!stopped_) {
            call();
        }
    };
    QMetaObject::invokeMethod(&caller_, unlessStopped, Qt::QueuedConnection);
}

void UploadRun::stepBegun(const cUpload& step) {
    inCaller([this, step] { show(step); });
}

void UploadRun::progress(std::size_t done, std::size_t count) {
    inCaller(
        [this, percent = static_cast<int>(done * 100 / count)] { view_.setProgress(percent); });
}

void UploadRun::inClear() {
    inCaller([this] { view_.showOpenLock(); });
}

void UploadRun::chosen(qsizetype files, qsizetype all, qint64 bytes) {
    inCaller([this, files, all, bytes] { view_.setChosen(files, all, bytes); });
}

/// A line of the conversation. It comes from whatever thread, and stops nobody.
void UploadRun::note(const QString& line) {
    if (options_.log) {
        options_.log(line);
    }
    QMetaObject::invokeMethod(
        &caller_, [this, line] { view_.addLine(line); }, Qt::QueuedConnection);
}

void UploadRun::show(const cUpload& step) {
    const auto tell = [&](const QString& text) {
        view_.setInfo(initialising_ ? text + step.Param1 : u"Checking folders structure..."_s);
    };
    switch (step.Command) {
        case UploadCommand::MakeFolder:
            tell(u"Creating folder "_s);
            break;
        case UploadCommand::ChangeFolder:
            tell(u"Changing folder to "_s);
            break;
        case UploadCommand::Upload:
            view_.setInfo(u"Uploading file "_s + host_files::toHost(step.Param1));
            break;
    }
}

void UploadRun::closeWindow() {
    view_.close();
    editor_.view.setEnabled(true);
}

UploadRun::Outcome UploadRun::finish() {
    closeWindow();
    plan_.clear();
    report_.unsendable = unsendable_;
    if (!unsendable_.isEmpty()) {
        view_.showUnsendable(unsendable_);
    }
    if (!report_.forgotten.isEmpty()) {
        view_.addLine(u"What was sent cannot be remembered: "_s + report_.forgotten);
    }
    return Outcome::Done;
}

UploadRun::Outcome UploadRun::stop() {
    UploadCancelled_ = false;
    closeWindow();
    plan_.clear();
    return Outcome::Failed;
}

UploadRun::Outcome UploadRun::fail(const Error& error, const FtpServer& server) {
    closeWindow();
    UploadCancelled_ = false;
    plan_.clear();
    editor_.shell.setPointer(Pointer::Default);
    if (upload_ && upload_->untrusted() && view_.trust(*upload_->untrusted())) {
        trustFingerprint(editor_.workspace.settings, server, upload_->untrusted()->fingerprint);
        return Outcome::Untrusted;
    }
    const QString conversation = view_.conversation();
    const QString details = conversation.isEmpty() ? QString() : u"\n\n"_s + conversation;
    editor_.shell.messageBox(
        {error.description(), Icon::Critical, Buttons::Ok, error.cause() + details});
    return Outcome::Failed;
}

void UploadRun::cancel() {
    if (!running_ || UploadCancelled_) {
        return;
    }
    UploadCancelled_ = true;
    stopped_ = true;
    if (upload_) {
        upload_->stop();
    }
    view_.setInfo(u"Disconnecting..."_s);
    view_.disableCancel();
    editor_.shell.processEvents();
    editor_.shell.processEvents();
    view_.close();
    editor_.shell.setPointer(Pointer::Default);
    editor_.shell.messageBox(
        {u"Operation stopped by the user."_s, Icon::Exclamation, Buttons::Ok, {}});
    editor_.view.setEnabled(true);
}

}  // namespace nubivane
