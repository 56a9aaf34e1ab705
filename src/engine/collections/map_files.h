// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QString>
#include <QStringList>

namespace nubivane {

/// The base maps: the pictures in the folder "maps". Paths of maps are texts with backslashes.

QString mapPath(const ProgramFolder& folder, const QString& name);
/// File names of all maps in the order of their names, in which case counts last.
QStringList mapNames(const ProgramFolder& folder);

/// True when it is the map under the open project. The folder's name is written in more than one
/// way, so case does not count.
bool isCurrentMap(const Workspace& workspace, const QString& path);

/// File name of the default map, in lower case and without outer blanks.
QString defaultMapName(const Workspace& workspace);
/// File name of the map that a list of maps begins with, in the same form.
QString firstMapName(const SettingsStore& settings);
void setDefaultMap(SettingsStore& settings, const QString& name);

/// Gives a map another name; its extension stays. Returns why not; empty after success, for a
/// change of case alone, which does nothing, and where the disk refuses.
QString renameMap(Workspace& workspace, const QString& name, const QString& newStem);

/// Why a map cannot be deleted; empty when it can.
QString deletingMapRefusal(const Workspace& workspace, const QString& name);

}  // namespace nubivane
