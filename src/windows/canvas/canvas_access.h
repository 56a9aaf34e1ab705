// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>

#include <vector>

namespace nubivane {

class MapCanvas;

/// The map as assistive technology sees it: a canvas whose children are the sprites, from bottom to
/// top, each with its name, place, whether it is selected, and what can be done with it.
class CanvasAccess : public QAccessibleWidget {
  public:
    explicit CanvasAccess(MapCanvas& canvas);
    ~CanvasAccess() override;

    /// Has a map described in this way from now on.
    static void install(MapCanvas& canvas);
    /// Tells that another sprite is selected.
    static void tellSelection(MapCanvas& canvas);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

  private:
    class Sprite;
    Sprite* spriteAt(std::size_t index) const;

    MapCanvas& canvas_;
    mutable std::vector<QAccessible::Id> sprites_;  ///< those asked for so far
};

}  // namespace nubivane
