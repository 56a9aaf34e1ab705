// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"
#include "engine/net/name_lookup.h"
#include "engine/net/tls.h"

#include <QByteArray>

namespace nubivane {

class StopSignal;

/// A TCP connection, encrypted or not. Calls wait no longer than they are told, end at once when
/// the stop signal is raised, and raise `TransferError`; after `Lost` the channel is of no more
/// use.
class Channel {
  public:
    /// A channel to the first of the addresses that answers.
    Channel(const std::vector<SocketAddress>& addresses, Milliseconds limit,
            const StopSignal& stop);
    ~Channel();
    Channel(const Channel&) = delete;
    Channel& operator=(const Channel&) = delete;

    /// Encrypts what follows. A channel of the same conversation lends its session, which servers
    /// ask for.
    void secure(TlsContext& context, Milliseconds limit);
    bool secured() const { return tls_ != nullptr; }

    /// The next bytes, none at the end of the stream.
    qsizetype read(char* bytes, qsizetype size, Milliseconds limit);
    /// Sends all bytes. The limit is for the time in which the other side takes not a single one.
    void write(const char* bytes, qsizetype size, Milliseconds limit);
    /// True when there is something to read at once, be it the end.
    bool readable() const;

    /// Tells the other side that nothing more comes, and lets it say the same.
    void finish();

    /// Bytes that were sent and that the other side has not acknowledged.
    int pending() const;

    /// The address that this channel leads to.
    const SocketAddress& peer() const { return peer_; }

  private:
    bool tryConnect(const SocketAddress& address, Milliseconds limit);
    void waitFor(short events, Milliseconds limit);
    void waitToWrite(Milliseconds limit);
    [[noreturn]] void fail(const QString& what) const;

    const StopSignal& stop_;
    SocketAddress peer_;
    int socket_ = -1;
    int error_ = 0;
    SslPointer tls_;
};

}  // namespace nubivane
