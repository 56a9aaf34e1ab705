// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/channel.h"
#include "engine/net/ftp_reply.h"
#include "engine/net/ftp_types.h"
#include "engine/net/proxy.h"

#include <memory>

namespace nubivane {

/// The control connection of an FTP conversation (RFC 959, 4217) and the data connections that it
/// asks for. Everything raises `TransferError`; after `Lost`, `Insecure` and `Stopped` the
/// conversation is over.
class FtpControl {
  public:
    /// Connects and logs in, encrypted as the server's record asks.
    FtpControl(const FtpServer& server, const FtpOptions& options, const StopSignal& stop);

    /// Sends a command and waits for its reply, whatever it says.
    FtpReply ask(const QByteArray& line);
    /// Sends commands without waiting; as many calls of `reply` have to follow.
    void send(const QByteArray& line);
    FtpReply reply();
    FtpReply reply(Milliseconds limit, qsizetype maxBytes);

    /// Asks for a data connection ahead of its use, which saves a round trip.
    void requestData();
    /// A data connection, in the clear until its command has been answered: some servers take what
    /// comes before for an attack, and close it.
    std::unique_ptr<Channel> openData();
    /// Encrypts a data connection if the conversation is.
    void secureData(Channel& data);

    /// Sends "TYPE I" before the first transfer.
    void useBinary();
    /// Says good-bye.
    void quit();

    /// Whether name and password went out in clear.
    bool plain() const { return plain_; }

  private:
    void greet();
    void write(const QByteArray& line);
    void settleData();
    void negotiate();
    void logIn();
    void protectData();
    int portOfReply(const FtpReply& reply) const;

    const FtpServer server_;
    const FtpOptions options_;
    const StopSignal& stop_;
    QByteArray host_;  ///< as it is looked up
    Proxy proxy_;
    std::unique_ptr<TlsContext> tls_;
    std::unique_ptr<Channel> channel_;
    FtpReplyReader reader_;
    bool plain_ = true;
    bool private_ = false;                 ///< data connections are encrypted
    bool extended_ = true;                 ///< EPSV has not been refused
    bool requested_ = false;               ///< the reply to EPSV is on its way
    std::optional<FtpReply> dataReply_{};  ///< it has come, unused
    bool binary_ = false;
};

}  // namespace nubivane
