// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_session.h"
#include "engine/net/transfer.h"

#include <QHash>

namespace nubivane {

/// An FTP server, encrypted or not, as a target.
///
/// Where it refuses a folder whose name holds a backslash and takes it with slashes instead, every
/// later name has slashes. Where it takes backslashes, which few servers do, one connection is all
/// that it is asked for.
class FtpTarget : public Transfer {
  public:
    FtpTarget(FtpServer server, FtpOptions options);

    void connect() override;
    void disconnect() override { session_.disconnect(); }
    void stop() override { session_.stop(); }
    void makeFolder(const QString& name) override;
    void changeFolder(const QString& name) override;
    void put(const Outgoing& file) override;
    bool putAhead(const Outgoing& file) override;
    std::vector<bool> settle(const std::vector<Ahead>& files) override;
    std::optional<RemoteListing> list(const QString& folder) override;
    std::optional<RemoteListing> listQuickly(const QString& folder) override;
    std::optional<qint64> sizeOf(const QString& name) override;
    std::optional<QByteArray> read(const QString& name, qint64 maxBytes) override;
    void remove(const QString& name) override;
    std::unique_ptr<Transfer> sibling() override;
    qint64 sent() const override { return sent_ + session_.transferred(); }
    bool plain() const override { return session_.plain(); }
    bool replacesInPlace() const override { return known_->inPlace; }

  private:
    enum class Separator { Unknown, Slash, Backslash };

    /// What one connection has found out holds for all to the same server.
    struct Known {
        std::atomic<Separator> separator = Separator::Unknown;
        std::atomic<bool> inPlace = false;      ///< renaming is refused
        std::atomic<bool> appends = true;       ///< APPE has not been refused
        std::atomic<bool> listsInReply = true;  ///< STAT lists folders
        std::atomic<bool> tellsSizes = true;    ///< of a file that was there a moment ago
    };

    QByteArray nameOf(const QString& name) const;
    void send(const Outgoing& file, const QByteArray& name, const QByteArray& temporary);
    bool replaceByHand(const QByteArray& name, const QByteArray& temporary);
    /// The sizes of what lies in a folder, by names; complete when nothing else lies there.
    struct FolderSizes {
        QHash<QString, qint64> bytes;
        bool complete = false;
    };
    FolderSizes sizesIn(const QString& folder);
    std::vector<bool> whole(const std::vector<Ahead>& files);

    const FtpServer server_;
    const FtpOptions options_;
    FtpSession session_;
    std::shared_ptr<Known> known_ = std::make_shared<Known>();
    std::atomic<qint64> sent_ = 0;
};

}  // namespace nubivane
