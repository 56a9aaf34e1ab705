// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/file_state.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;

FileState stateFrom(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size,
            qint64{status.st_mtim.tv_sec} * NanosecondsPerSecond + status.st_mtim.tv_nsec};
}

}  // namespace

FileState fileStateOf(const QString& hostPath) {
    struct stat status {};
    return ::stat(QFile::encodeName(hostPath).constData(), &status) == 0 ? stateFrom(status)
                                                                         : FileState{};
}

FileState fileStateOf(const QFile& file) {
    struct stat status {};
    return ::fstat(file.handle(), &status) == 0 ? stateFrom(status) : FileState{};
}

bool openOrdinary(QFile& file, const QString& hostPath, QString& reason, LinkUse links) {
    // Without waiting: the other end of a pipe may never come.
    const int flags =
        O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (links == LinkUse::Itself ? O_NOFOLLOW : 0);
    const int descriptor = ::open(QFile::encodeName(hostPath).constData(), flags);
    if (descriptor < 0) {
        reason = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
        !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        reason = u"it is not an ordinary file"_s;
        ::close(descriptor);
        return false;
    }
    return true;
}

}  // namespace nubivane
