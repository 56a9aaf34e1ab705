// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHashFunctions>
#include <QString>

namespace nubivane {

/// Kinds of sprite. The values are those of `Type_`.
enum class SpriteKind : qint16 { Symbol = 1, Label = 2 };

/// Who a sprite of a Frame is: its kind and its key in the list of that kind. A Symbol and a Label
/// of one Frame may bear the same key.
struct SpriteId {
    SpriteKind kind = SpriteKind::Symbol;
    QString key;

    friend bool operator==(const SpriteId&, const SpriteId&) = default;
};

inline size_t qHash(const SpriteId& id, size_t seed = 0) {
    return qHashMulti(seed, static_cast<qint16>(id.kind), id.key);
}

}  // namespace nubivane
