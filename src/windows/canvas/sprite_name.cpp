// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_name.h"

#include "engine/core/path_text.h"
#include "engine/model/workspace.h"

namespace nubivane {

QString spriteName(const Workspace& workspace, const SpriteId& id) {
    const qint32 shown = workspace.Status.CurrentFrame;
    if (shown < 1 || shown > workspace.Frames().Count()) {
        return {};
    }
    const cSprites& sprites = workspace.Frames().Item(shown).Sprites();
    if (!sprites.contains(id)) {
        return {};
    }
    return id.kind == SpriteKind::Symbol
               ? stripExtension(getFileName(sprites.Symbols().Item(id.key).PathFileGif))
               : sprites.Labels().Item(id.key).Text.simplified();
}

}  // namespace nubivane
