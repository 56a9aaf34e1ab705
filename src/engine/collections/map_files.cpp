// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/map_files.h"

#include "engine/collections/entry_names.h"
#include "engine/collections/picture_check.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// The setting holds a path or a bare name, whoever wrote it last.
QString nameIn(const QString& setting) {
    return trimBlanks(getFileName(setting)).toLower();
}

}  // namespace

QString mapPath(const ProgramFolder& folder, const QString& name) {
    return folder.path() + u"\\maps\\"_s + name;
}

QStringList mapNames(const ProgramFolder& folder) {
    QStringList names;
    for (const QString& name : host_files::fileNames(folder.maps())) {
        if (hasPictureExtension(name) && host_files::isPlainName(name)) {
            names << name;
        }
    }
    std::stable_sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    return names;
}

bool isCurrentMap(const Workspace& workspace, const QString& path) {
    return path.toLower() == workspace.Status.CurrentMap.toLower();
}

QString defaultMapName(const Workspace& workspace) {
    const SettingRow& row = rowOf(Setting::CurrentMap);
    return nameIn(workspace.settings.GetSetting(QLatin1String(row.section),
                                                QLatin1String(row.group), QLatin1String(row.key),
                                                workspace.folder.entry(u"europe.jpg"_s)));
}

QString firstMapName(const SettingsStore& settings) {
    return nameIn(settings.text(Setting::CurrentMapInDialog));
}

void setDefaultMap(SettingsStore& settings, const QString& name) {
    settings.set(Setting::CurrentMap, name);
}

QString renameMap(Workspace& workspace, const QString& name, const QString& newStem) {
    const QString newName = newStem + u'.' + getExtension(name);
    if (newName.toLower() == name.toLower()) {
        return {};
    }
    if (!isValidEntryName(newStem) || !isValidEntryName(newName)) {
        return QStringLiteral("Name not valid");
    }
    const QString newPath = mapPath(workspace.folder, newName);
    if (host_files::fileExists(newPath) || host_files::folderExists(newPath)) {
        return QStringLiteral("A map with the same name already exists.");
    }
    const QString path = mapPath(workspace.folder, name);
    if (isCurrentMap(workspace, path)) {
        return QStringLiteral("Cannot rename: the map is currently used into the project.");
    }
    host_files::rename(path, newName);
    return {};
}

QString deletingMapRefusal(const Workspace& workspace, const QString& name) {
    return isCurrentMap(workspace, mapPath(workspace.folder, name))
               ? QStringLiteral("Cannot delete: the map is in use by the project")
               : QString();
}

}  // namespace nubivane
