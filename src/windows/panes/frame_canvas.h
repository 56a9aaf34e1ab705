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
class LabelEditor;
class Shell;

/// The canvas with all that lives on it, wired together: layers, sprites, selection, gestures,
/// drawing and the clock.
class FrameCanvas : private EditWatcher {
  public:
    /// `dropAllowed` tells whether a drop on the map would be taken now.
    FrameCanvas(Workspace& workspace, AnimationCache& animations, Shell& shell,
                std::function<bool()> dropAllowed, QWidget* parent);
    ~FrameCanvas() override;

    MapCanvas& widget() { return *widget_; }
    SpriteStack& sprites() { return sprites_; }
    Selection& selection() { return selection_; }
    SpriteMouse& mouse() { return mouse_; }
    SpritePlacement& placement() { return placement_; }
    CanvasClock& clock() { return clock_; }
    MapDrawing& drawing() { return drawing_; }
    LabelEditor& labelEditor() { return *labelEditor_; }

    /// Drops what is unfinished: the scratch layer and a gesture under way.
    void resetDrawing();

  private:
    // EditWatcher: what stands on the canvas follows the project.
    void travelBegins() override { resetDrawing(); }
    void framesWillChange() override;
    void framesChanged() override;
    void spriteAdded(qint32 frame, const SpriteId& id, Arrival arrival,
                     std::optional<int> depth) override;
    void spriteWillGo(qint32 frame, const SpriteId& id) override;
    void spriteChanged(qint32 frame, const SpriteRecord& before,
                       const SpriteRecord& after) override;
    void spritesReordered(qint32 frame) override;
    void spritesWillBeReplaced(qint32 frame) override;
    void spritesReplaced(qint32 frame) override;
    void pictureChanged(const QRect& area) override;

    bool isShown(qint32 frame) const { return frame == workspace_.Status.CurrentFrame; }

    Workspace& workspace_;
    SpriteStack sprites_;
    Selection selection_;
    CanvasClock clock_;
    SpriteMouse mouse_;
    SpritePlacement placement_;
    MapDrawing drawing_;
    MapCanvas* widget_;         ///< owned by its parent
    LabelEditor* labelEditor_;  ///< owned by the canvas
};

}  // namespace nubivane
