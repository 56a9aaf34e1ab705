// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprite_id.h"

namespace nubivane {

class Workspace;

/// What people call a sprite of the current Frame: the file of a Symbol without its ending, the
/// text of a Label. Empty for one that is not there.
QString spriteName(const Workspace& workspace, const SpriteId& id);

}  // namespace nubivane
