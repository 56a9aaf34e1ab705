// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/animation.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>

namespace nubivane {

/// Decodes each picture file once and shares it among all who show it.
///
/// A file is known by its path, its size and its time of change: one that was replaced is decoded
/// anew, while those who hold the old picture keep it. The cache itself holds no picture: when the
/// last user lets go, the memory goes. A broken file is remembered as broken until it changes.
///
/// Any number of threads may ask at once. Two that ask for one file wait for one decoding; who asks
/// for another file does not wait, so that a worker may fill thumbnails while the canvas plays.
class AnimationCache {
  public:
    /// The decoded file of a path text, or nothing when it is missing, unreadable or broken. Raises
    /// nothing: `Animation::read` tells why a file cannot be shown.
    std::shared_ptr<const Animation> get(const QString& path);

  private:
    /// What tells one content of a file from the next.
    struct Stamp {
        std::filesystem::file_time_type changed;
        std::uintmax_t bytes = 0;
        bool operator==(const Stamp&) const = default;
    };

    /// A file's state; `mutex` guards the rest and is held while the file is decoded.
    struct Entry {
        std::mutex mutex;
        Stamp stamp;
        bool broken = false;
        std::weak_ptr<const Animation> animation;
    };

    static Stamp stampOf(const QString& hostPath);
    std::shared_ptr<Entry> entryOf(const QString& hostPath);
    void dropUnused();

    std::mutex mutex_;  ///< guards `entries_`; never held while a file is decoded
    QHash<QString, std::shared_ptr<Entry>> entries_;
    qsizetype sweepAt_ = 64;  ///< entries at which those that nobody uses are looked for
};

}  // namespace nubivane
