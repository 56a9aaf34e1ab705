// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprites.h"
#include "engine/model/symbols_collection.h"

#include <QString>

#include <optional>

namespace nubivane {

/// The drawing tools. The first one leaves the map alone; the last ones draw the figures of weather
/// maps, each a group of them.
enum class Tool {
    cursor,
    draw,
    erase,
    color,
    line,
    curvy,
    circle,
    poly,
    front,
    isoline,
    area,
    arrow,
    text
};

constexpr bool isWeatherTool(Tool tool) {
    return tool >= Tool::front;
}

/// What is current in the editor: a record that all windows read and write. Made once and never
/// replaced; opening and creating projects only rewrite its fields.
class cStatus {
  public:
    QString CurrentMap;                                  ///< full path of the map under every Frame
    qint16 CurrentFrame = 1;                             ///< number of the Frame on the canvas
    qint16 CurrentShapeControlType = sprite_type::None;  ///< kind of the selected sprite
    QString CurrentShapeControlKey;                      ///< its `Key_`
    Tool CurrentTool = Tool::cursor;
    QString CurrentProject;  ///< full path of the ".nvpf" file; empty when never saved
    QString Tag;             ///< free slot; windows answer by what they return

    /// The selected sprite of the current Frame, or nothing.
    std::optional<SpriteId> selectedSprite() const {
        if (CurrentShapeControlType == sprite_type::None || CurrentShapeControlKey.isEmpty()) {
            return std::nullopt;
        }
        return SpriteId{static_cast<SpriteKind>(CurrentShapeControlType), CurrentShapeControlKey};
    }
    void selectSprite(const std::optional<SpriteId>& id) {
        CurrentShapeControlType = id ? static_cast<qint16>(id->kind) : sprite_type::None;
        CurrentShapeControlKey = id ? id->key : QString();
    }

    /// The collections on disk: the same list for the whole run, refilled but never replaced.
    cSymbolsCollections& SymbolsCollection() { return collections_; }
    const cSymbolsCollections& SymbolsCollection() const { return collections_; }

  private:
    cSymbolsCollections collections_;
};

}  // namespace nubivane
