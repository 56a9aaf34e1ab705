// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"
#include "engine/net/stop_signal.h"
#include "engine/net/transfer.h"

#include <QSet>
#include <QStringList>

#include <atomic>

namespace nubivane {

/// Whatever the program rclone reaches (WebDAV, S3, cloud drives), as a target: it is run once for
/// each operation, with arguments and never through a shell. It knows its remotes and their
/// passwords by its own settings.
class RcloneTarget : public Transfer {
  public:
    /// `root` is what rclone calls a path: "remote:folder".
    explicit RcloneTarget(QString root, FtpOptions options = {});

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
    struct Outcome {
        int code = 0;
        QByteArray output;
        QString complaint;
    };

    QString pathOf(const QString& name) const;
    Outcome run(const QStringList& arguments, QIODevice* input = nullptr,
                qint64 maxOutput = MaxOutput);
    Outcome require(const QStringList& arguments, QIODevice* input = nullptr);
    void watch(const QByteArray& line, Outcome& outcome);
    QString shown(const QStringList& arguments) const;

    static constexpr qint64 MaxOutput = qint64{4} * 1024 * 1024;

    const QString root_;
    const FtpOptions options_;
    QString program_;
    QString folder_;  ///< below the root
    StopSignal stop_;
    std::atomic<qint64> sent_ = 0;
    std::atomic<qint64> running_ = 0;
    /// Made by us: stores without real folders show none until something is in them.
    std::shared_ptr<QSet<QString>> made_ = std::make_shared<QSet<QString>>();
};

}  // namespace nubivane
