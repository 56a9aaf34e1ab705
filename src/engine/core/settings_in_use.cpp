// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_in_use.h"

#include <algorithm>

namespace nubivane {

namespace {

bool same(const QString& text, const char* name) {
    return text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

bool isPlaceIn(SettingList list, const QString& section, const QString& group, const QString& key) {
    const SettingListRow& row = rowOf(list);
    return key.toInt() > 0 && same(section, row.section) && same(group, row.group);
}

}  // namespace

bool isRead(Setting setting) {
    using enum Setting;
    return setting != WindowFormTop && setting != WindowFormLeft && setting != WindowFormWidth &&
           setting != WindowFormHeight;
}

bool isRead(const QString& section, const QString& group, const QString& key) {
    const std::span<const SettingRow> rows = settingsTable();
    return std::any_of(rows.begin(), rows.end(),
                       [&](const SettingRow& row) {
                           return isRead(row.setting) && same(section, row.section) &&
                                  same(group, row.group) && same(key, row.key);
                       }) ||
           isPlaceIn(SettingList::CheckedCollections, section, group, key) ||
           isPlaceIn(SettingList::RecentFiles, section, group, key) ||
           isPlaceIn(SettingList::FavouriteSymbols, section, group, key) ||
           isPlaceIn(SettingList::RecentSymbols, section, group, key);
}

}  // namespace nubivane
