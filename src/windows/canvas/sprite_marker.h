// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprite_id.h"

#include <optional>

namespace nubivane {

/// The text that stands on the system clipboard for a copied or cut sprite. The sprite itself
/// stays in the program: the text only tells of it, and any other text that is put in its place
/// ends the paste.
struct SpriteMarker {
    SpriteKind kind;
    bool cut;  ///< the sprite leaves its Frame when it is pasted

    QString text() const;
    /// What a clipboard's text tells; nothing when it is no marker.
    static std::optional<SpriteMarker> read(const QString& text);
};

}  // namespace nubivane
