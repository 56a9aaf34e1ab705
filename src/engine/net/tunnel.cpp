// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/tunnel.h"

#include "engine/net/clean_text.h"
#include "engine/net/transfer_error.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

constexpr qsizetype LongestName = 255;  // what one byte can count
constexpr qsizetype LongestHead = 16384;

[[noreturn]] void refuse(const QString& why) {
    throw TransferError(Kind::Refused, u"the proxy refuses the connection (%1)"_s.arg(why));
}

/// One end of a conversation with a proxy. It reads no byte more than belongs to it: what follows
/// is the server's.
class Talk {
  public:
    Talk(Channel& channel, Milliseconds limit) : channel_(channel), limit_(limit) {}

    void say(const QByteArray& bytes) { channel_.write(bytes.constData(), bytes.size(), limit_); }
    QByteArray hear(qsizetype size) {
        QByteArray bytes(size, '\0');
        qsizetype got = 0;
        while (got < size) {
            const qsizetype part = channel_.read(bytes.data() + got, size - got, limit_);
            if (part == 0) {
                throw TransferError(Kind::Lost, u"the proxy has closed the connection"_s);
            }
            got += part;
        }
        return bytes;
    }

  private:
    Channel& channel_;
    Milliseconds limit_;
};

QByteArray counted(const QByteArray& text) {
    return static_cast<char>(text.size()) + text.first(std::min(text.size(), LongestName));
}

void logInToSocks(Talk& talk, const Proxy& proxy) {
    constexpr char openToAll = 0;
    constexpr char byPassword = 2;
    const bool named = !proxy.user.isEmpty();
    talk.say(named ? QByteArray("\x05\x02\x00\x02", 4) : QByteArray("\x05\x01\x00", 3));
    const QByteArray method = talk.hear(2);
    if (method.at(0) != 5 ||
        (method.at(1) != openToAll && !(named && method.at(1) == byPassword))) {
        refuse(u"it takes no such login"_s);
    }
    if (method.at(1) == byPassword) {
        talk.say('\x01' + counted(proxy.user) + counted(proxy.password));
        if (talk.hear(2).at(1) != 0) {
            refuse(u"name or password is wrong"_s);
        }
    }
}

void connectBySocks(Talk& talk, const Proxy& proxy, const QByteArray& host, int port) {
    if (host.size() > LongestName || proxy.user.size() > LongestName ||
        proxy.password.size() > LongestName) {
        refuse(u"a name is too long"_s);
    }
    logInToSocks(talk, proxy);
    talk.say(QByteArray("\x05\x01\x00\x03", 4) + counted(host) + static_cast<char>(port >> 8) +
             static_cast<char>(port & 0xFF));
    const QByteArray reply = talk.hear(4);
    if (reply.at(1) != 0) {
        refuse(u"reply %1"_s.arg(static_cast<unsigned char>(reply.at(1))));
    }
    // Where it has connected from is of no interest, but its length is.
    const char form = reply.at(3);
    const qsizetype size = form == 1   ? 4
                           : form == 4 ? 16
                                       : static_cast<unsigned char>(talk.hear(1).at(0));
    talk.hear(size + 2);
}

void connectByHttp(Talk& talk, const Proxy& proxy, const QByteArray& host, int port) {
    const QByteArray authority =
        (host.contains(':') ? '[' + host + ']' : host) + ':' + QByteArray::number(port);
    QByteArray request = "CONNECT " + authority + " HTTP/1.1\r\nHost: " + authority + "\r\n";
    if (!proxy.user.isEmpty()) {
        request +=
            "Proxy-Authorization: Basic " + (proxy.user + ':' + proxy.password).toBase64() + "\r\n";
    }
    talk.say(request + "\r\n");
    QByteArray head;
    while (!head.endsWith("\r\n\r\n")) {
        head += talk.hear(1);
        if (head.size() > LongestHead) {
            refuse(u"its reply has no end"_s);
        }
    }
    const QByteArray line = head.first(head.indexOf('\r'));
    if (!line.startsWith("HTTP/1.") || line.mid(9, 1) != "2") {
        refuse(cleanText(line));
    }
}

}  // namespace

void tunnel(Channel& channel, const Proxy& proxy, const QByteArray& host, int port,
            Milliseconds limit) {
    Talk talk(channel, limit);
    if (proxy.kind == Proxy::Kind::Socks) {
        connectBySocks(talk, proxy, host, port);
    } else if (proxy.kind == Proxy::Kind::Http) {
        connectByHttp(talk, proxy, host, port);
    }
}

}  // namespace nubivane
