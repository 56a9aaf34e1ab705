// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/shell.h"
#include "engine/model/map_surface.h"
#include "windows/properties/property_grid.h"
#include "windows/properties/sprite_on_map.h"

#include <functional>

namespace nubivane {

/// What every refusal of a number says.
QString invalidValue();

/// The rows X and Y of a sprite. It may lie half outside the map on each side.
class PositionRows {
  public:
    PositionRows(PropertyGrid& grid, const PropertyRow& x, const PropertyRow& y, Shell& shell,
                 SpriteOnMap& control, const MapSurface& map);
    PositionRows(const PositionRows&) = delete;
    PositionRows& operator=(const PositionRows&) = delete;

    /// Shows a sprite's position and moves it from now on, while `committing` says so.
    void show(std::function<QPoint()> position, std::function<void(QPoint)> moveTo,
              const std::function<bool()>& committing);

    /// On closing with the keyboard in one of the two, both are checked.
    void closing(const QWidget* active);

  private:
    bool setX(const QString& text);
    bool setY(const QString& text);

    SpriteOnMap& control_;
    const MapSurface& map_;
    CheckedField* txtPosX_;
    CheckedField* txtPosY_;
    std::function<QPoint()> position_;
    std::function<void(QPoint)> moveTo_;
};

}  // namespace nubivane
