// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprites.h"

#include <QStringList>

#include <optional>

namespace nubivane {

/// What a drag carries from the palette to the map, as text: "symbol|<file>", with further files
/// behind it where several are dragged, or "text". Any program
/// may drop a text on the map, so nothing in it is believed: the file may be missing, be no picture
/// or stand anywhere.
struct SpritePayload {
    qint16 type;              ///< `sprite_type::Symbol` or `sprite_type::Label`
    QString file;             ///< path text of a Symbol's picture, empty for a Label
    QStringList others = {};  ///< pictures of further Symbols

    QString text() const;
    /// What a dropped text asks for; nothing when it is no payload.
    static std::optional<SpritePayload> read(const QString& text);
};

}  // namespace nubivane
