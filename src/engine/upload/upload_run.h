// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/worker_thread.h"
#include "engine/model/editor.h"
#include "engine/net/ftp_types.h"
#include "engine/upload/c_upload.h"
#include "engine/upload/site_upload.h"
#include "engine/upload/upload_view.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

namespace nubivane {

class Error;

/// Carries out the plan of an upload. One run at a time: events run while it lasts, so that its
/// window repaints and can be cancelled.
class UploadRun : private UploadWatcher {
  public:
    UploadRun(Editor editor, UploadView& view, FtpOptions options = {});

    /// Sends the groups of the settings, or all when `initialising`. True when all steps were
    /// walked to the end; otherwise a message has told why.
    bool runUpload(bool initialising);
    /// The same to another server than that of the settings, and as is wished.
    bool runUpload(bool initialising, const FtpServer& server, const UploadWishes& wishes = {});

    /// What the Cancel button does: tells the user at once, while the running step is given up.
    void cancel();

    bool running() const { return running_; }
    /// What the last run that came to its end has done.
    const UploadReport& report() const { return report_; }

  private:
    void stepBegun(const cUpload& step) override;
    void progress(std::size_t done, std::size_t count) override;
    void chosen(qsizetype files, qsizetype all, qint64 bytes) override;
    void inClear() override;
    void inCaller(const std::function<void()>& call);
    void show(const cUpload& step);
    void note(const QString& line);

    enum class Outcome { Done, Failed, Untrusted };

    Outcome attempt(const FtpServer& server, const UploadWishes& wishes);
    bool choosePlan(bool initialising);
    void open(bool initialising);
    void send(const FtpServer& server, const UploadWishes& wishes);
    Outcome finish();
    Outcome stop();
    /// Untrusted when a person trusts what has made the run fail, and it may be tried again.
    Outcome fail(const Error& error, const FtpServer& server);
    void closeWindow();

    Editor editor_;
    UploadView& view_;
    const FtpOptions options_;
    UploadPlan plan_;
    UploadReport report_;
    QStringList unsendable_;
    std::unique_ptr<SiteUpload> upload_;
    bool initialising_ = false;
    bool UploadCancelled_ = false;
    std::atomic<bool> stopped_ = false;  ///< the same for the threads at work
    bool running_ = false;
    WorkerThread worker_;
    QObject caller_;  // the last: what was sent to it goes with it
};

}  // namespace nubivane
