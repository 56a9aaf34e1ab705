// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_still.h"

#include "engine/core/error.h"

#include <gif_lib.h>
#include <libimagequant.h>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int MaxSide = 65535;  // sizes have 16 bits

[[noreturn]] void fail(const QString& cause) {
    throw Error(error_number::InvalidPicture, u"gif"_s, u"Cannot encode the picture as GIF."_s,
                cause);
}

/// One byte a pixel and what the bytes mean.
struct Indexed {
    std::vector<GifByteType> pixels;
    std::vector<QRgb> palette;
    int transparent = NO_TRANSPARENT_COLOR;
};

/// The image with its own colours, or nothing when there are more than 256.
std::optional<Indexed> indexExactly(const QImage& argb) {
    Indexed result;
    result.pixels.reserve(static_cast<std::size_t>(argb.width()) * argb.height());
    std::unordered_map<QRgb, GifByteType> known;
    for (int y = 0; y < argb.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            const QRgb color = qAlpha(line[x]) == 0 ? 0 : line[x] | 0xFF000000;
            const auto [entry, isNew] =
                known.try_emplace(color, static_cast<GifByteType>(result.palette.size()));
            if (isNew) {
                if (result.palette.size() == 256) {
                    return std::nullopt;
                }
                if (color == 0) {
                    result.transparent = entry->second;
                }
                result.palette.push_back(color);
            }
            result.pixels.push_back(entry->second);
        }
    }
    return result;
}

template <class T>
using LiqHandle = std::unique_ptr<T, void (*)(T*)>;

Indexed indexByPalette(const QImage& argb) {
    QImage rgba = argb.convertToFormat(QImage::Format_RGBA8888);
    // A pixel is wholly there or not at all; the palette must not blend in between.
    for (int y = 0; y < rgba.height(); ++y) {
        uchar* line = rgba.scanLine(y);
        for (int x = 0; x < rgba.width(); ++x) {
            line[4 * x + 3] = line[4 * x + 3] == 0 ? 0 : 255;
        }
    }
    const LiqHandle<liq_attr> attributes(liq_attr_create(), liq_attr_destroy);
    const LiqHandle<liq_image> source(
        liq_image_create_rgba(attributes.get(), rgba.constBits(), rgba.width(), rgba.height(), 0),
        liq_image_destroy);
    liq_result* quantized = nullptr;
    if (!source || liq_image_quantize(source.get(), attributes.get(), &quantized) != LIQ_OK) {
        fail(u"no palette was found"_s);
    }
    const LiqHandle<liq_result> result(quantized, liq_result_destroy);
    Indexed indexed;
    indexed.pixels.resize(static_cast<std::size_t>(argb.width()) * argb.height());
    liq_set_dithering_level(result.get(), 0.5F);
    liq_write_remapped_image(result.get(), source.get(), indexed.pixels.data(),
                             indexed.pixels.size());
    const liq_palette* palette = liq_get_palette(result.get());
    for (unsigned i = 0; i < palette->count; ++i) {
        const liq_color& c = palette->entries[i];
        if (c.a == 0) {
            indexed.transparent = static_cast<int>(i);
        }
        indexed.palette.push_back(qRgb(c.r, c.g, c.b));
    }
    return indexed;
}

int appendBytes(GifFileType* file, const GifByteType* bytes, int length) {
    static_cast<QByteArray*>(file->UserData)->append(reinterpret_cast<const char*>(bytes), length);
    return length;
}

}  // namespace

QByteArray encodeGifStill(const QImage& image) {
    if (image.isNull() || image.width() > MaxSide || image.height() > MaxSide) {
        fail(u"a GIF holds pictures of 1 to 65535 pixels a side"_s);
    }
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    std::optional<Indexed> exact = indexExactly(argb);
    Indexed indexed = exact ? std::move(*exact) : indexByPalette(argb);

    const int bits = GifBitSize(static_cast<int>(indexed.palette.size()));
    indexed.palette.resize(std::size_t{1} << bits);
    const std::unique_ptr<ColorMapObject, void (*)(ColorMapObject*)> colors(
        GifMakeMapObject(1 << bits, nullptr), GifFreeMapObject);
    for (std::size_t i = 0; i < indexed.palette.size(); ++i) {
        const QRgb c = indexed.palette[i];
        colors->Colors[i] = {static_cast<GifByteType>(qRed(c)), static_cast<GifByteType>(qGreen(c)),
                             static_cast<GifByteType>(qBlue(c))};
    }

    QByteArray bytes;
    int error = 0;
    GifFileType* file = EGifOpen(&bytes, appendBytes, &error);
    if (!file) {
        fail(QString::fromLatin1(GifErrorString(error)));
    }
    EGifSetGifVersion(file, true);
    bool ok = EGifPutScreenDesc(file, argb.width(), argb.height(), 8, 0, colors.get()) == GIF_OK;
    if (ok && indexed.transparent != NO_TRANSPARENT_COLOR) {
        GraphicsControlBlock control{};
        control.TransparentColor = indexed.transparent;
        GifByteType extension[4];
        EGifGCBToExtension(&control, extension);
        ok = EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, sizeof extension, extension) == GIF_OK;
    }
    ok = ok && EGifPutImageDesc(file, 0, 0, argb.width(), argb.height(), false, nullptr) == GIF_OK;
    for (int y = 0; ok && y < argb.height(); ++y) {
        ok = EGifPutLine(file, indexed.pixels.data() + std::size_t(y) * argb.width(),
                         argb.width()) == GIF_OK;
    }
    error = file->Error;
    ok = EGifCloseFile(file, ok ? &error : nullptr) == GIF_OK && ok;
    if (!ok) {
        fail(QString::fromLatin1(GifErrorString(error)));
    }
    return bytes;
}

}  // namespace nubivane
