// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprites.h"
#include "engine/model/symbols_collection.h"

#include <QString>

namespace nubivane {

/// What is current in the editor: a record that all windows read and write. Made once and never
/// replaced; opening and creating projects only rewrite its fields.
class cStatus {
  public:
    QString CurrentMap;                                  ///< full path of the map under every Frame
    qint16 CurrentFrame = 1;                             ///< number of the Frame on the canvas
    qint16 CurrentShapeControlType = sprite_type::None;  ///< kind of the selected sprite
    QString CurrentShapeControlKey;                      ///< its `Key_`
    QString CurrentTool = QStringLiteral("cursor");
    QString CurrentProject;  ///< full path of the ".nvpf" file; empty when never saved
    QString Tag;             ///< hand-over slot between a dialog and its caller

    /// The collections on disk: the same list for the whole run, refilled but never replaced.
    cSymbolsCollections& SymbolsCollection() { return collections_; }
    const cSymbolsCollections& SymbolsCollection() const { return collections_; }

  private:
    cSymbolsCollections collections_;
};

}  // namespace nubivane
