// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QString>

namespace nubivane::testing {

/// All that a project is, as text: Frames with captions, texts and sprites in order, and a sum over
/// the pixels of each Frame's picture. What only tells where something stands on the screen of the
/// moment is left out.
QString snapshotOf(const Workspace& workspace);

}  // namespace nubivane::testing
