// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/canvas_clock.h"
#include "windows/canvas/map_canvas.h"
#include "windows/canvas/selection.h"
#include "windows/canvas/sprite_mouse.h"
#include "windows/canvas/sprite_placement.h"
#include "windows/canvas/sprite_stack.h"
#include "windows/drawing/map_drawing.h"

namespace nubivane {

class AnimationCache;
class Shell;

/// The canvas with all that lives on it, wired together: layers, sprites, selection, gestures,
/// drawing and the clock.
class FrameCanvas {
  public:
    FrameCanvas(Workspace& workspace, AnimationCache& animations, Shell& shell, QWidget* parent);

    MapCanvas& widget() { return *widget_; }
    SpriteStack& sprites() { return sprites_; }
    Selection& selection() { return selection_; }
    SpriteMouse& mouse() { return mouse_; }
    SpritePlacement& placement() { return placement_; }
    CanvasClock& clock() { return clock_; }
    MapDrawing& drawing() { return drawing_; }

    /// Drops what is unfinished: the scratch layer and a gesture under way.
    void resetDrawing();

    /// Shows a Frame's picture, the bare map where it has none, and its sprites.
    void showFrame(qint32 frame);

  private:
    Workspace& workspace_;
    SpriteStack sprites_;
    Selection selection_;
    CanvasClock clock_;
    SpriteMouse mouse_;
    SpritePlacement placement_;
    MapDrawing drawing_;
    MapCanvas* widget_;  ///< owned by its parent
};

}  // namespace nubivane
