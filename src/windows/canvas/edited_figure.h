// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane {

/// The figure that is being drawn on the canvas and not part of the map yet, for those who have to
/// be told of it. Positions are pixels of the map.
class EditedFigure {
  public:
    virtual ~EditedFigure() = default;

    /// What people call it.
    virtual QString figureName() const = 0;
    /// The points that it goes through or is bent by; none while no figure is drawn.
    virtual std::vector<QPoint> figurePoints() const = 0;
    /// The point that keys work on, of a figure whose points can be taken in hand.
    virtual std::optional<int> pointInHand() const = 0;
    /// Does nothing for a figure whose points cannot.
    virtual void takePointInHand(int index) = 0;
    virtual void removePoint(int index) = 0;

    virtual void applyFigure() = 0;
    virtual void dropFigure() = 0;
};

}  // namespace nubivane
