// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/quantizer.h"

#include "engine/core/error.h"

#include <libimagequant.h>

#include <algorithm>
#include <limits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

// 1 is slowest; 3 finds hardly better palettes in twice the time
constexpr int UsualSpeed = 4;
constexpr int ThoroughSpeed = 1;
constexpr std::size_t KnownSlots = 4096;

void check(liq_error error) {
    if (error != LIQ_OK) {
        throw Error(error_number::InvalidPicture, u"gif"_s, u"Cannot encode the picture as GIF."_s,
                    u"no palette was found"_s);
    }
}

liq_color toLiq(QRgb color) {
    return {static_cast<unsigned char>(qRed(color)), static_cast<unsigned char>(qGreen(color)),
            static_cast<unsigned char>(qBlue(color)), 255};
}

/// A pixel is wholly there or not at all; no palette may blend in between.
liq_color toLiqOrNothing(QRgb color) {
    liq_color result = toLiq(color);
    result.a = qAlpha(color) == 0 ? 0 : 255;
    return result;
}

/// A row of a picture (32 bits a pixel) in the library's order.
template <liq_color (*Convert)(QRgb)>
void readRow(liq_color out[], int row, int width, void* image) {
    const auto* line =
        reinterpret_cast<const QRgb*>(static_cast<const QImage*>(image)->constScanLine(row));
    std::transform(line, line + width, out, Convert);
}

using LiqAttributes = std::unique_ptr<liq_attr, void (*)(liq_attr*)>;
using LiqImage = std::unique_ptr<liq_image, void (*)(liq_image*)>;
using LiqResult = std::unique_ptr<liq_result, void (*)(liq_result*)>;

LiqAttributes liqAttributes() {
    return {liq_attr_create(), liq_attr_destroy};
}

/// Reads the picture while it lives.
template <liq_color (*Convert)(QRgb)>
LiqImage liqImage(const liq_attr* attributes, QImage& picture) {
    LiqImage image(liq_image_create_custom(attributes, readRow<Convert>, &picture, picture.width(),
                                           picture.height(), 0),
                   liq_image_destroy);
    check(image ? LIQ_OK : LIQ_OUT_OF_MEMORY);
    return image;
}

std::vector<QRgb> colorsOf(liq_result* result) {
    const liq_palette* palette = liq_get_palette(result);
    std::vector<QRgb> colors;
    for (unsigned i = 0; i < palette->count; ++i) {
        const liq_color& c = palette->entries[i];
        colors.push_back(qRgb(c.r, c.g, c.b));
    }
    return colors;
}

}  // namespace

Quantizer::Quantizer(int colors, Effort effort)
    : attributes_(liqAttributes()),
      histogram_(liq_histogram_create(attributes_.get()), liq_histogram_destroy) {
    check(liq_set_max_colors(attributes_.get(), colors));
    check(
        liq_set_speed(attributes_.get(), effort == Effort::Thorough ? ThoroughSpeed : UsualSpeed));
}

Quantizer::~Quantizer() = default;

void Quantizer::add(const QImage& picture, const std::vector<uchar>& counts) {
    QImage source = picture;
    const LiqImage image = liqImage<toLiq>(attributes_.get(), source);
    if (!counts.empty()) {
        std::vector<uchar> importance = counts;
        check(liq_image_set_importance_map(image.get(), importance.data(), importance.size(),
                                           LIQ_COPY_PIXELS));
    }
    check(liq_histogram_add_image(histogram_.get(), attributes_.get(), image.get()));
}

void Quantizer::add(const std::vector<CountedColor>& colors) {
    constexpr quint32 WeightOfAPixel = 255;  // what the library gives each pixel of a picture
    std::vector<liq_histogram_entry> entries;
    entries.reserve(colors.size());
    for (const CountedColor& color : colors) {
        entries.push_back({toLiq(color.color), color.pixels * WeightOfAPixel});
    }
    if (!entries.empty()) {
        const liq_error error =
            liq_histogram_add_colors(histogram_.get(), attributes_.get(), entries.data(),
                                     static_cast<int>(entries.size()), 0);
        // A picture of more than a million colours has been counted in coarser ones, and the
        // library takes no others then. Among so many some are near enough to each of these.
        if (error != LIQ_UNSUPPORTED) {
            check(error);
        }
    }
}

void Quantizer::keep(const std::vector<QRgb>& colors) {
    for (const QRgb color : colors) {
        check(liq_histogram_add_fixed_color(histogram_.get(), toLiq(color), 0));
    }
}

std::vector<QRgb> Quantizer::palette() {
    liq_result* found = nullptr;
    check(liq_histogram_quantize(histogram_.get(), attributes_.get(), &found));
    return colorsOf(LiqResult(found, liq_result_destroy).get());
}

IndexedPicture withFewColors(const QImage& argb) {
    constexpr float Dithering = 0.5F;
    QImage source = argb;
    const LiqAttributes attributes = liqAttributes();
    const LiqImage image = liqImage<toLiqOrNothing>(attributes.get(), source);
    liq_result* found = nullptr;
    check(liq_image_quantize(image.get(), attributes.get(), &found));
    const LiqResult result(found, liq_result_destroy);
    IndexedPicture indexed;
    indexed.pixels.resize(static_cast<std::size_t>(argb.width()) *
                          static_cast<std::size_t>(argb.height()));
    check(liq_set_dithering_level(result.get(), Dithering));
    check(liq_write_remapped_image(result.get(), image.get(), indexed.pixels.data(),
                                   indexed.pixels.size()));
    const liq_palette* palette = liq_get_palette(result.get());
    for (unsigned i = 0; i < palette->count; ++i) {
        if (palette->entries[i].a == 0) {
            indexed.transparent = static_cast<int>(i);
        }
    }
    // Asked for after the pixels: writing them may move the colours a little.
    indexed.palette = colorsOf(result.get());
    return indexed;
}

NearestColor::NearestColor(std::vector<QRgb> palette) : palette_(std::move(palette)) {
    known_.resize(KnownSlots, {0, 0});  // an opaque colour is never 0
}

QRgb NearestColor::of(QRgb color) {
    Answer& answer = known_[color * 2654435761U >> 20];
    if (answer.color == color) {
        return answer.nearest;
    }
    int least = std::numeric_limits<int>::max();
    QRgb nearest = color;
    for (const QRgb candidate : palette_) {
        const int red = qRed(candidate) - qRed(color);
        const int green = qGreen(candidate) - qGreen(color);
        const int blue = qBlue(candidate) - qBlue(color);
        const int distance = red * red + green * green + blue * blue;
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    answer = {color, nearest};
    return nearest;
}

}  // namespace nubivane
