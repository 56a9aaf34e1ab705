// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"

namespace nubivane {

/// Saves the project under `Status.CurrentProject`, asking for a name when there is none or when
/// `saveAs` is set. True after success. False when there is no name to save under, or after a
/// failure, which is told in a message; both files are then as they were, unless the failure came
/// between their two renames, when the next opening completes the save.
bool saveProject(Editor editor, bool saveAs);

/// Puts the canvas into its Frame's panel and shows that panel's picture again: to be called after
/// a save, whose work on the panels disturbs the persistent layer.
void restorePersistentLayer(Editor editor);

/// The guard before work is lost: offers to save a changed project. False when the person cancels
/// or the save does not succeed.
bool confirmLeavingProject(Editor editor);

}  // namespace nubivane
