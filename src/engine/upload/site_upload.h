// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/stop_signal.h"
#include "engine/net/transfer.h"
#include "engine/upload/file_sender.h"
#include "engine/upload/remote_look.h"
#include "engine/upload/server_memory.h"
#include "engine/upload/site_contents.h"

#include <atomic>
#include <memory>
#include <mutex>

namespace nubivane {

/// What an upload is asked for beyond its plan.
struct UploadWishes {
    bool all = false;         ///< also what has not changed
    bool removeGone = false;  ///< what was put there and is here no more
    bool dryRun = false;      ///< look, and change nothing
    int connections = 4;
    int retries = 3;
    int retryPauseMs = 500;
    bool captions = false;  ///< a person reads along: give the captions a moment
};

/// What an upload has done, or of a dry run would do.
struct UploadReport {
    QStringList sent;  ///< names below the Nubivane folder
    qint64 bytes = 0;  ///< of these
    QStringList removed;
    QStringList refused;     ///< "file: why", of files that may fail
    QStringList unsendable;  ///< "file: why", of files whose names are in no plan
    qsizetype unchanged = 0;
    bool plain = false;    ///< name and password went out in clear
    bool inPlace = false;  ///< the target renames nothing
    QString forgotten;     ///< why this machine cannot remember what it has sent
};

/// A certificate or host key that does not verify.
struct Untrusted {
    QString description;  ///< what is wrong with it, whose it is, since and until when
    QString fingerprint;
};

/// Told on other threads, never two at a time; may raise `TransferError` to stop.
class UploadWatcher {
  public:
    virtual ~UploadWatcher() = default;
    virtual void stepBegun(const cUpload& step) = 0;
    /// Steps done of all, or not needed.
    virtual void progress(std::size_t done, std::size_t count) = 0;
    /// What has to be sent, of all files of the plan.
    virtual void chosen(qsizetype /*files*/, qsizetype /*all*/, qint64 /*bytes*/) {}
    virtual void inClear() {}
};

/// Brings a site to a target: looks what is there, makes folders, sends what has changed, pages
/// last, and writes down what it has done. Blocks; `stop` and `sent` may be called meanwhile.
class SiteUpload {
  public:
    /// `place` names the target for the memory of this machine.
    SiteUpload(std::unique_ptr<Transfer> target, const QString& place, const UploadPlan& plan,
               UploadWishes wishes, UploadWatcher& watcher);

    /// Raises `Error` with the text of the step that failed, `TransferError` when stopped.
    UploadReport run();
    void stop();
    /// What a person may look at and trust, when the run has failed for want of that.
    const std::optional<Untrusted>& untrusted() const { return untrusted_; }
    qint64 sent() const;
    /// Bytes that have to be sent; 0 until it is known.
    qint64 toSend() const { return toSend_; }

  private:
    void connect();
    void reconnect();
    void look();
    void compareManifest();
    bool standsThere(const PlannedFile& file) const;
    void rememberTimes();
    void readManifest();
    void walkFolders();
    void walkStep(const cUpload& step);
    void choose();
    void compare();
    void chooseGone();
    void forget();
    void sendFiles();
    void sendGroup(FileSender& sender, bool pages);
    void removeFiles();
    void removeLeftovers();
    void leaveManifest();
    void count(std::size_t steps);
    template <class Call>
    void persist(const Call& call, const QString& text);

    std::unique_ptr<Transfer> target_;
    const UploadPlan& plan_;
    const UploadWishes wishes_;
    UploadWatcher& watcher_;
    StopSignal stop_;
    ServerMemory memory_;
    SiteContents contents_;
    UploadReport report_;
    std::optional<Untrusted> untrusted_;
    const QString run_;  ///< in temporary names

    bool connected_ = false;
    bool inRemoteFolder_ = false;
    bool foldersStand_ = false;
    bool newSite_ = false;  ///< the Nubivane folder has been made by this run
    QString way_;           ///< from where the target stands into the Nubivane folder
    std::optional<RemoteLook> look_;
    std::vector<const PlannedFile*> chosen_;
    QStringList gone_;
    std::size_t done_ = 0;
    int captionMs_ = 0;  ///< spent on captions so far
    std::atomic<qint64> toSend_ = 0;

    mutable std::mutex senderMutex_;
    FileSender* sender_ = nullptr;
};

}  // namespace nubivane
