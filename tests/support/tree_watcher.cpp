// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tree_watcher.h"

#include <QFile>

#include <chrono>

namespace nubivane::testing {

TreeWatcher::TreeWatcher(const QString& root, const QMap<QString, QByteArray>& site)
    : root_(root), site_(site), thread_([this] { watch(); }) {}

TreeWatcher::~TreeWatcher() {
    over_ = true;
    thread_.join();
}

QStringList TreeWatcher::halfFiles() const {
    const std::lock_guard lock(mutex_);
    return halfFiles_;
}

void TreeWatcher::watch() {
    while (!over_) {
        {
            const std::lock_guard lock(mutex_);
            look();
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void TreeWatcher::look() {
    for (auto file = site_.cbegin(); file != site_.cend(); ++file) {
        QFile seen(root_ + u'/' + file.key());
        struct stat status {};
        if (::stat(QFile::encodeName(seen.fileName()).constData(), &status) != 0) {
            continue;
        }
        const State state{status.st_ino, status.st_size, status.st_mtim.tv_sec,
                          status.st_mtim.tv_nsec};
        const auto known = whole_.constFind(file.key());
        if ((known != whole_.cend() && *known == state) || !seen.open(QIODevice::ReadOnly)) {
            continue;
        }
        if (seen.readAll() == *file) {
            whole_.insert(file.key(), state);
        } else {
            halfFiles_ += file.key();
        }
    }
    ++looks_;
}

}  // namespace nubivane::testing
