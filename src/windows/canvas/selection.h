// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/shp_selector.h"
#include "windows/canvas/sprite_stack.h"

#include <QObject>

#include <optional>

namespace nubivane {

/// The one selected sprite: its type and key stand in `cStatus`, its border (`shpSelector`) here.
class Selection : public QObject {
    Q_OBJECT

  public:
    Selection(Workspace& workspace, SpriteStack& sprites);

    /// Makes a control's sprite the selection and puts the border around it.
    void select(SpriteControl& control);
    /// `selectSprite`: the border alone, for a sprite whose type and key are set already.
    void selectSprite(SpriteControl& control);
    /// Does nothing unless something is selected.
    void clearSelection();
    /// Puts the border around the control again after it has moved.
    void follow();
    /// Puts the border, if there is one, around a rectangle of the map.
    void surround(const QRect& sprite);
    /// Drags a handle of the border, gripped beside its sides, to a position of the map; the border
    /// must be there.
    void dragHandle(ShpSelector::Handle handle, QPoint position, QPoint grip);
    /// The map is shown larger or smaller.
    void setZoom(Zoom zoom);
    /// Takes the border off; the sprite stays selected.
    void hideBorder();

    bool isEmpty() const;
    /// The selected control, or nothing.
    SpriteControl* control() const;
    /// The border; absent during a drag and while nothing is selected.
    ShpSelector* shpSelector() { return selector_ ? &*selector_ : nullptr; }
    const ShpSelector* shpSelector() const { return selector_ ? &*selector_ : nullptr; }

  Q_SIGNALS:
    void changed(const QRect& area);  ///< of the map, to be painted again
    void commandsChanged();           ///< commands that depend on the selection

  private:
    Workspace& workspace_;
    SpriteStack& sprites_;
    Zoom zoom_;
    std::optional<ShpSelector> selector_;
};

}  // namespace nubivane
