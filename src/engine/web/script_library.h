// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/text_lines.h"

namespace nubivane {

/// What the functions of `writeFrameScript` depend on.
struct FrameScript {
    qint32 frameCount;
    bool hasTitles;
    bool timed;  ///< each call moves on to the next Frame by itself
    bool effects;
    bool showForecastText;
};

/// The browser test under which transitions run.
extern const char TransitionTest[];

/// Writes the script functions that hide and show the elements of one Frame at a time:
/// `_showSprite`, `_Hide`, `_Show` and `_Render`.
void writeFrameScript(TextLines& out, const FrameScript& options);

}  // namespace nubivane
