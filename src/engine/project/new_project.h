// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"

namespace nubivane {

/// Starts a project with one empty Frame on the map of the old one, after the guard. False when the
/// person chose to stay. Raises `Error` when the map cannot be read; the editor cannot go on then.
bool newProject(Editor editor);

}  // namespace nubivane
