// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recent_files.h"

#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/model/editor_view.h"

namespace nubivane {

namespace {

constexpr qsizetype MaxRecentFiles = 4;

}  // namespace

void addRecentFile(SettingsStore& settings, EditorView& view, const QString& path) {
    if (trimBlanks(path).isEmpty()) {
        return;
    }
    QStringList files = settings.list(SettingList::RecentFiles);
    files.removeAll(path);
    files.prepend(path);
    settings.setList(SettingList::RecentFiles, files.mid(0, MaxRecentFiles));
    view.refreshRecentFiles();
}

}  // namespace nubivane
