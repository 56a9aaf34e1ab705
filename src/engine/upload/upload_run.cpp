// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_run.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/shell.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"
#include "engine/upload/upload_plan.h"

#include <QScopedValueRollback>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int PauseBeforeConnectingMs = 500;
constexpr int PauseAfterStepMs = 200;  // lets a person read what is going on

}  // namespace

UploadRun::UploadRun(Editor editor, UploadView& view, FtpOptions options)
    : editor_(editor), view_(view), port_(options.port), transfer_(std::move(options)) {}

bool UploadRun::runUpload(bool initialising) {
    FtpServer server = uploadServer(editor_.workspace.settings);
    server.port = port_;
    return runUpload(initialising, server);
}

bool UploadRun::runUpload(bool initialising, const FtpServer& server) {
    if (running_) {
        return false;
    }
    const QScopedValueRollback running(running_, true);
    UploadCancelled_ = false;
    try {
        if (!choosePlan(initialising)) {
            return false;
        }
        open(initialising);
        connect(server);
        walk(initialising);
    } catch (const Error& error) {
        // What was given up half-way fails too, which is no news to the user.
        return UploadCancelled_ ? stop() : fail(error);
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
    return true;
}

void UploadRun::open(bool initialising) {
    editor_.shell.processEvents();
    view_.Init(initialising ? u"Initializing..."_s : u"Uploading files..."_s);
    editor_.shell.setPointer(Pointer::Default);
    editor_.view.setEnabled(false);
}

void UploadRun::connect(const FtpServer& server) {
    view_.setInfo(u"Connecting to the server..."_s);
    editor_.shell.wait(PauseBeforeConnectingMs);
    editor_.shell.processEvents();
    if (UploadCancelled_ || !transfer_.Connect(server)) {
        throw Error(error_number::UploadStopped, u"runUpload"_s,
                    u"Unable to establish a connection to the remote server"_s,
                    transfer_.failure());
    }
}

void UploadRun::walk(bool initialising) {
    const std::size_t count = plan_.size();
    for (std::size_t i = 0; i < count && !UploadCancelled_; ++i) {
        view_.setProgress(static_cast<int>((i + 1) * 100 / count));
        perform(plan_[i], initialising);
        editor_.shell.processEvents();
        editor_.shell.wait(PauseAfterStepMs);
        editor_.shell.processEvents();
    }
}

void UploadRun::perform(const cUpload& step, bool initialising) {
    const auto tell = [&](const QString& text) {
        view_.setInfo(initialising ? text + step.Param1 : u"Checking folders structure..."_s);
    };
    if (step.Command == u"MKDIR") {
        tell(u"Creating folder "_s);
        check(transfer_.MakeDirectory(step.Param1), step,
              u"Cannot create "_s + step.Param1 + u" folder"_s);
    } else if (step.Command == u"CHDIR") {
        tell(u"Changing folder to "_s);
        check(transfer_.ChangeDirectory(step.Param1), step,
              u"Cannot find "_s + step.Param1 + u" folder"_s);
    } else if (step.Command == u"UPLOAD") {
        const QString file = host_files::toHost(step.Param1);
        view_.setInfo(u"Uploading file "_s + file);
        check(transfer_.PutFile(step.Param1, step.Param2), step,
              u"Cannot upload "_s + file + u" file"_s);
    }
}

void UploadRun::check(bool done, const cUpload& step, const QString& text) {
    // A file may be refused; a server that is gone has refused nothing and gets no other either.
    const bool lostFile = step.Command == u"UPLOAD" && transfer_.lost();
    if (!done && (step.ErrorCauseStop || lostFile)) {
        throw Error(error_number::UploadStopped, u"runUpload"_s, text, transfer_.failure());
    }
}

void UploadRun::closeWindow() {
    view_.close();
    editor_.view.setEnabled(true);
}

bool UploadRun::finish() {
    closeWindow();
    plan_.clear();
    transfer_.EndTransfer();
    transfer_.Disconnect();
    return true;
}

bool UploadRun::stop() {
    transfer_.EndTransfer();
    transfer_.Disconnect();
    UploadCancelled_ = false;
    closeWindow();
    plan_.clear();
    return false;
}

bool UploadRun::fail(const Error& error) {
    closeWindow();
    transfer_.EndTransfer();
    transfer_.Disconnect();
    UploadCancelled_ = false;
    plan_.clear();
    editor_.shell.setPointer(Pointer::Default);
    editor_.shell.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
    return false;
}

void UploadRun::cancel() {
    if (!running_ || UploadCancelled_) {
        return;
    }
    UploadCancelled_ = true;
    transfer_.AbortTransfer();
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
