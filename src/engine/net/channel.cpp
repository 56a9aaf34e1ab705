// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/channel.h"

#include "engine/net/clean_text.h"
#include "engine/net/stop_signal.h"
#include "engine/net/transfer_error.h"

#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <openssl/err.h>
#include <openssl/ssl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <limits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

void setFlag(int socket, int level, int option) {
    const int on = 1;
    ::setsockopt(socket, level, option, &on, sizeof on);
}

Milliseconds timeTo(Clock::time_point end) {
    const auto left = std::chrono::duration_cast<Milliseconds>(end - Clock::now());
    return std::max(left, Milliseconds::zero());
}

/// For poll(2).
int asPollTime(Milliseconds limit) {
    constexpr Milliseconds::rep longest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(limit.count(), longest));
}

}  // namespace

Channel::Channel(const std::vector<SocketAddress>& addresses, Milliseconds limit,
                 const StopSignal& stop)
    : stop_(stop) {
    const auto end = Clock::now() + limit;
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        // A host with several addresses may have one that leads nowhere: each has its share.
        const Milliseconds share = timeTo(end) / static_cast<int>(addresses.size() - i);
        if (tryConnect(addresses[i], share)) {
            peer_ = addresses[i];
            return;
        }
    }
    throw TransferError(TransferError::Kind::Lost,
                        u"no connection to the server: "_s + cleanText(std::strerror(error_)));
}

Channel::~Channel() {
    tls_.reset();
    if (socket_ >= 0) {
        ::close(socket_);
    }
}

bool Channel::tryConnect(const SocketAddress& address, Milliseconds limit) {
    if (socket_ >= 0) {
        ::close(socket_);
    }
    socket_ = ::socket(address.family(), SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (socket_ < 0) {
        error_ = errno;
        return false;
    }
    setFlag(socket_, IPPROTO_TCP, TCP_NODELAY);
    setFlag(socket_, SOL_SOCKET, SO_KEEPALIVE);
    if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address.storage), address.size) ==
        0) {
        return true;
    }
    error_ = errno;
    if (error_ != EINPROGRESS) {
        return false;
    }
    std::array<pollfd, 2> waiting{pollfd{socket_, POLLOUT, 0},
                                  pollfd{stop_.descriptor(), POLLIN, 0}};
    ::poll(waiting.data(), waiting.size(), asPollTime(limit));
    if (stop_.raised()) {
        throw TransferError(TransferError::Kind::Stopped, u"stopped"_s);
    }
    if (waiting[0].revents == 0) {
        error_ = ETIMEDOUT;
        return false;
    }
    socklen_t size = sizeof error_;
    ::getsockopt(socket_, SOL_SOCKET, SO_ERROR, &error_, &size);
    return error_ == 0;
}

void Channel::fail(const QString& what) const {
    throw TransferError(TransferError::Kind::Lost, what);
}

void Channel::waitFor(short events, Milliseconds limit) {
    const auto end = Clock::now() + limit;
    while (true) {
        std::array<pollfd, 2> waiting{pollfd{socket_, events, 0},
                                      pollfd{stop_.descriptor(), POLLIN, 0}};
        const int ready = ::poll(waiting.data(), waiting.size(), asPollTime(timeTo(end)));
        if (waiting[1].revents != 0) {
            throw TransferError(TransferError::Kind::Stopped, u"stopped"_s);
        }
        if (ready > 0) {
            return;
        }
        if (ready == 0) {
            fail(u"the server has not answered within %1 seconds"_s.arg(secondsText(limit)));
        }
    }
}

/// The system reports room only when a good part of its buffer is free. A server that reads a
/// little in all that time is slow, not gone.
void Channel::waitToWrite(Milliseconds limit) {
    int before = pending();
    while (true) {
        try {
            waitFor(POLLOUT, limit);
            return;
        } catch (const TransferError& error) {
            const int now = pending();
            if (error.kind() != TransferError::Kind::Lost || now >= before) {
                throw;
            }
            before = now;
        }
    }
}

int Channel::pending() const {
    int bytes = 0;
    return ::ioctl(socket_, SIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

bool Channel::readable() const {
    if (tls_ && SSL_pending(tls_.get()) > 0) {
        return true;
    }
    pollfd waiting{socket_, POLLIN, 0};
    return ::poll(&waiting, 1, 0) > 0;
}

void Channel::secure(TlsContext& context, Milliseconds limit) {
    const auto end = Clock::now() + limit;
    tls_ = context.begin(socket_);
    while (true) {
        ERR_clear_error();
        const int done = SSL_connect(tls_.get());
        if (done == 1) {
            break;
        }
        const int need = SSL_get_error(tls_.get(), done);
        if (need != SSL_ERROR_WANT_READ && need != SSL_ERROR_WANT_WRITE) {
            throw context.handshakeFailure();
        }
        waitFor(need == SSL_ERROR_WANT_READ ? POLLIN : POLLOUT,
                std::max(Milliseconds(1), timeTo(end)));
        if (Clock::now() > end) {
            fail(u"the server has not finished its greeting within %1 seconds"_s.arg(
                secondsText(limit)));
        }
    }
    context.check(tls_.get());
}

qsizetype Channel::read(char* bytes, qsizetype size, Milliseconds limit) {
    while (true) {
        if (tls_) {
            ERR_clear_error();
            std::size_t got = 0;
            const int done = SSL_read_ex(tls_.get(), bytes, static_cast<std::size_t>(size), &got);
            if (done == 1) {
                return static_cast<qsizetype>(got);
            }
            const int need = SSL_get_error(tls_.get(), done);
            if (need == SSL_ERROR_ZERO_RETURN) {
                return 0;
            }
            if (need != SSL_ERROR_WANT_READ && need != SSL_ERROR_WANT_WRITE) {
                fail(u"the connection was lost"_s);
            }
            waitFor(need == SSL_ERROR_WANT_READ ? POLLIN : POLLOUT, limit);
            continue;
        }
        const ssize_t got = ::recv(socket_, bytes, static_cast<std::size_t>(size), 0);
        if (got >= 0) {
            return got;
        }
        if (errno != EAGAIN && errno != EINTR) {
            fail(u"the connection was lost: "_s + cleanText(std::strerror(errno)));
        }
        waitFor(POLLIN, limit);
    }
}

void Channel::write(const char* bytes, qsizetype size, Milliseconds limit) {
    while (size > 0) {
        if (stop_.raised()) {
            throw TransferError(TransferError::Kind::Stopped, u"stopped"_s);
        }
        qsizetype sent = 0;
        if (tls_) {
            ERR_clear_error();
            std::size_t written = 0;
            const int done =
                SSL_write_ex(tls_.get(), bytes, static_cast<std::size_t>(size), &written);
            const int need = done == 1 ? SSL_ERROR_NONE : SSL_get_error(tls_.get(), done);
            if (need == SSL_ERROR_WANT_READ) {
                waitFor(POLLIN, limit);
            } else if (need == SSL_ERROR_WANT_WRITE) {
                waitToWrite(limit);
            } else if (need != SSL_ERROR_NONE) {
                fail(u"the connection was lost"_s);
            }
            sent = static_cast<qsizetype>(written);
        } else {
            sent = ::send(socket_, bytes, static_cast<std::size_t>(size), MSG_NOSIGNAL);
            if (sent < 0 && errno != EAGAIN && errno != EINTR) {
                fail(u"the connection was lost: "_s + cleanText(std::strerror(errno)));
            }
            if (sent < 0) {
                sent = 0;
                waitToWrite(limit);
            }
        }
        bytes += sent;
        size -= sent;
    }
}

void Channel::finish() {
    if (tls_) {
        ERR_clear_error();
        SSL_shutdown(tls_.get());
    }
    ::shutdown(socket_, SHUT_WR);
}

}  // namespace nubivane
