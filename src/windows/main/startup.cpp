// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/startup.h"

#include "engine/collections/scan_collections.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/core/version.h"

#include <QDir>

namespace nubivane {

using namespace Qt::StringLiterals;

void prepareFolders(const ProgramFolder& folder) {
    if (!host_files::folderExists(folder.maps())) {
        host_files::makeFolder(folder.maps());
    } else if (!host_files::folderExists(folder.symbols())) {
        host_files::makeFolder(folder.symbols());
    }
}

void removeTemporaryFolder(const ProgramFolder& folder) {
    const QString temporary = folder.entry(u"~temp"_s);
    if (host_files::folderExists(temporary)) {
        host_files::removeFiles(temporary);
        QDir().rmdir(host_files::toHost(temporary));
    }
}

QStringList restoreCheckedCollections(Workspace& workspace) {
    cSymbolsCollections& collections = workspace.Status.SymbolsCollection();
    reloadCollections(collections, workspace.folder);
    QStringList paths;
    const auto check = [&](const QString& name) {
        collections.Item(name).Checked = true;
        paths << collections.Item(name).Path;
    };
    for (const QString& name : workspace.settings.list(SettingList::CheckedCollections)) {
        if (collections.contains(name) && !collections.Item(name).Checked) {
            check(name);
        }
    }
    const QString standard = u"set-1"_s;
    if (paths.isEmpty() && collections.contains(standard)) {
        const SettingListRow& row = rowOf(SettingList::CheckedCollections);
        workspace.settings.SaveSetting(QLatin1String(row.section), QLatin1String(row.group), u"1"_s,
                                       standard);
        check(standard);
    }
    return paths;
}

void loadStartMap(Workspace& workspace) {
    const QString last = workspace.settings.text(Setting::CurrentMap);
    if (!trimBlanks(last).isEmpty() && host_files::fileExists(last)) {
        try {
            workspace.Status.CurrentMap = last;
            workspace.pctMap.setPicture(workspace.loadCurrentMap());
            return;
        } catch (const Error&) {
            // A map that is no picture any more: the default takes over.
        }
    }
    workspace.Status.CurrentMap = workspace.folder.path() + u"\\maps\\europe.jpg"_s;
    workspace.pctMap.setPicture(workspace.loadCurrentMap());
    workspace.settings.set(Setting::CurrentMap, workspace.Status.CurrentMap);
}

void ensurePoweredLabel(SettingsStore& settings) {
    if (settings.text(Setting::PagePoweredLabel).isEmpty()) {
        settings.set(Setting::PagePoweredLabel, QStringLiteral("Powered by nVane ") + Version);
    }
}

}  // namespace nubivane
