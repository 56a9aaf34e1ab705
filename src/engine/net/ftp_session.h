// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_listing.h"
#include "engine/net/ftp_reply.h"
#include "engine/net/ftp_types.h"
#include "engine/net/stop_signal.h"

#include <QByteArray>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QIODevice;

namespace nubivane {

class Channel;
class FtpControl;

/// One conversation with a server and the commands sent in it. Every call blocks and raises
/// `TransferError`; `stop` and the counters alone may be used from other threads meanwhile.
///
/// Names are the server's: bytes as they go out. One that is empty or holds a control character is
/// refused before anything is sent, since a line end in it would be a second command. A connection
/// that is lost stays lost: a second one would stand in another folder.
class FtpSession {
  public:
    /// Takes the next bytes of a transfer; false stops it.
    using Sink = std::function<bool(const char* bytes, qint64 size)>;

    explicit FtpSession(FtpOptions options);
    ~FtpSession();
    FtpSession(const FtpSession&) = delete;
    FtpSession& operator=(const FtpSession&) = delete;

    void connect(const FtpServer& server);
    bool connected() const { return control_ != nullptr; }
    /// Says good-bye and closes the connection. Raises nothing.
    void disconnect();
    /// Whether name and password went out in clear.
    bool plain() const;

    /// Sends one command with a name behind it, such as "CWD". A refusal is raised.
    FtpReply command(const char* verb, const QByteArray& name);
    /// The same, a refusal being an answer too.
    FtpReply ask(const char* verb, const QByteArray& name);

    /// Stores what a device holds from where it stands, under a name, after `offset` bytes that are
    /// there already.
    void store(QIODevice& source, const QByteArray& name, qint64 offset = 0);
    /// Stores it under `temporary`, makes sure of its size and gives it its name, which until then
    /// stays what it was. With `more` to follow the next connection is asked for on the way.
    void put(QIODevice& source, const QByteArray& name, const QByteArray& temporary, bool more);
    /// Gives what is there another name. What bears that name already is replaced.
    void rename(const QByteArray& from, const QByteArray& to);
    /// A new name among many, and whether the server has agreed.
    struct Renaming {
        QByteArray from;
        QByteArray to;
        bool done = false;
    };
    /// The same for many, without waiting for each reply; a refusal is none of the others.
    void rename(std::vector<Renaming>& renamings);

    void retrieve(const QByteArray& name, const Sink& sink, qint64 expected = 0);
    /// Bytes of a file; nothing where the server does not tell or there is none.
    std::optional<qint64> sizeOf(const QByteArray& name);
    /// The same, by the listing of its folder where nothing else is known.
    std::optional<qint64> sizeByAnyMeans(const QByteArray& name);

    /// The entries of a folder, of the current one without a name.
    RemoteListing list(const QByteArray& folder = {});
    /// The same by one command of the control connection alone; nothing where the server does not
    /// know that.
    std::optional<RemoteListing> listInReply(const QByteArray& folder);

    /// Makes the running call, and each one that follows until the next `clearStop`, fail.
    void stop() { stop_.raise(); }
    void clearStop() { stop_.clear(); }

    /// Whether the last `put` had brought the whole file there under its temporary name.
    bool stored() const { return stored_; }

    void forgetTransferred() { transferred_ = 0; }
    /// Bytes of the running transfer so far, and all of them where that is known, else 0.
    qint64 transferred() const { return transferred_; }
    qint64 total() const { return total_; }

  private:
    FtpControl& control();
    FtpReply require(const FtpReply& reply);
    void send(QIODevice& source, Channel& data);
    void awaitStored(Channel& data, qint64 size);
    bool announceRename(const QByteArray& temporary, qint64 size);
    std::optional<qint64> sizeInListing(const QByteArray& name);
    void receive(const QByteArray& line, const Sink& sink);
    template <class Call>
    auto attempt(const Call& call);

    const FtpOptions options_;
    StopSignal stop_;
    std::unique_ptr<FtpControl> control_;
    std::atomic<qint64> transferred_ = 0;
    std::atomic<qint64> total_ = 0;
    bool stored_ = false;
    bool knowsMlsd_ = true;
    bool knowsMlst_ = true;
    bool knowsList_ = true;
    bool knowsSize_ = true;
};

}  // namespace nubivane
