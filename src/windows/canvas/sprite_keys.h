// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/selection.h"

class QKeyEvent;

namespace nubivane {

/// Shift and an arrow key nudge the selected sprite by one pixel, at most until its centre reaches
/// the edge of the map. Where the map has the keyboard (`onMap`) an arrow alone does the same, and
/// with Ctrl ten times. Several sprites stay inside the map. True when the key was one of these.
bool nudgeSelection(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                    const QKeyEvent& key, bool onMap);

/// Page Down selects the sprite above the selected one, Page Up the one below, round and round.
/// True when the key was one of these.
bool stepSelection(const Workspace& workspace, const SpriteStack& sprites, Selection& selection,
                   const QKeyEvent& key);

}  // namespace nubivane
