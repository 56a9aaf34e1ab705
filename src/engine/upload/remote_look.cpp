// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/remote_look.h"

#include "engine/upload/site_contents.h"

#include <QRandomGenerator>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// With more folders than these the quick way to list them is tried.
constexpr qsizetype FewFolders = 3;
/// With more than these not each is listed.
constexpr qsizetype ManyFolders = 6;
constexpr int ListedTwice = 2;

QStringList parentsOf(const QStringList& folders) {
    QSet<QString> parents;
    for (const QString& folder : folders) {
        if (!folder.isEmpty()) {
            parents.insert(folderOf(folder));
        }
    }
    QStringList list(parents.cbegin(), parents.cend());
    list.sort();
    return list;
}

}  // namespace

const RemoteEntry* find(const RemoteListing& listing, const QString& name) {
    const auto entry = std::find_if(listing.begin(), listing.end(),
                                    [&](const RemoteEntry& one) { return one.name == name; });
    return entry == listing.end() ? nullptr : &*entry;
}

RemoteLook::RemoteLook(Transfer& target, QString way, ServerMemory& memory)
    : target_(target), way_(std::move(way)), memory_(memory) {}

bool RemoteLook::list(const QString& folder, bool quickly) {
    QString place = way_ + folder;
    while (place.endsWith(u'/')) {
        place.chop(1);
    }
    if (place.isEmpty()) {
        place = u"."_s;
    }
    auto listing = quickly ? target_.listQuickly(place) : target_.list(place);
    if (listing) {
        seen_.insert_or_assign(folder, std::move(*listing));
    }
    return listing.has_value();
}

/// Where the folder stands in the listing of the one above it, which has been made.
const RemoteEntry* RemoteLook::entryOf(const QString& folder) const {
    const auto parent = seen_.find(folderOf(folder));
    return parent == seen_.end() ? nullptr : find(parent->second, folder.section(u'/', -1));
}

bool RemoteLook::listParents(const QStringList& folders) {
    bool all = true;
    for (const QString& parent : parentsOf(folders)) {
        all = list(parent, false) && all;
    }
    return all;
}

bool RemoteLook::at(const QStringList& folders) {
    seen_.clear();
    granted_.clear();
    const bool many = folders.size() > ManyFolders && !memory_.times.isEmpty();
    bool all = !many || listParents(folders);
    for (const QString& folder : folders) {
        const RemoteEntry* entry = many && !folder.isEmpty() ? entryOf(folder) : nullptr;
        if (entry && !entry->modified.isEmpty() && entry->modified == memory_.times.value(folder)) {
            granted_.insert(folder);
        } else if (!seen_.contains(folder)) {
            all = list(folder, folders.size() > FewFolders) && all;
        }
    }
    return all;
}

void RemoteLook::lookTwice() {
    for (int i = 0; i < ListedTwice && !granted_.isEmpty(); ++i) {
        const auto which = QRandomGenerator::global()->bounded(static_cast<int>(granted_.size()));
        const QString folder = *std::next(granted_.cbegin(), which);
        if (list(folder, true)) {
            granted_.remove(folder);
        }
    }
}

void RemoteLook::remember(const QStringList& folders, const QStringList& changed) {
    if (folders.size() <= ManyFolders) {
        return;
    }
    listParents(changed);
    for (const QString& folder : changed) {
        const RemoteEntry* entry = folder.isEmpty() ? nullptr : entryOf(folder);
        if (entry && !entry->modified.isEmpty()) {
            memory_.times.insert(folder, entry->modified);
        } else {
            memory_.times.remove(folder);
        }
    }
}

}  // namespace nubivane
