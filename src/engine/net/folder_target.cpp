// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/folder_target.h"

#include "engine/net/clean_text.h"
#include "engine/net/transfer_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

QString systemReason() {
    return cleanText(std::strerror(errno));
}

/// A file that took a part of the bytes has no error of its own.
QString whyNotWritten(const QFile& file) {
    return file.error() == QFileDevice::NoError ? systemReason() : file.errorString();
}

QString rootOf(QString path) {
    return path.startsWith("//"_L1) ? path.mid(2) : path;
}

}  // namespace

FolderTarget::FolderTarget(const QString& root) : root_(rootOf(root)) {}

QString FolderTarget::pathOf(const QString& name) const {
    return QDir::cleanPath(current_ + u'/' + QString(name).replace(u'\\', u'/'));
}

void FolderTarget::connect() {
    if (!QDir::isAbsolutePath(root_) || !QFileInfo(root_).isDir()) {
        throw TransferError(Kind::Refused, u"there is no folder \"%1\""_s.arg(root_));
    }
    current_ = root_;
}

void FolderTarget::makeFolder(const QString& name) {
    constexpr mode_t asTheUserWishes = 0777;
    if (::mkdir(QFile::encodeName(pathOf(name)).constData(), asTheUserWishes) != 0) {
        throw TransferError(Kind::Refused, u"the folder cannot be made: "_s + systemReason());
    }
}

void FolderTarget::changeFolder(const QString& name) {
    const QString path = pathOf(name);
    if (!QFileInfo(path).isDir()) {
        throw TransferError(Kind::Refused, u"there is no such folder"_s);
    }
    current_ = path;
}

void FolderTarget::put(const Outgoing& file) {
    const QString temporary = pathOf(file.temporary);
    const QString path = pathOf(file.name);
    QFile target(temporary);
    file.source.seek(0);
    if (!target.open(QIODevice::WriteOnly)) {
        throw TransferError(Kind::Refused, target.errorString());
    }
    std::array<char, 65536> block{};
    while (true) {
        if (stop_.raised()) {
            target.remove();
            throw TransferError(Kind::Stopped, u"stopped"_s);
        }
        const qint64 size = file.source.read(block.data(), block.size());
        if (size == 0) {
            break;
        }
        if (size < 0 || target.write(block.data(), size) != size) {
            const QString why = size < 0 ? file.source.errorString() : whyNotWritten(target);
            target.remove();
            throw TransferError(Kind::Local, why);
        }
        sent_ += size;
    }
    if (!target.flush() || ::fsync(target.handle()) != 0) {
        const QString why = whyNotWritten(target);
        target.remove();
        throw TransferError(Kind::Local, why);
    }
    target.close();
    // A rename over what stands there is one step for every reader.
    if (std::rename(QFile::encodeName(temporary).constData(),
                    QFile::encodeName(path).constData()) != 0) {
        const QString why = u"the file cannot be put in place: "_s + systemReason();
        target.remove();
        throw TransferError(Kind::Refused, why);
    }
}

std::optional<RemoteListing> FolderTarget::list(const QString& folder) {
    const QDir dir(pathOf(folder));
    if (!dir.exists()) {
        return std::nullopt;
    }
    RemoteListing listing;
    for (const QFileInfo& entry :
         dir.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        listing.push_back({entry.fileName(),
                           entry.isDir() ? RemoteEntry::Kind::Folder : RemoteEntry::Kind::File,
                           entry.isDir() ? -1 : entry.size()});
    }
    return listing;
}

std::optional<qint64> FolderTarget::sizeOf(const QString& name) {
    const QFileInfo entry(pathOf(name));
    return entry.isFile() ? std::optional(entry.size()) : std::nullopt;
}

std::optional<QByteArray> FolderTarget::read(const QString& name, qint64 maxBytes) {
    QFile file(pathOf(name));
    if (!QFileInfo(file).isFile() || file.size() > maxBytes || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

void FolderTarget::remove(const QString& name) {
    if (QFile file(pathOf(name)); !file.remove()) {
        throw TransferError(Kind::Refused, file.errorString());
    }
}

}  // namespace nubivane
