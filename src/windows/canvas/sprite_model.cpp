// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_model.h"

namespace nubivane::sprite_model {

namespace {

/// Calls `use` with the sprite if it is there.
template <class Sprites, class Use>
void withSprite(Sprites& sprites, const QString& type, const QString& key, Use use) {
    if (type == u"1" && sprites.Symbols().contains(key)) {
        use(sprites.Symbols().Item(key));
    } else if (type == u"2" && sprites.Labels().contains(key)) {
        use(sprites.Labels().Item(key));
    }
}

}  // namespace

void setPosition(cFrame& frame, const QString& type, const QString& key, QPoint position) {
    withSprite(frame.Sprites(), type, key, [position](auto& sprite) {
        sprite.PosX = position.x();
        sprite.PosY = position.y();
    });
}

std::optional<QPoint> position(const cFrame& frame, const QString& type, const QString& key) {
    std::optional<QPoint> found;
    withSprite(frame.Sprites(), type, key,
               [&found](auto& sprite) { found = QPoint(sprite.PosX, sprite.PosY); });
    return found;
}

}  // namespace nubivane::sprite_model
