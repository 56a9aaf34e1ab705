// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/selection.h"

#include <QPoint>
#include <QString>

namespace nubivane {

class Shell;

/// Makes new sprites where something is dropped on the map.
class SpritePlacement {
  public:
    SpritePlacement(Workspace& workspace, SpriteStack& sprites, Selection& selection, Shell& shell);

    /// Places what a drag's payload names ("symbol|<file>" or "text") centred on a position of the
    /// map, wholly inside it, and selects it. Any other payload does nothing.
    void drop(const QString& payload, QPoint position);

  private:
    void dropSymbol(const QString& file, QPoint position);
    void dropLabel(QPoint position);
    void place(const char* name, SpriteRecord record);

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    Shell& shell_;
};

}  // namespace nubivane
