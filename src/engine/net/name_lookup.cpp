// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/name_lookup.h"

#include "engine/net/clean_text.h"
#include "engine/net/stop_signal.h"
#include "engine/net/transfer_error.h"

#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>

#include <array>
#include <cstring>
#include <memory>
#include <mutex>
#include <thread>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// What the thread of a look-up shares with whoever asked, who may be gone by the time it ends.
struct Lookup {
    QByteArray host;
    QByteArray port;
    std::mutex mutex;
    std::vector<SocketAddress> found;
    int error = 0;
    StopSignal done;

    void run() {
        addrinfo hints{};
        hints.ai_family = AF_UNSPEC;
        hints.ai_socktype = SOCK_STREAM;
        addrinfo* list = nullptr;
        const int code = ::getaddrinfo(host.constData(), port.constData(), &hints, &list);
        {
            const std::lock_guard lock(mutex);
            error = code;
            for (const addrinfo* entry = code == 0 ? list : nullptr; entry;
                 entry = entry->ai_next) {
                SocketAddress address;
                address.size = entry->ai_addrlen;
                std::memcpy(&address.storage, entry->ai_addr, entry->ai_addrlen);
                found.push_back(address);
            }
        }
        if (code == 0) {
            ::freeaddrinfo(list);
        }
        done.raise();
    }
};

}  // namespace

SocketAddress SocketAddress::withPort(int port) const {
    SocketAddress address = *this;
    const in_port_t wire = htons(static_cast<std::uint16_t>(port));
    if (family() == AF_INET6) {
        reinterpret_cast<sockaddr_in6*>(&address.storage)->sin6_port = wire;
    } else {
        reinterpret_cast<sockaddr_in*>(&address.storage)->sin_port = wire;
    }
    return address;
}

std::vector<SocketAddress> lookUp(const QByteArray& host, int port, Milliseconds limit,
                                  const StopSignal& stop) {
    const auto lookup = std::make_shared<Lookup>();
    lookup->host = host;
    lookup->port = QByteArray::number(port);
    std::thread([lookup] { lookup->run(); }).detach();
    std::array<pollfd, 2> waiting{pollfd{lookup->done.descriptor(), POLLIN, 0},
                                  pollfd{stop.descriptor(), POLLIN, 0}};
    ::poll(waiting.data(), waiting.size(), static_cast<int>(limit.count()));
    if (stop.raised()) {
        throw TransferError(TransferError::Kind::Stopped, u"stopped"_s);
    }
    if (!lookup->done.raised()) {
        throw TransferError(
            TransferError::Kind::Lost,
            u"no name server has answered within %1 seconds"_s.arg(secondsText(limit)));
    }
    const std::lock_guard lock(lookup->mutex);
    if (lookup->found.empty()) {
        throw TransferError(TransferError::Kind::Lost,
                            u"the host \"%1\" cannot be found (%2)"_s.arg(
                                cleanText(host), cleanText(::gai_strerror(lookup->error))));
    }
    return lookup->found;
}

}  // namespace nubivane
