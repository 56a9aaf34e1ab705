// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"

#include <QString>

#include <optional>

namespace nubivane {

/// Opens a project in place of the open one; without a file the person is asked for one. Does
/// nothing when the person cancels.
///
/// Raises `Error` with number DamagedProject or UnsupportedVersion and their fixed texts. Damage
/// found inside the Frames or in the pictures leaves what could be read in the workspace; any
/// earlier failure leaves the open project as it was. A file that does not exist raises nothing:
/// the project stays, shown on bare maps, under the missing file's name.
///
/// The project's map is put into the program folder's maps, or into `mapsFolder` where the program
/// folder is to stay as it is; that folder must live as long as the project.
void OpenProject(Editor editor, const std::optional<QString>& file = std::nullopt,
                 const std::optional<QString>& mapsFolder = std::nullopt);

}  // namespace nubivane
