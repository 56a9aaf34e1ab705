// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/shp_selector.h"
#include "windows/canvas/sprite_stack.h"

#include <QObject>

#include <optional>
#include <vector>

namespace nubivane {

/// The selected sprites. The one that was selected last stands in `cStatus`, as if it were alone;
/// the others stand here. Each has a border; that of one alone (`shpSelector`) has handles.
class Selection : public QObject {
    Q_OBJECT

  public:
    Selection(Workspace& workspace, SpriteStack& sprites);

    /// Makes a control's sprite the whole selection and puts the border around it.
    void select(SpriteControl& control);
    /// Makes sprites the selection, of which the last one counts most. Those that have no control
    /// are passed over.
    void selectAll(const std::vector<SpriteId>& ids);
    /// Takes a control's sprite into the selection, or out of it.
    void toggle(const SpriteControl& control);
    /// A sprite is about to leave the Frame.
    void forget(const SpriteId& id);
    /// `selectSprite`: the border alone, for a sprite whose type and key are set already.
    void selectSprite(SpriteControl& control);
    /// Does nothing unless something is selected.
    void clearSelection();
    /// Puts the borders around the controls again after they have moved.
    void follow();
    /// Puts the border, if there is one, around a rectangle of the map.
    void surround(const QRect& sprite);
    /// How large the map is shown: borders keep their size on the screen.
    void setZoom(Zoom zoom);
    /// Drags a handle of the border, taken at `grip` from its sides, to a position of the map; the
    /// border must be there.
    void dragHandle(ShpSelector::Handle handle, QPoint position, QPoint grip);
    /// Takes the borders off; the sprites stay selected.
    void hideBorder();
    /// Puts them on again.
    void showBorder();

    bool isEmpty() const;
    bool contains(const SpriteId& id) const;
    /// The names of all that is selected, the last one last.
    std::vector<SpriteId> ids() const;
    /// Their controls, from bottom to top.
    std::vector<SpriteControl*> controls() const;
    /// The control that was selected last, or nothing.
    SpriteControl* control() const;
    /// The border; absent during a drag and while nothing is selected.
    ShpSelector* shpSelector() { return selector_ ? &*selector_ : nullptr; }
    const ShpSelector* shpSelector() const { return selector_ ? &*selector_ : nullptr; }
    /// The borders of the others.
    const std::vector<ShpSelector>& otherBorders() const { return otherBorders_; }

  Q_SIGNALS:
    void changed(const QRect& area);  ///< of the map, to be painted again
    void commandsChanged();           ///< commands that depend on the selection

  private:
    ShpSelector borderOf(const SpriteControl& control, bool alone) const;
    void makeOtherBorders();
    void put(std::vector<SpriteId> ids);
    void tellBorders();

    Workspace& workspace_;
    SpriteStack& sprites_;
    Zoom zoom_;
    std::vector<SpriteId> others_;  ///< in the order in which they were selected
    std::optional<ShpSelector> selector_;
    std::vector<ShpSelector> otherBorders_;
};

}  // namespace nubivane
