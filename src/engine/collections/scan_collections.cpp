// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/scan_collections.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/program_folder.h"
#include "engine/core/settings_store.h"

namespace nubivane {

void scanCollections(cSymbolsCollections& list, const ProgramFolder& folder) {
    const QStringList names = host_files::folderNames(folder.symbols());
    QStringList checked;
    for (qint32 i = list.Count(); i >= 1; --i) {
        const cSymbolsCollection& collection = list.Item(i);
        if (!names.contains(getFileName(collection.Path))) {
            // Gone, or there under another spelling, which takes over whether it is shown.
            if (collection.Checked) {
                checked << collection.Name;
            }
            list.Remove(i);
        }
    }
    for (const QString& name : names) {
        if (!list.contains(name)) {
            list.Add(folder.symbols() + u'\\' + name, name).Checked =
                checked.contains(name, Qt::CaseInsensitive);
        }
    }
}

void reloadCollections(cSymbolsCollections& list, const ProgramFolder& folder) {
    list.Clear();
    scanCollections(list, folder);
}

void saveCheckedCollections(const cSymbolsCollections& list, SettingsStore& settings) {
    QStringList checked;
    for (const cSymbolsCollection& collection : list) {
        if (collection.Checked) {
            checked += collection.Name;
        }
    }
    settings.setList(SettingList::CheckedCollections, checked);
}

}  // namespace nubivane
