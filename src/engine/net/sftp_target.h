// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/curl_handle.h"
#include "engine/net/ftp_types.h"
#include "engine/net/proxy.h"
#include "engine/net/stop_signal.h"
#include "engine/net/transfer.h"

#include <QList>

#include <atomic>

namespace nubivane {

/// A server that is reached by SSH, as a target: SFTP by libcurl. Names are relative to the folder
/// of the login.
///
/// The server's key must be known (`~/.ssh/known_hosts`), or have the fingerprint that was trusted
/// for it. We log in by the person's own key or agent, or by the password.
class SftpTarget : public Transfer {
  public:
    SftpTarget(FtpServer server, FtpOptions options);

    void connect() override;
    void disconnect() override {}
    void stop() override { stop_.raise(); }
    void makeFolder(const QString& name) override;
    void changeFolder(const QString& name) override;
    void put(const Outgoing& file) override;
    std::optional<RemoteListing> list(const QString& folder) override;
    std::optional<qint64> sizeOf(const QString& name) override;
    std::optional<QByteArray> read(const QString& name, qint64 maxBytes) override;
    void remove(const QString& name) override;
    std::unique_ptr<Transfer> sibling() override;
    qint64 sent() const override { return sent_ + running_; }

  private:
    struct Receiver;

    QByteArray pathOf(const QString& name) const;
    void prepare(const QByteArray& path);
    void command(const QList<QByteArray>& lines);
    void perform();
    CURLcode receive(const QByteArray& path, Receiver& receiver);
    [[noreturn]] void fail(CURLcode code) const;
    static int judgeKey(CURL*, const curl_khkey* known, const curl_khkey* found, curl_khmatch match,
                        void* self);
    static size_t give(char* buffer, size_t, size_t size, void* self);

    const FtpServer server_;
    const FtpOptions options_;
    StopSignal stop_;
    CurlHandle curl_{stop_};
    Proxy proxy_;
    QByteArray folder_;  ///< where we stand; empty is the folder of the login
    QString keyComplaint_;
    QString keyFingerprint_;
    QIODevice* source_ = nullptr;
    std::atomic<qint64> sent_ = 0;
    std::atomic<qint64> running_ = 0;
};

}  // namespace nubivane
