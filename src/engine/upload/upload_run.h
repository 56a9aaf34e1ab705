// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"
#include "engine/net/ftp_transfer.h"
#include "engine/upload/c_upload.h"
#include "engine/upload/upload_view.h"

namespace nubivane {

class Error;

/// Walks the plan of an upload step by step. One run at a time: events run while it lasts, so that
/// its window repaints and can be cancelled.
class UploadRun {
  public:
    UploadRun(Editor editor, UploadView& view, FtpOptions options = {});

    /// Sends the groups of the settings, or all when `initialising`. True when all steps were
    /// walked to the end; otherwise a message has told why.
    bool runUpload(bool initialising);
    /// The same to another server than that of the settings.
    bool runUpload(bool initialising, const FtpServer& server);

    /// What the Cancel button does: tells the user at once, while the running step is given up.
    void cancel();

    bool running() const { return running_; }

  private:
    bool choosePlan(bool initialising);
    void open(bool initialising);
    void connect(const FtpServer& server);
    void walk(bool initialising);
    void perform(const cUpload& step, bool initialising);
    void check(bool done, const cUpload& step, const QString& text);
    bool finish();
    bool stop();
    bool fail(const Error& error);
    void closeWindow();

    Editor editor_;
    UploadView& view_;
    const int port_;
    ftpTransfer transfer_;
    UploadPlan plan_;
    bool UploadCancelled_ = false;
    bool running_ = false;
};

}  // namespace nubivane
