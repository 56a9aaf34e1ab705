// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_transfer.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"
#include "engine/net/ftp_session.h"

#include <QFile>
#include <QSet>
#include <QStringDecoder>

namespace nubivane {

namespace {

constexpr qint64 MaxListingBytes = qint64{1024} * 1024;
constexpr qint64 MaxFileBytes = qint64{64} * 1024 * 1024;  // far beyond any symbol
constexpr int RefusedForGood = 5;                          // the first digit of such replies

QByteArray withSlashes(QByteArray name) {
    return name.replace('\\', '/');
}

/// Appends to `bytes` as long as they stay within a size.
FtpSession::Sink appendTo(QByteArray& bytes, qint64 maxBytes) {
    return [&bytes, maxBytes](const char* part, qint64 size) {
        if (bytes.size() + size > maxBytes) {
            return false;
        }
        bytes.append(part, size);
        return true;
    };
}

QStringList plainNames(const QByteArray& listing) {
    QStringList names;
    QSet<QString> known;
    for (QByteArray line : listing.split('\n')) {
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString name = decoder.decode(line);
        if (!decoder.hasError() && host_files::isPlainName(name) && !known.contains(name)) {
            known += name;
            names += name;
        }
    }
    return names;
}

}  // namespace

ftpTransfer::ftpTransfer(FtpOptions options)
    : session_(std::make_unique<FtpSession>(std::move(options))) {}

ftpTransfer::~ftpTransfer() {
    AbortTransfer();
}

bool ftpTransfer::run(const std::function<bool()>& call) {
    bool done = false;
    localFailure_.clear();
    const auto work = [&] { done = call(); };
    const auto tick = [this] {
        if (progress && session_->transferred() > 0) {
            progress(session_->transferred(), session_->total());
        }
    };
    if (!worker_.run(work, {.tick = tick, .interrupted = [this] { AbortTransfer(); }})) {
        return false;  // out of an event of a call that is still under way
    }
    lost_ = !done && localFailure_.isEmpty() && session_->lost();
    if (!done) {
        failure_ = localFailure_.isEmpty() ? session_->failure() : localFailure_;
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
    session_->clearStop();
    return run([&] { return session_->connect(server); });
}

bool ftpTransfer::MakeDirectory(const QString& name) {
    return run([&] { return session_->command("MKD", nameOf(name)); });
}

bool ftpTransfer::ChangeDirectory(const QString& name) {
    return run([&] {
        const QByteArray asGiven = nameOf(name);
        if (session_->command("CWD", asGiven)) {
            return true;
        }
        if (session_->replyCode() / 100 != RefusedForGood || !asGiven.contains('\\')) {
            return false;
        }
        slashes_ = session_->command("CWD", withSlashes(asGiven));
        return slashes_;
    });
}

bool ftpTransfer::PutFile(const QString& localPath, const QString& remoteName) {
    return run([&] {
        QFile file(host_files::toHost(localPath));
        if (!file.open(QIODevice::ReadOnly)) {
            localFailure_ = file.errorString();
            return false;
        }
        return session_->store(file, nameOf(remoteName));
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
            if (!session_->retrieve(nameOf(remoteName), sink)) {
                if (file.device().error() != QFileDevice::NoError) {
                    localFailure_ = file.device().errorString();
                }
                return false;
            }
            file.commit();
            return true;
        } catch (const Error& error) {
            localFailure_ = error.cause();
            return false;
        }
    });
    if (fetched && progress) {
        progress(size, size);
    }
    return fetched;
}

std::optional<QByteArray> ftpTransfer::ReadFile(const QString& remoteName, qint64 maxBytes) {
    QByteArray bytes;
    if (!run([&] { return session_->retrieve(nameOf(remoteName), appendTo(bytes, maxBytes)); })) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<QStringList> ftpTransfer::ListDirectory() {
    QByteArray listing;
    if (!run([&] { return session_->list(appendTo(listing, MaxListingBytes)); })) {
        return std::nullopt;
    }
    return plainNames(listing);
}

void ftpTransfer::AbortTransfer() {
    session_->stop();
}

void ftpTransfer::EndTransfer() {
    if (worker_.busy()) {
        AbortTransfer();
    }
}

void ftpTransfer::Disconnect() {
    run([&] {
        session_->disconnect();
        return true;
    });
}

}  // namespace nubivane
