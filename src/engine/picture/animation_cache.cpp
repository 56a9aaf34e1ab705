// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/animation_cache.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"

#include <QFile>

#include <system_error>

namespace nubivane {

std::shared_ptr<const Animation> AnimationCache::get(const QString& path) {
    const QString host = host_files::toHost(path);
    const std::shared_ptr<Entry> entry = entryOf(host);
    const std::lock_guard lock(entry->mutex);

    // Taken before the file is read: a change in between shows at the next call.
    const Stamp stamp = stampOf(host);
    if (entry->stamp == stamp) {
        std::shared_ptr<const Animation> known = entry->animation.lock();
        if (known || entry->broken) {
            return known;
        }
    }
    std::shared_ptr<const Animation> fresh;
    bool broken = false;
    try {
        fresh = std::make_shared<const Animation>(Animation::read(path));
    } catch (const Error& error) {
        // A file that cannot be read may be readable next time without having changed.
        broken = error.number() == error_number::InvalidPicture;
    }
    entry->stamp = stamp;
    entry->broken = broken;
    entry->animation = fresh;
    return fresh;
}

/// By the standard library, whose file times are finer than Qt's milliseconds.
AnimationCache::Stamp AnimationCache::stampOf(const QString& hostPath) {
    const std::filesystem::path path = QFile::encodeName(hostPath).constData();
    std::error_code missing;
    const auto changed = std::filesystem::last_write_time(path, missing);
    return {changed, std::filesystem::file_size(path, missing)};
}

std::shared_ptr<AnimationCache::Entry> AnimationCache::entryOf(const QString& hostPath) {
    const std::lock_guard lock(mutex_);
    const auto known = entries_.constFind(hostPath);
    if (known != entries_.cend()) {
        return *known;
    }
    // Not for each new file: that would be as many looks at every entry as there are files.
    if (entries_.size() >= sweepAt_) {
        dropUnused();
        sweepAt_ = 2 * entries_.size() + 64;
    }
    return *entries_.insert(hostPath, std::make_shared<Entry>());
}

/// Keeps the list no longer than what is in use or broken. An entry that nobody but the list holds
/// is not being decoded, and none can be taken while the list is locked.
void AnimationCache::dropUnused() {
    entries_.removeIf([](const auto& item) {
        const std::shared_ptr<Entry>& entry = item.value();
        if (entry.use_count() > 1) {
            return false;
        }
        const std::lock_guard lock(entry->mutex);
        return !entry->broken && entry->animation.expired();
    });
}

}  // namespace nubivane
