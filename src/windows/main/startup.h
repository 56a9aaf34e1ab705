// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

namespace nubivane {

/// Steps of starting that need no window.

/// Makes sure of the folders: "\Maps" at the first start, "\Symbols" at the next.
void prepareFolders(const ProgramFolder& folder);

/// Empties and removes "\~temp", a leftover of a crash.
void removeTemporaryFolder(const ProgramFolder& folder);

/// Fills the list of collections and checks those that were checked last; where none is left,
/// "set-1" if it is there. Returns their paths in the order in which they are to be shown.
QStringList restoreCheckedCollections(Workspace& workspace);

/// Makes the map of the last run the current one, or the default map. Raises `Error` when that
/// cannot be read either.
void loadStartMap(Workspace& workspace);

/// Stores the footer of pages when there is none yet.
void ensurePoweredLabel(SettingsStore& settings);

}  // namespace nubivane
