// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_still.h"

#include "engine/gif/color_index.h"
#include "engine/gif/gif_blocks.h"
#include "engine/gif/lzw_encoder.h"
#include "engine/gif/pixel_lines.h"
#include "engine/gif/quantizer.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace nubivane {

namespace {

constexpr int GrayBits = 8;  // what the pictures had a colour before
constexpr int LeastCodeBits = 2;

/// The image with its own colours, or nothing when there are more than 256.
std::optional<IndexedPicture> indexExactly(const QImage& argb) {
    IndexedPicture result;
    result.pixels.reserve(static_cast<std::size_t>(argb.width()) *
                          static_cast<std::size_t>(argb.height()));
    ColorIndex known;
    for (int y = 0; y < argb.height(); ++y) {
        const QRgb* line = constLineOf(argb, y);
        for (int x = 0; x < argb.width(); ++x) {
            const QRgb color = qAlpha(line[x]) == 0 ? 0 : line[x] | 0xFF000000;
            const int number = known.add(color);
            if (number == ColorIndex::Full) {
                return std::nullopt;
            }
            result.pixels.push_back(static_cast<std::uint8_t>(number));
        }
    }
    result.palette = known.colors();
    if (const int seeThrough = known.find(0); seeThrough >= 0) {
        result.transparent = seeThrough;
    }
    return result;
}

}  // namespace

QByteArray encodeGifStill(const QImage& image) {
    gif_blocks::requireSize(image.size());
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    std::optional<IndexedPicture> exact = indexExactly(argb);
    const IndexedPicture indexed = exact ? std::move(*exact) : withFewColors(argb);

    QByteArray bytes = gif_blocks::header(image.size(), indexed.palette, GrayBits);
    if (indexed.transparent) {
        bytes += gif_blocks::control({.transparent = indexed.transparent});
    }
    const int bits = std::max(LeastCodeBits, gif_blocks::bitsFor(indexed.palette.size()));
    bytes += gif_blocks::image(image.rect());
    bytes += encodeLzw(indexed.pixels, {}, bits, LzwEffort::Quick);
    return bytes.append(gif_blocks::Trailer);
}

}  // namespace nubivane
