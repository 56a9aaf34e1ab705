// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_server.h"

#include "fuzz_support.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace nubivane::fuzz {

namespace {

constexpr int Backlog = 16;
constexpr int LookAgainMs = 50;  // whether the server should end

int listenAnywhere(int& port) {
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    require(listener >= 0 && ::bind(listener, any, size) == 0 && ::listen(listener, Backlog) == 0 &&
                ::getsockname(listener, any, &size) == 0,
            "this machine has a port for the server");
    port = ntohs(address.sin_port);
    return listener;
}

void sendAll(int socket, const QByteArray& bytes) {
    qsizetype at = 0;
    while (at < bytes.size()) {
        const auto sent = ::send(socket, bytes.constData() + at,
                                 static_cast<std::size_t>(bytes.size() - at), MSG_NOSIGNAL);
        if (sent <= 0) {
            return;
        }
        at += sent;
    }
}

}  // namespace

ScriptedServer::ScriptedServer()
    : listener_(listenAnywhere(port_)), dataListener_(listenAnywhere(dataPort_)) {
    thread_ = std::thread([this] { loop(); });
}

ScriptedServer::~ScriptedServer() {
    ending_ = true;
    thread_.join();
    ::close(listener_);
    ::close(dataListener_);
}

void ScriptedServer::setScript(const QList<QByteArray>& replies, const QByteArray& listing) {
    const std::lock_guard lock(mutex_);
    replies_ = replies;
    listing_ = listing;
}

void ScriptedServer::loop() {
    while (!ending_) {
        pollfd waiting{listener_, POLLIN, 0};
        if (::poll(&waiting, 1, LookAgainMs) > 0) {
            const int control = ::accept(listener_, nullptr, nullptr);
            serve(control);
            ::close(control);
        }
    }
}

void ScriptedServer::say(int control, qsizetype reply, const QList<QByteArray>& replies) const {
    sendAll(control, QByteArray(replies[reply]).replace("%P", QByteArray::number(dataPort_)));
}

void ScriptedServer::serve(int control) {
    QList<QByteArray> replies;
    QByteArray listing;
    {
        const std::lock_guard lock(mutex_);
        replies = replies_;
        listing = listing_;
    }
    qsizetype said = 0;
    if (!replies.isEmpty()) {
        say(control, said++, replies);
    }
    while (!ending_ && said < replies.size()) {
        std::array<pollfd, 2> waiting{pollfd{control, POLLIN, 0}, pollfd{dataListener_, POLLIN, 0}};
        if (::poll(waiting.data(), waiting.size(), LookAgainMs) <= 0) {
            continue;
        }
        if (waiting[1].revents != 0) {
            const int data = ::accept(dataListener_, nullptr, nullptr);
            sendAll(data, listing);
            ::close(data);
        }
        if (waiting[0].revents != 0) {
            std::array<char, 1024> heard{};
            const auto size = ::recv(control, heard.data(), heard.size(), 0);
            if (size <= 0) {
                return;
            }
            for (qsizetype i = 0; i < size && said < replies.size(); ++i) {
                if (heard[static_cast<std::size_t>(i)] == '\n') {
                    say(control, said++, replies);
                }
            }
        }
    }
}

}  // namespace nubivane::fuzz
