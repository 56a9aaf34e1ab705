// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/worker_thread.h"
#include "engine/net/ftp_listing.h"
#include "engine/net/ftp_types.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace nubivane {

class FtpSession;

/// Files to and from an FTP server over one connection. The calls return when they are done; the
/// caller's events run meanwhile, on whose account `AbortTransfer` may be called.
///
/// Names go to the server as they stand. Where a server refuses a folder whose name holds a
/// backslash and takes it with slashes instead, every later name of that connection has slashes:
/// so names meant for a server that takes both work everywhere.
class ftpTransfer {
  public:
    explicit ftpTransfer(FtpOptions options = {});
    ~ftpTransfer();
    ftpTransfer(const ftpTransfer&) = delete;
    ftpTransfer& operator=(const ftpTransfer&) = delete;

    /// Bytes of the running file so far, and its size; 0 while that is not known.
    std::function<void(qint64 bytes, qint64 total)> progress;

    bool Connect(const FtpServer& server);
    bool MakeDirectory(const QString& name);
    bool ChangeDirectory(const QString& name);
    /// `localPath` and the paths below have backslashes.
    bool PutFile(const QString& localPath, const QString& remoteName);
    /// Puts the file in place as a whole, or leaves what was there.
    bool GetFile(const QString& remoteName, const QString& localPath);
    /// The content of a file of at most `maxBytes` bytes.
    std::optional<QByteArray> ReadFile(const QString& remoteName, qint64 maxBytes);
    /// Names in the current folder; those that are no plain file names are left out.
    std::optional<QStringList> ListDirectory();
    /// The same with what the server tells of them.
    std::optional<RemoteListing> ListEntries();

    /// Makes the running call fail, and all others until the next `Connect`.
    void AbortTransfer();
    /// Ends what may still be running.
    void EndTransfer();
    void Disconnect();

    /// Whether that was the last word since the last `Connect`.
    bool aborted() const { return aborted_; }
    /// Whether the last call failed with the connection, so that all that follow will too.
    bool lost() const { return lost_; }
    /// Why the last call failed, with the server's words.
    const QString& failure() const { return failure_; }

  private:
    bool run(const std::function<void()>& call);
    QByteArray nameOf(const QString& name) const;

    std::unique_ptr<FtpSession> session_;
    bool slashes_ = false;  ///< the server has shown that it wants them
    QString failure_;
    bool lost_ = false;
    std::atomic<bool> aborted_ = false;
    WorkerThread worker_;  // the last: its thread ends before what it works with
};

}  // namespace nubivane
