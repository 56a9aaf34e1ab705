// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_target.h"

#include "engine/net/transfer_error.h"

#include <QIODevice>

#include <map>

namespace nubivane {

namespace {

using Kind = TransferError::Kind;

/// What is worth asking for how much of it has arrived before a connection was lost.
constexpr qint64 WorthResuming = qint64{512} * 1024;

}  // namespace

FtpTarget::FtpTarget(FtpServer server, FtpOptions options)
    : server_(std::move(server)), options_(std::move(options)), session_(options_) {}

void FtpTarget::connect() {
    session_.connect(server_);
}

QByteArray FtpTarget::nameOf(const QString& name) const {
    QByteArray bytes = name.toUtf8();
    switch (known_->separator.load()) {
        case Separator::Slash:
            return bytes.replace('\\', '/');
        case Separator::Backslash:
            return bytes.replace('/', '\\');
        case Separator::Unknown:
            break;
    }
    return bytes;
}

void FtpTarget::makeFolder(const QString& name) {
    session_.command("MKD", nameOf(name));
}

void FtpTarget::changeFolder(const QString& name) {
    const QByteArray asGiven = nameOf(name);
    const bool telling = asGiven.contains('\\') && known_->separator.load() == Separator::Unknown;
    try {
        session_.command("CWD", asGiven);
        if (telling) {
            known_->separator = Separator::Backslash;
        }
    } catch (const TransferError& error) {
        if (!telling || !error.refusedForGood()) {
            throw;
        }
        session_.command("CWD", QByteArray(asGiven).replace('\\', '/'));
        known_->separator = Separator::Slash;
    }
}

void FtpTarget::put(const Outgoing& file) {
    const QByteArray name = nameOf(file.name);
    const QByteArray temporary = nameOf(file.temporary);
    if (!known_->inPlace) {
        send(file, name, temporary);
    }
    if (known_->inPlace) {
        file.source.seek(0);
        session_.store(file.source, name);
        const auto size = session_.sizeByAnyMeans(name);
        if (size && *size != file.source.size()) {
            throw TransferError(Kind::Refused, QStringLiteral("the server has kept %1 of %2 bytes")
                                                   .arg(*size)
                                                   .arg(file.source.size()));
        }
    }
    sent_ += session_.transferred();
    session_.forgetTransferred();
}

bool FtpTarget::putAhead(const Outgoing& file) {
    if (known_->inPlace || !known_->tellsSizes) {
        return false;
    }
    const QByteArray temporary = nameOf(file.temporary);
    file.source.seek(0);
    try {
        session_.store(file.source, temporary);
    } catch (const TransferError& error) {
        if (error.kind() == Kind::Refused) {
            session_.ask("DELE", temporary);
        }
        throw;
    }
    sent_ += session_.transferred();
    session_.forgetTransferred();
    return true;
}

/// What one listing tells of a folder; without one nothing is known.
FtpTarget::FolderSizes FtpTarget::sizesIn(const QString& folder) {
    FolderSizes sizes;
    const auto listing = listQuickly(folder.isEmpty() ? QStringLiteral(".") : folder);
    sizes.complete = listing.has_value();
    for (const RemoteEntry& entry : listing.value_or(RemoteListing())) {
        if (entry.size >= 0) {
            sizes.bytes.insert(entry.name, entry.size);
        } else if (entry.kind != RemoteEntry::Kind::Folder) {
            sizes.complete = false;
        }
    }
    return sizes;
}

/// Which of the files have their size there: by one listing for each folder, which is one question
/// for many files, and by one question for each that it does not tell of.
std::vector<bool> FtpTarget::whole(const std::vector<Ahead>& files) {
    std::map<QString, FolderSizes> folders;
    std::vector<bool> answers;
    bool anyTold = false;
    for (const Ahead& file : files) {
        const QString folder = file.temporary.section(u'/', 0, -2);
        auto known = folders.find(folder);
        if (known == folders.end()) {
            known = folders.emplace(folder, sizesIn(folder)).first;
        }
        const FolderSizes& sizes = known->second;
        const auto told = sizes.bytes.constFind(file.temporary.section(u'/', -1));
        std::optional<qint64> size;
        if (told != sizes.bytes.constEnd()) {
            size = *told;
        } else if (!sizes.complete) {
            size = sizeOf(file.temporary);
        }
        anyTold = anyTold || size;
        answers.push_back(size == file.size);
    }
    known_->tellsSizes = anyTold;
    return answers;
}

std::vector<bool> FtpTarget::settle(const std::vector<Ahead>& files) {
    std::vector<bool> named = whole(files);
    std::vector<FtpSession::Renaming> renamings;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (named[i]) {
            renamings.push_back({nameOf(files[i].temporary), nameOf(files[i].name)});
        } else {
            session_.ask("DELE", nameOf(files[i].temporary));
        }
    }
    session_.rename(renamings);
    auto renaming = renamings.cbegin();
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!named[i]) {
            continue;
        }
        if (!renaming->done) {
            named[i] = replaceByHand(renaming->to, renaming->from);
        }
        ++renaming;
    }
    return named;
}

/// Sends a file under its temporary name and renames it. Leaves it to the caller to replace it in
/// place where no renaming works.
void FtpTarget::send(const Outgoing& file, const QByteArray& name, const QByteArray& temporary) {
    qint64 there = 0;
    if (known_->appends && file.source.pos() > 0 && file.source.size() >= WorthResuming) {
        there = session_.sizeOf(temporary).value_or(0);
    }
    there = there < file.source.size() ? there : 0;
    if (!file.source.seek(there)) {
        throw TransferError(Kind::Local, file.source.errorString());
    }
    try {
        session_.put(file.source, name, temporary, file.more);
    } catch (const TransferError& error) {
        if (error.kind() != Kind::Refused) {
            throw;
        }
        if (session_.stored()) {
            replaceByHand(name, temporary);
            return;
        }
        session_.ask("DELE", temporary);
        if (there == 0) {
            throw;
        }
        known_->appends = false;  // then from its beginning, which every server takes
        file.source.seek(0);
        send(file, name, temporary);
    }
}

/// Some servers do not rename over what is there, others not at all: then false.
bool FtpTarget::replaceByHand(const QByteArray& name, const QByteArray& temporary) {
    session_.ask("DELE", name);
    try {
        session_.rename(temporary, name);
    } catch (const TransferError& error) {
        if (error.kind() != Kind::Refused) {
            throw;
        }
        session_.ask("DELE", temporary);
        known_->inPlace = true;
    }
    return !known_->inPlace;
}

std::optional<RemoteListing> FtpTarget::list(const QString& folder) {
    try {
        return session_.list(nameOf(folder));
    } catch (const TransferError& error) {
        if (error.kind() != Kind::Refused) {
            throw;
        }
        return std::nullopt;
    }
}

std::optional<RemoteListing> FtpTarget::listQuickly(const QString& folder) {
    if (known_->listsInReply) {
        if (auto listing = session_.listInReply(nameOf(folder)); listing && !listing->empty()) {
            return listing;
        }
        known_->listsInReply = false;
    }
    return list(folder);
}

std::optional<qint64> FtpTarget::sizeOf(const QString& name) {
    return session_.sizeOf(nameOf(name));
}

std::optional<QByteArray> FtpTarget::read(const QString& name, qint64 maxBytes) {
    QByteArray bytes;
    const auto sink = [&](const char* part, qint64 size) {
        bytes.append(part, size);
        return bytes.size() <= maxBytes;
    };
    try {
        session_.retrieve(nameOf(name), sink);
    } catch (const TransferError& error) {
        if (error.kind() != Kind::Refused) {
            throw;
        }
        return std::nullopt;
    }
    return bytes;
}

void FtpTarget::remove(const QString& name) {
    session_.command("DELE", nameOf(name));
}

std::unique_ptr<Transfer> FtpTarget::sibling() {
    if (known_->separator.load() == Separator::Backslash) {
        return nullptr;
    }
    auto other = std::make_unique<FtpTarget>(server_, options_);
    other->known_ = known_;
    return other;
}

}  // namespace nubivane
