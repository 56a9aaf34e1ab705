// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/picture/animation_cache.h"
#include "fuzz_support.h"
#include "windows/canvas/sprite_marker.h"
#include "windows/canvas/sprite_payload.h"

using namespace nubivane;

namespace {

void pasted(const QString& text) {
    const auto marker = SpriteMarker::read(text);
    if (!marker) {
        return;
    }
    fuzz::require(marker->type == sprite_type::Symbol || marker->type == sprite_type::Label,
                  "a marker tells of a Symbol or a Label");
    const auto again = SpriteMarker::read(marker->text());
    fuzz::require(again && again->type == marker->type && again->cut == marker->cut,
                  "a marker written is the same marker");
}

void dropped(const QString& text) {
    const auto payload = SpritePayload::read(text);
    if (!payload) {
        return;
    }
    const auto again = SpritePayload::read(payload->text());
    fuzz::require(again && again->type == payload->type && again->file == payload->file,
                  "a payload written is the same payload");
    if (payload->type == sprite_type::Symbol && host_files::fileExists(payload->file)) {
        static AnimationCache animations;
        const auto animation = animations.get(payload->file);
        fuzz::require(!animation || !animation->size().isEmpty(), "a picture has pixels");
    }
}

}  // namespace

/// The input is what another program left on the clipboard or drops on the map.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = fuzz::inputBytes(data, size);
    // Both as a desktop hands them over and with every unit that UTF-16 can have.
    for (const QString& text :
         {QString::fromUtf8(bytes),
          QString::fromUtf16(reinterpret_cast<const char16_t*>(QByteArray(bytes).constData()),
                             bytes.size() / 2)}) {
        pasted(text);
        dropped(text);
    }
    return 0;
}
