// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/shp_selector.h"
#include "windows/canvas/sprite_stack.h"

#include <functional>
#include <optional>

namespace nubivane {

/// The one selected sprite: its type and key stand in `cStatus`, its frame (`shpSelector`) here.
class Selection {
  public:
    Selection(Workspace& workspace, SpriteStack& sprites);

    std::function<void(const QRect&)> changed;  ///< area of the map to be painted again
    std::function<void()> commandsChanged;      ///< commands that depend on the selection

    /// Makes a control's sprite the selection and puts the frame around it.
    void select(SpriteControl& control);
    /// `selectSprite`: the frame alone, for a sprite whose type and key are set already.
    void selectSprite(SpriteControl& control);
    /// Does nothing unless something is selected.
    void clearSelection();
    /// Puts the frame around the control again after it has moved.
    void follow();
    /// Puts the frame, if there is one, around a rectangle of the map.
    void surround(const QRect& sprite);
    /// Takes the frame off; the sprite stays selected.
    void hideFrame();

    bool isEmpty() const;
    /// The selected control, or nothing.
    SpriteControl* control() const;
    /// The frame; absent during a drag and while nothing is selected.
    ShpSelector* shpSelector() { return selector_ ? &*selector_ : nullptr; }
    const ShpSelector* shpSelector() const { return selector_ ? &*selector_ : nullptr; }

  private:
    Workspace& workspace_;
    SpriteStack& sprites_;
    std::optional<ShpSelector> selector_;
};

}  // namespace nubivane
