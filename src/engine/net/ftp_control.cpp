// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_control.h"

#include "engine/net/clean_text.h"
#include "engine/net/conversation.h"
#include "engine/net/server_address.h"
#include "engine/net/transfer_error.h"
#include "engine/net/tunnel.h"

#include <array>
#include <chrono>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

/// Longer replies are no replies; a server could send them without end.
constexpr qsizetype MaxReplyBytes = qsizetype{64} * 1024;
constexpr int ServiceCloses = 421;

}  // namespace

FtpControl::FtpControl(const FtpServer& server, const FtpOptions& options, const StopSignal& stop)
    : server_(server), options_(options), stop_(stop) {
    const QByteArray host = hostForLookup(server.host);
    if (host.isEmpty() || server.port < 1 || server.port > 65535) {
        throw TransferError(Kind::Refused, u"the address of the server is not valid"_s);
    }
    if (!isSendable(server.user.toUtf8()) || !isSendable(server.password.toUtf8())) {
        throw TransferError(Kind::Refused, u"the login holds a control character"_s);
    }
    if (server.encryption != Encryption::None || server.implicitTls) {
        tls_ = std::make_unique<TlsContext>(host, options.certificates, server.fingerprint);
    }
    host_ = host;
    const QByteArray authority = host.contains(':') ? '[' + host + ']' : host;
    proxy_ =
        proxyFor((server.implicitTls ? "ftps://" : "ftp://") + authority, options.connect, stop);
    const bool direct = proxy_.kind == Proxy::Kind::None;
    channel_ =
        std::make_unique<Channel>(lookUp(direct ? host : proxy_.host,
                                         direct ? server.port : proxy_.port, options.connect, stop),
                                  options.connect, stop);
    tunnel(*channel_, proxy_, host, server.port, options.response);
    if (server.implicitTls) {
        channel_->secure(*tls_, options.response);
        plain_ = false;
    }
    greet();
    if (tls_ && plain_) {
        negotiate();
    }
    logIn();
    if (!plain_) {
        protectData();
    }
}

void FtpControl::send(const QByteArray& line) {
    settleData();
    write(line);
}

void FtpControl::write(const QByteArray& line) {
    tell(options_, u"> "_s + (line.startsWith("PASS ") ? u"PASS ****"_s : cleanText(line)));
    const QByteArray bytes = line + "\r\n";
    channel_->write(bytes.constData(), bytes.size(), options_.response);
}

FtpReply FtpControl::reply() {
    return reply(options_.response, MaxReplyBytes);
}

FtpReply FtpControl::reply(Milliseconds limit, qsizetype maxBytes) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + limit;
    std::array<char, 4096> buffer{};
    while (true) {
        if (const auto reply = reader_.next(maxBytes)) {
            tell(options_, u"< "_s + reply->text());
            if (reply->code == ServiceCloses) {
                throw TransferError(Kind::Lost, reply->text(), reply->code);
            }
            return *reply;
        }
        const auto left = std::chrono::ceil<Milliseconds>(end - Clock::now());
        if (left <= Milliseconds::zero()) {
            throw TransferError(Kind::Lost, u"the server has not answered within %1 seconds"_s.arg(
                                                secondsText(limit)));
        }
        const qsizetype got = channel_->read(buffer.data(), buffer.size(), left);
        if (got == 0) {
            throw TransferError(Kind::Lost, u"the server has closed the connection"_s);
        }
        reader_.take(buffer.data(), got);
    }
}

/// Takes the reply to what was asked for ahead, before that to another command.
void FtpControl::settleData() {
    if (requested_) {
        requested_ = false;
        dataReply_ = reply();
    }
}

FtpReply FtpControl::ask(const QByteArray& line) {
    send(line);
    return reply();
}

void FtpControl::greet() {
    FtpReply greeting = reply();
    while (greeting.kind() == 1) {  // "ready in some minutes"
        greeting = reply();
    }
    if (!greeting.done()) {
        throw greeting.refusal();
    }
}

void FtpControl::negotiate() {
    const FtpReply answer = ask("AUTH TLS");
    if (answer.done()) {
        reader_.clear();  // whatever came in clear behind the offer is nobody's word
        channel_->secure(*tls_, options_.response);
        plain_ = false;
        return;
    }
    if (server_.encryption == Encryption::Required) {
        throw TransferError(Kind::Insecure,
                            u"the server offers no encryption (%1)"_s.arg(answer.text()));
    }
    if (answer.kind() != 5) {
        throw TransferError(Kind::Insecure,
                            u"the server cannot encrypt just now (%1)"_s.arg(answer.text()));
    }
}

void FtpControl::logIn() {
    const bool named = !server_.user.isEmpty();
    FtpReply answer = ask("USER " + (named ? server_.user.toUtf8() : QByteArray("anonymous")));
    if (answer.kind() == 3) {
        const bool given = named || !server_.password.isEmpty();
        answer = ask("PASS " + (given ? server_.password.toUtf8() : QByteArray("anonymous@")));
    }
    if (!answer.done()) {
        throw answer.refusal();
    }
}

void FtpControl::protectData() {
    send("PBSZ 0");
    send("PROT P");
    reply();
    const FtpReply answer = reply();
    private_ = answer.done();
    if (!private_ && server_.encryption == Encryption::Required) {
        throw TransferError(Kind::Insecure,
                            u"the server does not encrypt files (%1)"_s.arg(answer.text()));
    }
}

void FtpControl::requestData() {
    write(extended_ ? "EPSV" : "PASV");
    requested_ = true;
}

/// The port of "229 … (|||port|)" or "227 … h1,h2,h3,h4,p1,p2". The address in the latter is
/// passed over: it is wrong behind many routers, and a server might lead us elsewhere by it.
int FtpControl::portOfReply(const FtpReply& reply) const {
    const QByteArray& text = reply.lines;
    if (extended_) {
        const qsizetype from = text.lastIndexOf("(");
        const QByteArrayView inside = from < 0 || from + 5 > text.size()
                                          ? QByteArrayView()
                                          : QByteArrayView(text).sliced(from + 4);
        const qsizetype end = inside.indexOf(text.isEmpty() || from < 0 ? '|' : text.at(from + 1));
        return end > 0 ? inside.first(end).toByteArray().toInt() : 0;
    }
    const QList<QByteArray> numbers = text.mid(4).split(',');
    if (numbers.size() < 6) {
        return 0;
    }
    QByteArray low;
    for (const char c : numbers.at(numbers.size() - 1).trimmed()) {
        if (c < '0' || c > '9') {
            break;
        }
        low += c;
    }
    return numbers.at(numbers.size() - 2).trimmed().toInt() * 256 + low.toInt();
}

std::unique_ptr<Channel> FtpControl::openData() {
    if (!requested_ && !dataReply_) {
        requestData();
    }
    settleData();
    FtpReply answer = *std::exchange(dataReply_, std::nullopt);
    if (extended_ && answer.kind() == 5) {
        extended_ = false;
        answer = ask("PASV");
    }
    if (!answer.done()) {
        throw answer.refusal();
    }
    const int port = portOfReply(answer);
    if (port < 1 || port > 65535) {
        throw TransferError(Kind::Refused,
                            u"the server names no port for the file (%1)"_s.arg(answer.text()));
    }
    const bool direct = proxy_.kind == Proxy::Kind::None;
    auto data = std::make_unique<Channel>(
        std::vector{channel_->peer().withPort(direct ? port : proxy_.port)}, options_.connect,
        stop_);
    tunnel(*data, proxy_, host_, port, options_.response);
    return data;
}

void FtpControl::secureData(Channel& data) {
    if (private_) {
        data.secure(*tls_, options_.response);
    }
}

void FtpControl::useBinary() {
    if (binary_) {
        return;
    }
    const FtpReply answer = ask("TYPE I");
    if (!answer.done()) {
        throw answer.refusal();
    }
    binary_ = true;
}

void FtpControl::quit() {
    send("QUIT");
    reply(options_.farewell, MaxReplyBytes);
}

}  // namespace nubivane
