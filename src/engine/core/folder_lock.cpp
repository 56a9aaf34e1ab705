// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/folder_lock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace nubivane {

FolderLock::FolderLock(const QString& hostFolder)
    : descriptor_(
          open(QFile::encodeName(hostFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (descriptor_ < 0) {
        return;
    }
    int result = 0;
    do {
        result = flock(descriptor_, LOCK_EX);
    } while (result != 0 && errno == EINTR);
    held_ = result == 0;
}

FolderLock::~FolderLock() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

}  // namespace nubivane
