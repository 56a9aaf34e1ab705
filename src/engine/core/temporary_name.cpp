// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/temporary_name.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

namespace nubivane::temporary_name {

namespace {

constexpr QLatin1String Start(".nubivane-");
constexpr qsizetype TargetDigits = 16;
constexpr int ChanceDigits = 8;

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

QString chance() {
    return QString::number(QRandomGenerator::system()->generate(), 16)
        .rightJustified(ChanceDigits, u'0');
}

QByteArray nativePath(const QString& folder, const QString& name) {
    return QFile::encodeName(folder + u'/' + name);
}

/// False when somebody who looked for leftovers has taken the file away before it was locked.
/// Where the file system knows no locks nobody can, and nothing is ever taken for a leftover.
bool lockAsOurs(int descriptor) {
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return false;
    }
    struct stat status {};
    return ::fstat(descriptor, &status) != 0 || status.st_nlink > 0;
}

bool isStill(const QByteArray& path, const struct stat& status) {
    struct stat now {};
    return ::lstat(path.constData(), &now) == 0 && now.st_dev == status.st_dev &&
           now.st_ino == status.st_ino;
}

}  // namespace

QString prefixFor(const QString& targetName) {
    const QByteArray digest =
        QCryptographicHash::hash(QFile::encodeName(targetName), QCryptographicHash::Blake2b_256);
    return Start + QString::fromLatin1(digest.toHex().left(TargetDigits)) + u'-';
}

bool isOurs(const QString& name) {
    return name.startsWith(Start) && name.size() > Start.size() + TargetDigits + ChanceDigits &&
           name[Start.size() + TargetDigits] == u'-';
}

QStringList withPrefix(const QString& hostFolder, const QString& prefix) {
    QStringList names;
    const std::unique_ptr<DIR, CloseFolder> folder(
        ::opendir(QFile::encodeName(hostFolder).constData()));
    const QByteArray start = QFile::encodeName(prefix);
    while (const dirent* entry = folder ? ::readdir(folder.get()) : nullptr) {
        const QByteArray name(entry->d_name);
        if (name.startsWith(start)) {
            names += QFile::decodeName(name);
        }
    }
    names.sort();
    return names;
}

int create(const QString& hostFolder, const QString& targetName, const QByteArray& note,
           unsigned mode, QString& name) {
    constexpr int Tries = 100;
    const QString prefix = prefixFor(targetName);
    for (int i = 0; i < Tries; ++i) {
        name = prefix + chance();
        if (!note.isEmpty()) {
            name += u'-' + QString::fromLatin1(note);
        }
        const QByteArray path = nativePath(hostFolder, name);
        const int descriptor =
            ::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (descriptor >= 0 && lockAsOurs(descriptor)) {
            return descriptor;
        }
        if (descriptor >= 0) {
            ::close(descriptor);
        } else if (errno != EEXIST) {
            return -1;
        }
    }
    errno = EEXIST;
    return -1;
}

void removeIfDead(const QString& hostFolder, const QString& name) {
    const QByteArray path = nativePath(hostFolder, name);
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0) {
        return;
    }
    struct stat status {};
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isStill(path, status)) {
        ::unlink(path.constData());
    }
    ::close(descriptor);
}

}  // namespace nubivane::temporary_name
