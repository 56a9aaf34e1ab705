// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/channel.h"
#include "engine/net/proxy.h"

namespace nubivane {

/// Has the proxy at the other end of a channel connect it to a host, by SOCKS 5 (RFC 1928, 1929) or
/// by CONNECT (RFC 9110, 9.3.6). The proxy looks the host up. Raises `TransferError`.
void tunnel(Channel& channel, const Proxy& proxy, const QByteArray& host, int port,
            Milliseconds limit);

}  // namespace nubivane
