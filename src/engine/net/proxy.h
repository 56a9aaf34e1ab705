// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"

#include <QByteArray>

#include <vector>

namespace nubivane {

class StopSignal;

/// A machine that brings connections to others, as the desktop's settings (or the variables
/// ftp_proxy, https_proxy and no_proxy) name it.
struct Proxy {
    enum class Kind { None, Socks, Http };

    Kind kind = Kind::None;
    QByteArray host{};
    int port = 0;
    QByteArray user{};
    QByteArray password{};

    /// As libcurl is told of it; empty for none.
    QByteArray url() const;
    /// The first of a list of addresses that is understood; "direct://" is none.
    static Proxy of(const std::vector<QByteArray>& urls);
};

/// The proxy for an address such as "ftp://host:21". This machine itself needs none. Settings that
/// have to be fetched first are waited for until the limit, and done without then. Raises
/// `TransferError` when stopped.
Proxy proxyFor(const QByteArray& url, Milliseconds limit, const StopSignal& stop);

}  // namespace nubivane
