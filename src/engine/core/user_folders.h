// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where a user's own files lie, by the XDG base directory standard; host paths. A variable
/// that holds no absolute path counts as unset. All raise `Error` (FileAccess) for a user who has
/// no home: neither HOME nor the system's list of users tells of one.
namespace nubivane::user_folders {

/// The home folder. Without HOME it is the one that the list of users has.
QString home();

QString config();  ///< XDG_CONFIG_HOME, else ".config" at home
QString data();    ///< XDG_DATA_HOME, else ".local/share" at home
QString state();   ///< XDG_STATE_HOME, else ".local/state" at home

/// A folder that nobody else can write, for sockets: "nubivane" in XDG_RUNTIME_DIR where that is
/// the user's own, else "Nubivane/run" in `state`. Made where it is missing. Raises `Error` where
/// neither can be had.
QString runtime();

}  // namespace nubivane::user_folders
