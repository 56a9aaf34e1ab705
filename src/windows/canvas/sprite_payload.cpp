// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_payload.h"

#include "engine/core/path_text.h"

namespace nubivane {

using namespace Qt::StringLiterals;

QString SpritePayload::text() const {
    return type == sprite_type::Symbol ? (QStringList{u"symbol"_s, file} + others).join(u'|')
                                       : u"text"_s;
}

std::optional<SpritePayload> SpritePayload::read(const QString& text) {
    const QString kind = getField(text, 1);
    if (kind == u"symbol") {
        return SpritePayload{sprite_type::Symbol, getField(text, 2), text.split(u'|').mid(2)};
    }
    if (kind == u"text") {
        return SpritePayload{sprite_type::Label, {}};
    }
    return std::nullopt;
}

}  // namespace nubivane
