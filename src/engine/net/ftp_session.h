// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"

#include <QByteArray>
#include <QFile>

#include <atomic>
#include <functional>
#include <memory>

namespace nubivane {

/// One control connection (RFC 959) and the commands sent on it. Every call blocks; `stop` and the
/// two counters alone may be used from other threads meanwhile.
///
/// Names are the server's: bytes as they go out. One that is empty or holds a control character is
/// refused before anything is sent, since a line end in it would be a second command. A connection
/// that is lost stays lost: nothing is ever sent to a second one, which would stand in another
/// folder.
class FtpSession {
  public:
    /// Takes the next bytes of a transfer; false stops it.
    using Sink = std::function<bool(const char* bytes, qint64 size)>;

    explicit FtpSession(const FtpOptions& options);
    ~FtpSession();
    FtpSession(const FtpSession&) = delete;
    FtpSession& operator=(const FtpSession&) = delete;

    /// Connects and logs in: encrypted where the server offers it, plain only where it has refused
    /// the command that asks for it. A server that offers encryption and then fails in it, or shows
    /// a certificate that does not verify, is never given name and password.
    bool connect(const FtpServer& server);
    /// Sends one command with a name behind it, such as "CWD"; true for a reply of the 200s.
    bool command(const char* verb, const QByteArray& name);
    /// Stores an open file.
    bool store(QFile& file, const QByteArray& name);
    bool retrieve(const QByteArray& name, const Sink& sink);
    /// The names in the current folder, a line each; none is no failure.
    bool list(const Sink& sink);
    /// Says good-bye and closes the connection.
    void disconnect();

    /// Makes the running call, and each one that follows until the next `connect`, fail.
    void stop() { stopped_ = true; }
    void clearStop() { stopped_ = false; }

    /// Bytes of the running transfer so far, and all of them where that is known, else 0.
    qint64 transferred() const { return transferred_; }
    qint64 total() const { return total_; }

    int replyCode() const { return replyCode_; }
    /// The last call failed with the connection, not by a refusal of the server.
    bool lost() const { return lost_; }
    /// Why the last call failed, with what the server said.
    const QString& failure() const { return failure_; }

  private:
    struct Curl;
    enum class TlsVersions { UpTo12, UpTo13 };

    bool login(TlsVersions versions);
    bool prepare(const QByteArray& name);
    void askOnly();
    bool perform();
    bool refuse(const char* reason);

    const FtpOptions options_;
    FtpServer server_;
    QByteArray address_;  ///< "ftp://host:port/"
    TlsVersions versions_ = TlsVersions::UpTo12;
    bool connected_ = false;
    bool lost_ = false;
    std::unique_ptr<Curl> curl_;
    int replyCode_ = 0;
    QString failure_;
    std::atomic<bool> stopped_ = false;
    std::atomic<qint64> transferred_ = 0;
    std::atomic<qint64> total_ = 0;
};

}  // namespace nubivane
