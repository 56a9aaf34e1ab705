// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_transfer.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"
#include "engine/net/ftp_session.h"
#include "engine/net/transfer_error.h"

#include <QFile>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

constexpr qint64 MaxFileBytes = qint64{64} * 1024 * 1024;  // far beyond any symbol

QByteArray withSlashes(QByteArray name) {
    return name.replace('\\', '/');
}

}  // namespace

ftpTransfer::ftpTransfer(FtpOptions options)
    : session_(std::make_unique<FtpSession>(std::move(options))) {}

ftpTransfer::~ftpTransfer() {
    AbortTransfer();
}

bool ftpTransfer::run(const std::function<void()>& call) {
    bool done = false;
    QString failure;
    bool lost = false;
    const auto work = [&] {
        try {
            call();
            done = true;
        } catch (const TransferError& error) {
            failure = error.text();
            lost = error.kind() != Kind::Refused && error.kind() != Kind::Local;
        }
    };
    const auto tick = [this] {
        if (progress && session_->transferred() > 0) {
            progress(session_->transferred(), session_->total());
        }
    };
    if (!worker_.run(work, {.tick = tick, .interrupted = [this] { AbortTransfer(); }})) {
        return false;  // out of an event of a call that is still under way
    }
    lost_ = lost;
    if (!done) {
        failure_ = failure;
    }
    return done;
}

QByteArray ftpTransfer::nameOf(const QString& name) const {
    const QByteArray bytes = name.toUtf8();
    return slashes_ ? withSlashes(bytes) : bytes;
}

bool ftpTransfer::Connect(const FtpServer& server) {
    if (worker_.busy()) {
        return false;
    }
    slashes_ = false;
    aborted_ = false;
    session_->clearStop();
    return run([&] { session_->connect(server); });
}

bool ftpTransfer::MakeDirectory(const QString& name) {
    return run([&] { session_->command("MKD", nameOf(name)); });
}

bool ftpTransfer::ChangeDirectory(const QString& name) {
    return run([&] {
        const QByteArray asGiven = nameOf(name);
        try {
            session_->command("CWD", asGiven);
        } catch (const TransferError& error) {
            if (!error.refusedForGood() || !asGiven.contains('\\')) {
                throw;
            }
            session_->command("CWD", withSlashes(asGiven));
            slashes_ = true;
        }
    });
}

bool ftpTransfer::PutFile(const QString& localPath, const QString& remoteName) {
    return run([&] {
        QFile file(host_files::toHost(localPath));
        if (!file.open(QIODevice::ReadOnly)) {
            throw TransferError(Kind::Local, file.errorString());
        }
        session_->store(file, nameOf(remoteName));
    });
}

bool ftpTransfer::GetFile(const QString& remoteName, const QString& localPath) {
    qint64 size = 0;
    const bool fetched = run([&] {
        try {
            ReplacedFile file(host_files::toHost(localPath), Durability::Flushed);
            const auto sink = [&](const char* bytes, qint64 count) {
                size += count;
                return size <= MaxFileBytes && file.device().write(bytes, count) == count;
            };
            const qint64 expected = session_->sizeOf(nameOf(remoteName)).value_or(0);
            session_->retrieve(nameOf(remoteName), sink, expected);
            if (expected > 0 && size != expected) {
                throw TransferError(Kind::Lost,
                                    u"only %1 of %2 bytes have come"_s.arg(size).arg(expected));
            }
            file.commit();
        } catch (const Error& error) {
            throw TransferError(Kind::Local, error.cause());
        }
    });
    if (fetched && progress) {
        progress(size, size);
    }
    return fetched;
}

std::optional<QByteArray> ftpTransfer::ReadFile(const QString& remoteName, qint64 maxBytes) {
    QByteArray bytes;
    const auto sink = [&](const char* part, qint64 size) {
        bytes.append(part, size);
        return bytes.size() <= maxBytes;
    };
    if (!run([&] { session_->retrieve(nameOf(remoteName), sink); })) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<QStringList> ftpTransfer::ListDirectory() {
    const auto entries = ListEntries();
    if (!entries) {
        return std::nullopt;
    }
    QStringList names;
    for (const RemoteEntry& entry : *entries) {
        names += entry.name;
    }
    return names;
}

std::optional<RemoteListing> ftpTransfer::ListEntries() {
    RemoteListing listing;
    if (!run([&] { listing = session_->list(); })) {
        return std::nullopt;
    }
    return listing;
}

void ftpTransfer::AbortTransfer() {
    aborted_ = true;
    session_->stop();
}

void ftpTransfer::EndTransfer() {
    if (worker_.busy()) {
        AbortTransfer();
    }
}

void ftpTransfer::Disconnect() {
    run([&] { session_->disconnect(); });
}

}  // namespace nubivane
