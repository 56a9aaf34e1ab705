// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/folder_lock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>
#include <utility>

namespace nubivane {

namespace {

FolderLock::State lockWithin(int descriptor, std::chrono::milliseconds patience) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds Pause{5};
    const Clock::time_point end = Clock::now() + patience;
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR) {
            continue;
        }
        if (errno != EWOULDBLOCK) {
            return FolderLock::State::Unknown;
        }
        if (Clock::now() >= end) {
            return FolderLock::State::Busy;
        }
        std::this_thread::sleep_for(Pause);
    }
    return FolderLock::State::Held;
}

}  // namespace

FolderLock::FolderLock(const QString& hostFolder, std::chrono::milliseconds patience)
    : descriptor_(
          ::open(QFile::encodeName(hostFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (descriptor_ >= 0) {
        state_ = lockWithin(descriptor_, patience);
    }
}

FolderLock::~FolderLock() {
    release();
}

bool FolderLock::isHeld(const QString& hostFolder) {
    const int folder =
        ::open(QFile::encodeName(hostFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // Shared, so that two who look do not take each other for the holder.
    const bool held =
        folder >= 0 && ::flock(folder, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (folder >= 0) {
        ::close(folder);
    }
    return held;
}

void FolderLock::release() {
    if (descriptor_ >= 0) {
        ::close(std::exchange(descriptor_, -1));
        state_ = State::Unknown;
    }
}

}  // namespace nubivane
