// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_marker.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar First(4);
constexpr QChar Second(5);
constexpr QChar Cut(6);

}  // namespace

QString SpriteMarker::text() const {
    QString text = kind == SpriteKind::Symbol ? u"S"_s : u"T"_s;
    text += First;
    text += Second;
    if (cut) {
        text += Cut;
    }
    return text;
}

std::optional<SpriteMarker> SpriteMarker::read(const QString& text) {
    if (text.size() < 3 || text[1] != First || text[2] != Second) {
        return std::nullopt;
    }
    const bool cut = text.size() > 3 && text[3] == Cut;
    switch (text[0].toUpper().unicode()) {
        case u'S':
            return SpriteMarker{SpriteKind::Symbol, cut};
        case u'T':
            return SpriteMarker{SpriteKind::Label, cut};
        default:
            return std::nullopt;
    }
}

}  // namespace nubivane
