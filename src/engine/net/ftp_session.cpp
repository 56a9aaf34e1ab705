// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_session.h"

#include "engine/net/ftp_control.h"
#include "engine/net/server_address.h"
#include "engine/net/transfer_error.h"

#include <QIODevice>

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

constexpr qsizetype MaxNameBytes = 4096;
constexpr qsizetype BlockBytes = qsizetype{64} * 1024;

/// Some servers say this of an empty folder.
constexpr int NothingThere = 550;

QByteArray checked(const QByteArray& name) {
    if (name.isEmpty()) {
        throw TransferError(Kind::Refused, u"the name is empty"_s);
    }
    if (name.size() > MaxNameBytes || !isSendable(name)) {
        throw TransferError(Kind::Refused, u"the server cannot be given that name"_s);
    }
    return name;
}

QByteArray checkedFile(const QByteArray& name) {
    if (name.isEmpty() || name.endsWith('/') || name.endsWith('\\')) {
        throw TransferError(Kind::Refused, u"the name is not that of a file"_s);
    }
    return checked(name);
}

/// The number behind the code of "213 5000".
std::optional<qint64> numberOf(const FtpReply& reply) {
    bool valid = false;
    const qint64 number = reply.lines.mid(4).trimmed().toLongLong(&valid);
    return reply.code == 213 && valid && number >= 0 ? std::optional(number) : std::nullopt;
}

void checkStored(qint64 stored, qint64 size) {
    if (stored != size) {
        throw TransferError(Kind::Refused,
                            u"the server has kept %1 of %2 bytes"_s.arg(stored).arg(size));
    }
}

/// How long a server may take for the last word on a file, beyond its time for any reply: what it
/// has not read yet lies in buffers that are not ours.
Milliseconds timeToSettle(qint64 bytes) {
    constexpr qint64 slowest = 4;  // bytes a millisecond
    constexpr Milliseconds longest{60000};
    return std::min(Milliseconds(bytes / slowest), longest);
}

}  // namespace

FtpSession::FtpSession(FtpOptions options) : options_(std::move(options)) {}

FtpSession::~FtpSession() = default;

/// Runs a call; what ends the conversation closes it.
template <class Call>
auto FtpSession::attempt(const Call& call) {
    try {
        return call();
    } catch (const TransferError& error) {
        if (error.kind() != Kind::Refused && error.kind() != Kind::Local) {
            control_.reset();
        }
        throw;
    }
}

FtpControl& FtpSession::control() {
    if (!control_) {
        throw TransferError(Kind::Lost, u"there is no connection"_s);
    }
    return *control_;
}

FtpReply FtpSession::require(const FtpReply& reply) {
    if (reply.kind() >= 4) {
        throw reply.refusal();
    }
    return reply;
}

void FtpSession::connect(const FtpServer& server) {
    disconnect();
    knowsMlsd_ = knowsMlst_ = knowsList_ = knowsSize_ = true;
    control_ = std::make_unique<FtpControl>(server, options_, stop_);
}

bool FtpSession::plain() const {
    return control_ && control_->plain();
}

void FtpSession::disconnect() {
    if (!control_) {
        return;
    }
    try {
        control_->quit();
    } catch (const TransferError&) {
        // It is over either way.
    }
    control_.reset();
}

FtpReply FtpSession::ask(const char* verb, const QByteArray& name) {
    return attempt([&] { return control().ask(QByteArray(verb) + ' ' + checked(name)); });
}

FtpReply FtpSession::command(const char* verb, const QByteArray& name) {
    const FtpReply reply = ask(verb, name);
    if (!reply.done()) {
        throw reply.refusal();
    }
    return reply;
}

void FtpSession::send(QIODevice& source, Channel& data) {
    std::array<char, BlockBytes> block{};
    while (true) {
        const qint64 size = source.read(block.data(), block.size());
        if (size < 0) {
            throw TransferError(Kind::Local, source.errorString());
        }
        if (size == 0) {
            return;
        }
        data.write(block.data(), size, options_.stall);
        transferred_ += size;
    }
}

/// While the server reads what is still on its way it has not stopped, however long that takes.
void FtpSession::awaitStored(Channel& data, qint64 size) {
    constexpr qsizetype maxReply = 4096;
    int before = data.pending();
    while (true) {
        try {
            require(control().reply(options_.response + timeToSettle(size), maxReply));
            return;
        } catch (const TransferError& error) {
            const int now = data.pending();
            if (error.kind() != Kind::Lost || now >= before) {
                throw;
            }
            before = now;
        }
    }
}

void FtpSession::store(QIODevice& source, const QByteArray& name, qint64 offset) {
    const QByteArray line = (offset > 0 ? "APPE " : "STOR ") + checkedFile(name);
    attempt([&] {
        const qint64 size = source.size() - source.pos();
        transferred_ = 0;
        total_ = size;
        control().useBinary();
        const auto data = control().openData();
        require(control().ask(line));
        control().secureData(*data);
        try {
            send(source, *data);
        } catch (const TransferError& error) {
            if (error.kind() == Kind::Lost) {
                // A server that closes the file's connection tells why on the other.
                require(control().reply());
            }
            throw;
        }
        data->finish();
        awaitStored(*data, size);
    });
}

/// Asks for the size and says that a new name follows, in one go. False where the size has to be
/// found out in another way, and the new name announced again.
bool FtpSession::announceRename(const QByteArray& temporary, qint64 size) {
    if (!knowsSize_) {
        return false;
    }
    FtpControl& connection = control();
    connection.send("SIZE " + temporary);
    connection.send("RNFR " + temporary);
    const FtpReply sized = connection.reply();
    const FtpReply from = connection.reply();
    knowsSize_ = sized.kind() != 5 || sized.code == NothingThere;
    if (!knowsSize_) {
        return false;
    }
    if (const auto stored = numberOf(sized)) {
        checkStored(*stored, size);
    }
    stored_ = true;
    require(from);
    return true;
}

/// Servers of old tell a size in their listings alone.
std::optional<qint64> FtpSession::sizeInListing(const QByteArray& name) {
    const qsizetype separator = std::max(name.lastIndexOf('/'), name.lastIndexOf('\\'));
    const QString file = QString::fromUtf8(name.mid(separator + 1));
    try {
        for (const RemoteEntry& entry : list(name.left(std::max<qsizetype>(separator, 0)))) {
            if (entry.name == file && entry.size >= 0) {
                return entry.size;
            }
        }
    } catch (const TransferError& error) {
        if (error.kind() != Kind::Refused) {
            throw;
        }
    }
    return std::nullopt;
}

std::optional<qint64> FtpSession::sizeByAnyMeans(const QByteArray& name) {
    const auto size = sizeOf(name);
    return size ? size : sizeInListing(name);
}

void FtpSession::put(QIODevice& source, const QByteArray& name, const QByteArray& temporary,
                     bool more) {
    const qint64 size = source.size();
    stored_ = false;
    store(source, temporary, source.pos());
    if (!attempt([&] { return announceRename(temporary, size); })) {
        if (const auto stored = sizeByAnyMeans(temporary)) {
            checkStored(*stored, size);
        }
        stored_ = true;
        attempt([&] { require(control().ask("RNFR " + temporary)); });
    }
    attempt([&] {
        control().send("RNTO " + checkedFile(name));
        if (more) {
            control().requestData();
        }
    });
    const FtpReply renamed = attempt([&] { return control().reply(); });
    if (!renamed.done()) {
        throw renamed.refusal();
    }
}

void FtpSession::rename(const QByteArray& from, const QByteArray& to) {
    require(ask("RNFR", from));
    command("RNTO", to);
}

void FtpSession::rename(std::vector<Renaming>& renamings) {
    // So few that neither side's buffers ever fill with what the other has not read yet.
    constexpr std::size_t atATime = 16;
    attempt([&] {
        for (std::size_t first = 0; first < renamings.size(); first += atATime) {
            const std::size_t end = std::min(first + atATime, renamings.size());
            for (std::size_t i = first; i < end; ++i) {
                control().send("RNFR " + checkedFile(renamings[i].from));
                control().send("RNTO " + checkedFile(renamings[i].to));
            }
            for (std::size_t i = first; i < end; ++i) {
                control().reply();  // a refusal is repeated by the next
                renamings[i].done = control().reply().done();
            }
        }
    });
}

void FtpSession::receive(const QByteArray& line, const Sink& sink) {
    const auto data = control().openData();
    const FtpReply opening = require(control().ask(line));
    control().secureData(*data);
    std::array<char, BlockBytes> block{};
    while (const qsizetype size = data->read(block.data(), block.size(), options_.stall)) {
        transferred_ += size;
        if (!sink(block.data(), size)) {
            throw TransferError(Kind::Lost, u"what the server sends cannot be taken"_s);
        }
    }
    data->finish();  // some servers wait for our good-bye there before they say anything here
    if (!opening.done()) {
        require(control().reply());
    }
}

void FtpSession::retrieve(const QByteArray& name, const Sink& sink, qint64 expected) {
    const QByteArray line = "RETR " + checkedFile(name);
    attempt([&] {
        transferred_ = 0;
        total_ = expected;
        control().useBinary();
        receive(line, sink);
    });
}

/// By MLST where it is known, which wants no change of type before it.
std::optional<qint64> FtpSession::sizeOf(const QByteArray& name) {
    if (knowsMlst_) {
        const FtpReply reply = ask("MLST", checkedFile(name));
        const qsizetype from = reply.lines.toLower().indexOf("size=") + 5;
        const qsizetype end = reply.lines.indexOf(';', from);
        bool valid = false;
        const qint64 size = reply.lines.mid(from, end - from).toLongLong(&valid);
        if (reply.done() && from >= 5 && end > 0 && valid && size >= 0) {
            return size;
        }
        if (reply.code == NothingThere) {
            return std::nullopt;
        }
        knowsMlst_ = false;
    }
    if (!knowsSize_) {
        return std::nullopt;
    }
    attempt([&] { control().useBinary(); });
    const FtpReply reply = ask("SIZE", checkedFile(name));
    knowsSize_ = reply.kind() != 5 || reply.code == NothingThere;
    return numberOf(reply);
}

RemoteListing FtpSession::list(const QByteArray& folder) {
    const QByteArray where = folder.isEmpty() ? QByteArray() : ' ' + checked(folder);
    QByteArray listing;
    const auto sink = [&](const char* bytes, qint64 size) {
        listing.append(bytes, size);
        return listing.size() <= MaxListingBytes;
    };
    const auto listed = [&](const QByteArray& verb, bool& known) {
        if (!known) {
            return false;
        }
        listing.clear();
        try {
            attempt([&] { receive(verb + where, sink); });
        } catch (const TransferError& error) {
            const bool unknown = error.reply() >= 500 && error.reply() < 505;
            if (error.kind() != Kind::Refused || (!unknown && error.reply() != NothingThere)) {
                throw;
            }
            known = !unknown;
            if (!unknown && verb == "MLSD") {
                throw;
            }
            return !unknown;
        }
        return true;
    };
    if (listed("MLSD", knowsMlsd_)) {
        return parseMlsd(listing);
    }
    if (listed("LIST", knowsList_)) {
        return parseList(listing);
    }
    bool always = true;
    listed("NLST", always);
    return parseNames(listing);
}

std::optional<RemoteListing> FtpSession::listInReply(const QByteArray& folder) {
    const QByteArray line = "STAT " + checked(folder);
    return attempt([&]() -> std::optional<RemoteListing> {
        control().send(line);
        const FtpReply reply = control().reply(options_.response, MaxListingBytes);
        const qsizetype first = reply.lines.indexOf('\n');
        const qsizetype last = reply.lines.lastIndexOf('\n');
        if (!reply.done() || first < 0 || first == last) {
            return std::nullopt;
        }
        QByteArray lines = reply.lines.sliced(first + 1, last - first - 1);
        lines.replace("\n ", "\n");
        return parseList(lines.startsWith(' ') ? lines.mid(1) : lines);
    });
}

}  // namespace nubivane
