// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

class Workspace;

/// Makes what lies on the scratch layer part of the Frame's picture by an edit, where a command
/// takes the canvas as it looks for the Frame's picture. Nothing where nothing lies there.
void commitUnfinishedDrawing(Workspace& workspace);

}  // namespace nubivane
