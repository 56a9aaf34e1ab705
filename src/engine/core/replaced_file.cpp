// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/replaced_file.h"

#include "engine/core/durable_file.h"
#include "engine/core/error.h"
#include "engine/core/temporary_name.h"

#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t PermissionBits = 07777;
constexpr mode_t ForItsOwner = 0600;
constexpr mode_t AsTheUserWants = 0666;  // less what the umask takes

[[noreturn]] void refuse(const QString& hostPath, const QString& reason) {
    failToWrite(u"replaced_file"_s, hostPath, reason);
}

QString systemsReason() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// The text of a link; empty for what is none.
QByteArray linkText(const QString& hostPath) {
    std::array<char, PATH_MAX> text{};
    const ssize_t size =
        ::readlink(QFile::encodeName(hostPath).constData(), text.data(), text.size());
    return size > 0 ? QByteArray(text.data(), size) : QByteArray();
}

bool statusOf(const QString& hostPath, struct stat& status) {
    return ::lstat(QFile::encodeName(hostPath).constData(), &status) == 0;
}

/// Looks at what stands in the place of a file that is about to be replaced.
void requireOrdinary(const QString& target, LinkUse links) {
    struct stat status {};
    if (!statusOf(target, status)) {
        if (errno != ENOENT) {
            refuse(target, systemsReason());
        }
        return;
    }
    if (S_ISDIR(status.st_mode)) {
        refuse(target, u"it is a folder"_s);
    }
    // Where the entry itself is to go, it does not matter what it was.
    if (links == LinkUse::Itself) {
        return;
    }
    if (!S_ISREG(status.st_mode)) {
        refuse(target, u"it is not an ordinary file"_s);
    }
    if (::access(QFile::encodeName(target).constData(), W_OK) != 0) {
        refuse(target, u"it is protected from writing"_s);
    }
}

QString targetOf(const QString& hostPath, LinkUse links) {
    return links == LinkUse::Followed ? behindLinks(hostPath) : hostPath;
}

}  // namespace

QString behindLinks(const QString& hostPath) {
    constexpr int MostLinks = 40;
    QString path = hostPath;
    for (int i = 0; i <= MostLinks; ++i) {
        const QByteArray text = linkText(path);
        if (text.isEmpty()) {
            return path;
        }
        const QString next = QFile::decodeName(text);
        if (QFile::encodeName(next) != text) {
            refuse(path, u"the link leads to a name that is not UTF-8"_s);
        }
        path = next.startsWith(u'/') ? next : QFileInfo(path).path() + u'/' + next;
    }
    refuse(hostPath, u"its links lead in a circle"_s);
}

void removeLeftoversOf(const QString& target) {
    const QFileInfo info(target);
    const QString prefix = temporary_name::prefixFor(info.fileName());
    for (const QString& name : temporary_name::withPrefix(info.path(), prefix)) {
        temporary_name::removeIfDead(info.path(), name);
    }
}

void requireReplaceable(const QString& hostPath, LinkUse links) {
    requireOrdinary(targetOf(hostPath, links), links);
}

ReplacedFile::ReplacedFile(const QString& hostPath, Durability durability, const Replacing& how)
    : durability_(durability), how_(how), target_(targetOf(hostPath, how.links)) {
    requireOrdinary(target_, how.links);
    const QFileInfo info(target_);
    folder_ = info.path();
    struct stat old {};
    const bool inherits = statusOf(target_, old) && S_ISREG(old.st_mode);
    const mode_t mode = how.secret || inherits ? ForItsOwner : AsTheUserWants;
    const int descriptor =
        temporary_name::create(folder_, info.fileName(), how.note, mode, temporary_);
    if (descriptor < 0 ||
        !file_.open(descriptor, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle)) {
        fail(systemsReason());
    }
}

ReplacedFile::~ReplacedFile() {
    if (!kept_) {
        // Removed while it is still locked, so that nobody else takes it for a leftover.
        ::unlink(QFile::encodeName(temporaryPath()).constData());
    }
}

void ReplacedFile::append(const QByteArray& bytes) {
    if (file_.write(bytes) != bytes.size()) {
        fail(durable_file::reasonOf(file_));
    }
}

void ReplacedFile::finish() {
    if (finished_) {
        return;
    }
    inherit();
    const bool written =
        file_.error() == QFileDevice::NoError &&
        (durability_ == Durability::Flushed ? durable_file::flush(file_) : file_.flush());
    if (!written) {
        fail(durable_file::reasonOf(file_));
    }
    finished_ = true;
}

/// Owner and permissions of the old file. What the file system does not allow is no failure.
void ReplacedFile::inherit() {
    struct stat old {};
    struct stat own {};
    if (!statusOf(target_, old) || !S_ISREG(old.st_mode) || ::fstat(file_.handle(), &own) != 0) {
        return;
    }
    if (old.st_uid != own.st_uid || old.st_gid != own.st_gid) {
        [[maybe_unused]] const int allowed = ::fchown(file_.handle(), old.st_uid, old.st_gid);
    }
    if (!how_.secret) {
        ::fchmod(file_.handle(), old.st_mode & PermissionBits);
    }
}

void ReplacedFile::putInPlace() {
    finish();
    // The lock outlives the file's closing, whose result has to be known before the rename.
    const int lock = ::dup(file_.handle());
    file_.close();
    const bool closed = file_.error() == QFileDevice::NoError;
    const bool renamed = closed && std::rename(QFile::encodeName(temporaryPath()).constData(),
                                               QFile::encodeName(target_).constData()) == 0;
    const QString reason = closed ? systemsReason() : durable_file::reasonOf(file_);
    ::close(lock);
    if (!renamed) {
        fail(reason);
    }
    kept_ = true;
}

void ReplacedFile::commit() {
    putInPlace();
    removeLeftoversOf(target_);
}

void ReplacedFile::fail(const QString& reason) const {
    refuse(target_, reason);
}

}  // namespace nubivane
