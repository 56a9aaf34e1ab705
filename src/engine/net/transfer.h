// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_listing.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QIODevice;

namespace nubivane {

/// Where a site goes: the few operations that its upload needs, whatever carries them out. Every
/// call blocks and raises `TransferError`; `stop` and `sent` alone may be used from other threads
/// meanwhile.
///
/// Folders of a name are parted by slashes or backslashes, as the plan writes them. A target takes
/// both and writes what the other side understands.
class Transfer {
  public:
    Transfer() = default;
    virtual ~Transfer() = default;
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    virtual void connect() = 0;
    /// Takes leave. Raises nothing.
    virtual void disconnect() = 0;
    /// Makes the running call, and all that follow, fail at once.
    virtual void stop() = 0;

    virtual void makeFolder(const QString& name) = 0;
    virtual void changeFolder(const QString& name) = 0;

    /// One file on its way.
    struct Outgoing {
        QIODevice& source;
        QString name;
        QString temporary;  ///< its name until it is whole, in the same folder
        bool more = false;  ///< another follows on this connection
    };
    /// Brings a file there. Under its name a reader finds the old one or, as a whole, the new one.
    /// After a lost connection the same call again goes on where the first one was cut, if it can.
    virtual void put(const Outgoing& file) = 0;

    /// The same for one of many small files: it is brought under its temporary name alone, and
    /// named with others by `settle`. False, and nothing done, where `put` is as quick.
    virtual bool putAhead(const Outgoing& /*file*/) { return false; }
    /// A file that lies there under its temporary name.
    struct Ahead {
        QString name;
        QString temporary;
        qint64 size;
    };
    /// Gives files that are whole their names; for each whether it was and bears it now. The
    /// others have to be put anew.
    virtual std::vector<bool> settle(const std::vector<Ahead>& files) {
        return std::vector<bool>(files.size());
    }

    /// The entries of a folder; nothing where there is no such folder.
    virtual std::optional<RemoteListing> list(const QString& folder) = 0;
    /// The same for many folders to come, by the quickest way there is.
    virtual std::optional<RemoteListing> listQuickly(const QString& folder) { return list(folder); }
    virtual std::optional<qint64> sizeOf(const QString& name) = 0;
    /// The content of a file of at most `maxBytes` bytes; nothing where there is none.
    virtual std::optional<QByteArray> read(const QString& name, qint64 maxBytes) = 0;
    virtual void remove(const QString& name) = 0;

    /// A further connection to the same place, not yet connected; nothing where one is all.
    virtual std::unique_ptr<Transfer> sibling() { return nullptr; }
    /// Bytes of files that have been sent so far.
    virtual qint64 sent() const = 0;
    /// Whether name and password have gone out in clear.
    virtual bool plain() const { return false; }
    /// Whether files stand under their names before they are whole, because nothing else works.
    virtual bool replacesInPlace() const { return false; }
};

}  // namespace nubivane
