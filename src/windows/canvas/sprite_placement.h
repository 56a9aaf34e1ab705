// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/selection.h"

#include <QPoint>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane {

class Shell;

/// Makes new sprites where something is dropped on the map.
class SpritePlacement {
  public:
    SpritePlacement(Workspace& workspace, SpriteStack& sprites, Selection& selection, Shell& shell);

    /// Places what a drag's payload names ("symbol|<file>" or "text") centred on a position of the
    /// map, wholly inside it, and selects it; further symbols as near to it as there are free
    /// places, all by one edit. Any other payload does nothing.
    void drop(const QString& payload, QPoint position);
    /// The same as near to a position as there is a free place.
    void placeNear(const QString& payload, QPoint position);

  private:
    std::optional<SpriteRecord> symbolAt(const QString& file, QPoint position);
    SpriteRecord labelAt(QPoint position) const;
    std::vector<SpriteRecord> wanted(const QString& payload, QPoint position);
    std::vector<QRect> taken() const;
    void placeAll(std::vector<SpriteRecord> records);
    void place(SpriteRecord record);

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    Shell& shell_;
};

}  // namespace nubivane
