// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QRect>

namespace nubivane {

/// Sprites of a Frame by type ("1" Symbol, "2" Label) and key, as a control's tag names them, for
/// edits that are the same for both kinds. A sprite that is gone is passed over.
namespace sprite_model {

/// Writes the position of a sprite.
void setPosition(cFrame& frame, const QString& type, const QString& key, QPoint position);

/// The position of a sprite, or nothing.
std::optional<QPoint> position(const cFrame& frame, const QString& type, const QString& key);

}  // namespace sprite_model

}  // namespace nubivane
