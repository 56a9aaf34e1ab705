// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"

#include <QByteArray>

#include <sys/socket.h>

#include <vector>

namespace nubivane {

class StopSignal;

/// An address that a socket can be connected to.
struct SocketAddress {
    sockaddr_storage storage{};
    socklen_t size = 0;

    int family() const { return storage.ss_family; }
    /// The same host, another port.
    SocketAddress withPort(int port) const;
};

/// The addresses of a host, in the system's order of preference. Raises `TransferError`.
///
/// The system's own call cannot be interrupted, and a name server that keeps silent holds it for
/// minutes. It runs on a thread that is left to itself when the stop signal or the limit comes
/// first: neither this run nor the next nor the end of the program waits for it.
std::vector<SocketAddress> lookUp(const QByteArray& host, int port, Milliseconds limit,
                                  const StopSignal& stop);

}  // namespace nubivane
