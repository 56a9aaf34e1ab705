// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprite_id.h"

#include <QPoint>

#include <optional>
#include <vector>

namespace nubivane {

class DragMarks;
class Selection;
class SpriteStack;

/// Selects what lies under a rectangle that is dragged over the bare map. Pixels of the map.
class RubberBand {
  public:
    RubberBand(SpriteStack& sprites, Selection& selection, DragMarks& marks)
        : sprites_(sprites), selection_(selection), marks_(marks) {}

    /// With `adds` what is selected already stays so.
    void begin(QPoint position, bool adds);
    void moveTo(QPoint position);
    void end();
    /// Leaves the selection as it was.
    void cancel();

    bool isUnderWay() const { return from_.has_value(); }

  private:
    SpriteStack& sprites_;
    Selection& selection_;
    DragMarks& marks_;
    std::optional<QPoint> from_;
    std::vector<SpriteId> before_;
};

}  // namespace nubivane
