// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/stop_signal.h"
#include "engine/net/transfer.h"

#include <atomic>

namespace nubivane {

/// A folder of this machine, or of one that is mounted on it, as a target. Files are replaced by
/// renames, which readers see as a whole or not at all.
class FolderTarget : public Transfer {
  public:
    /// `root` is a host path, "//" in front of it as in addresses allowed.
    explicit FolderTarget(const QString& root);

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
    qint64 sent() const override { return sent_; }

  private:
    QString pathOf(const QString& name) const;

    const QString root_;
    QString current_;
    StopSignal stop_;
    std::atomic<qint64> sent_ = 0;
};

}  // namespace nubivane
