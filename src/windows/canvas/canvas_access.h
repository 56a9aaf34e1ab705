// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprite_id.h"

#include <QAccessibleWidget>
#include <QHash>

namespace nubivane {

class FigureAccess;
class MapCanvas;
class SpriteAccess;

/// The map as assistive technology sees it: a canvas whose children are the sprites, from bottom to
/// top, and then the figure that is being drawn, each with its name, place, whether it is selected,
/// and what can be done with it.
class CanvasAccess : public QAccessibleWidget {
  public:
    explicit CanvasAccess(MapCanvas& canvas);
    ~CanvasAccess() override;

    /// Has a map described in this way from now on, and told what changes on it.
    static void install(MapCanvas& canvas);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    /// The child for a sprite that is there.
    SpriteAccess& spriteAt(int index) const;
    /// That for the figure, whether or not one is being drawn.
    FigureAccess& figure() const;

  private:
    int spriteCount() const;
    void forgetGone() const;

    MapCanvas& canvas_;
    mutable QHash<SpriteId, QAccessible::Id> sprites_;  ///< those asked for so far
    mutable QAccessible::Id figure_ = 0;
};

}  // namespace nubivane
