// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <sys/stat.h>

#include <atomic>
#include <mutex>
#include <thread>

namespace nubivane::testing {

/// Looks at a folder all the while, as the readers of a site do, and writes down every file that
/// stood under the name of one of the site without being whole.
class TreeWatcher {
  public:
    /// `site` holds the contents that may be met, by path below `root`.
    TreeWatcher(const QString& root, const QMap<QString, QByteArray>& site);
    ~TreeWatcher();

    /// While the folder is emptied by the test itself.
    void pause() { mutex_.lock(); }
    void resume() { mutex_.unlock(); }

    QStringList halfFiles() const;
    int looks() const { return looks_; }

  private:
    /// What changes whenever a file is replaced or written to.
    struct State {
        ino_t inode;
        off_t size;
        time_t seconds;
        long nanoseconds;
        bool operator==(const State&) const = default;
    };

    void watch();
    void look();

    const QString root_;
    const QMap<QString, QByteArray> site_;
    QMap<QString, State> whole_;  ///< when it was read last
    mutable std::mutex mutex_;
    QStringList halfFiles_;
    std::atomic<int> looks_ = 0;
    std::atomic<bool> over_ = false;
    std::thread thread_;
};

}  // namespace nubivane::testing
