// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_writer.h"

#include "engine/core/parallel.h"
#include "engine/gif/color_index.h"
#include "engine/gif/gif_blocks.h"
#include "engine/gif/lzw_encoder.h"
#include "engine/gif/pixel_lines.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// The part of an image that changes, before it has a palette.
struct Change {
    QRect rect;
    const QImage& picture;
    const QImage& before;  ///< null for the first image

    struct Row {
        const QRgb* now;
        const QRgb* before;

        bool changed(int x) const { return !before || now[x] != before[x]; }
    };
    Row row(int y) const {
        return {constLineOf(picture, y), before.isNull() ? nullptr : constLineOf(before, y)};
    }
};

/// Colours for a change by index. Where there is a transparent one it is the first: small indexes
/// make short codes.
struct Palette {
    std::vector<QRgb> colors;
    ColorIndex index;  ///< the colours behind the transparent one
    bool hasTransparent = false;
    bool isCommon = false;

    Palette(std::vector<QRgb> visible, bool transparent) : hasTransparent(transparent) {
        for (const QRgb color : visible) {
            index.add(color);
        }
        if (transparent) {
            visible.insert(visible.begin(), qRgb(0, 0, 0));
        }
        colors = std::move(visible);
    }

    /// The index of a colour, or -1.
    int find(QRgb color) const {
        const int found = index.find(color);
        return found < 0 || !hasTransparent ? found : found + 1;
    }
};

/// A palette of just the changed pixels' colours; those that did not change are transparent.
Palette ownPalette(const Change& change) {
    ColorIndex colors;
    bool unchanged = false;
    for (int y = change.rect.top(); y <= change.rect.bottom(); ++y) {
        const Change::Row row = change.row(y);
        for (int x = change.rect.left(); x <= change.rect.right(); ++x) {
            if (!row.changed(x)) {
                unchanged = true;
            } else if (colors.add(row.now[x]) == ColorIndex::Full) {
                gif_blocks::fail(u"more than 256 colours change in one image"_s);
            }
        }
    }
    return {colors.colors(), unchanged && colors.colors().size() < 256};
}

/// The common palette where it holds all that changes.
std::optional<Palette> commonPalette(const Change& change, const std::vector<QRgb>& colors) {
    Palette palette(colors, colors.size() < 256);
    palette.isCommon = true;
    for (int y = change.rect.top(); y <= change.rect.bottom(); ++y) {
        const Change::Row row = change.row(y);
        for (int x = change.rect.left(); x <= change.rect.right(); ++x) {
            if ((!palette.hasTransparent || row.changed(x)) && palette.find(row.now[x]) < 0) {
                return std::nullopt;
            }
        }
    }
    return palette;
}

/// The pixels of a change as indexes: `pixels` with the transparent index wherever nothing changed,
/// `colored` with the pixels' own colours there, as far as they do not make codes longer.
struct Indexed {
    std::vector<std::uint8_t> pixels;
    std::vector<std::uint8_t> colored;
    int bits = 2;  ///< that the indexes take
};

Indexed indexed(const Change& change, const Palette& palette) {
    Indexed result;
    const auto count = static_cast<std::size_t>(change.rect.width()) *
                       static_cast<std::size_t>(change.rect.height());
    result.pixels.resize(count);
    result.colored.resize(count);
    std::size_t at = 0;
    QRgb color = 0;  // of no pixel
    int number = -1;
    int largest = 3;
    for (int y = change.rect.top(); y <= change.rect.bottom(); ++y) {
        const Change::Row row = change.row(y);
        for (int x = change.rect.left(); x <= change.rect.right(); ++x, ++at) {
            if (row.now[x] != color) {
                color = row.now[x];
                number = palette.find(color);
            }
            const bool still = palette.hasTransparent && !row.changed(x);
            if (!still && number < 0) {
                gif_blocks::fail(u"a colour is missing in the palette"_s);
            }
            const int pixel = still ? 0 : number;
            largest = std::max(largest, pixel);
            result.pixels[at] = static_cast<std::uint8_t>(pixel);
            result.colored[at] = static_cast<std::uint8_t>(std::max(number, 0));
        }
    }
    result.bits = gif_blocks::bitsFor(static_cast<std::size_t>(largest) + 1);
    if (palette.colors.size() > std::size_t{1} << result.bits) {
        for (std::size_t i = 0; i < count; ++i) {
            if (result.colored[i] >> result.bits != 0) {
                result.colored[i] = result.pixels[i];
            }
        }
    }
    return result;
}

QByteArray codeImage(const Change& change, const Palette& palette, int hundredths,
                     GifEffort effort) {
    const Indexed image = indexed(change, palette);
    const bool someTransparent = palette.hasTransparent && !change.before.isNull();
    const std::span<const std::uint8_t> alternatives =
        someTransparent ? image.colored : std::span<const std::uint8_t>();
    const QByteArray data =
        encodeLzw(image.pixels, alternatives, image.bits,
                  effort == GifEffort::Search ? LzwEffort::Search : LzwEffort::Quick);
    gif_blocks::Control control{.hundredths = hundredths, .leftStanding = true};
    if (someTransparent) {
        control.transparent = 0;
    }
    return gif_blocks::control(control) +
           gif_blocks::image(change.rect, palette.isCommon ? std::vector<QRgb>() : palette.colors) +
           data;
}

}  // namespace

QRect changedRect(const QImage& before, const QImage& after) {
    const int width = after.width();
    int top = after.height();
    int bottom = -1;
    int left = width;
    int right = -1;
    for (int y = 0; y < after.height(); ++y) {
        const QRgb* a = constLineOf(before, y);
        const QRgb* b = constLineOf(after, y);
        if (std::memcmp(a, b, static_cast<std::size_t>(width) * sizeof(QRgb)) == 0) {
            continue;
        }
        top = std::min(top, y);
        bottom = y;
        left = static_cast<int>(std::mismatch(a, a + std::min(left, width), b).first - a);
        int last = width - 1;
        while (last > right && a[last] == b[last]) {
            --last;
        }
        right = std::max(right, last);
    }
    return bottom < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

GifWriter::GifWriter(QSize size, Sink sink, GifEffort effort, std::vector<QRgb> palette)
    : size_(size),
      sink_(std::move(sink)),
      effort_(effort),
      paletteHoldsAll_(!palette.empty()),
      palette_(std::move(palette)) {
    gif_blocks::requireSize(size);
}

std::size_t GifWriter::picturesAtATime(QSize size) {
    constexpr qint64 Pixels = 4'000'000;
    constexpr qint64 Most = 32;
    return static_cast<std::size_t>(std::clamp<qint64>(
        Pixels / std::max<qint64>(1, qint64{size.width()} * size.height()), 1, Most));
}

void GifWriter::addImages(const std::vector<TimedPicture>& images) {
    for (const TimedPicture& image : images) {
        if (image.picture.size() != size_ || image.picture.format() != QImage::Format_RGB32) {
            gif_blocks::fail(u"the images differ in size or format"_s);
        }
    }
    if (images.empty()) {
        return;
    }
    if (last_.isNull()) {
        start(images.front().picture);
    }
    std::vector<QByteArray> blocks(images.size());
    parallelFor(images.size(), [&](std::size_t i) {
        blocks[i] = coded(i == 0 ? last_ : images[i - 1].picture, images[i]);
    });
    for (const QByteArray& block : blocks) {
        sink_(block);
    }
    last_ = images.back().picture;
}

void GifWriter::finish() {
    sink_(QByteArray(1, gif_blocks::Trailer));
}

void GifWriter::start(const QImage& picture) {
    if (palette_.empty()) {
        palette_ = ownPalette({picture.rect(), picture, last_}).colors;
    }
    const Palette common(palette_, palette_.size() < 256);
    sink_(gif_blocks::header(size_, common.colors, gif_blocks::bitsFor(common.colors.size())) +
          gif_blocks::endlessLoop());
}

QByteArray GifWriter::coded(const QImage& before, const TimedPicture& image) const {
    const qint64 first = std::min<qint64>(image.hundredths, gif_blocks::MaxDelay);
    QByteArray blocks = codedOnce(before, image.picture, static_cast<int>(first));
    for (qint64 rest = image.hundredths - first; rest > 0; rest -= gif_blocks::MaxDelay) {
        blocks += codedOnce(image.picture, image.picture,
                            static_cast<int>(std::min<qint64>(rest, gif_blocks::MaxDelay)));
    }
    return blocks;
}

QByteArray GifWriter::codedOnce(const QImage& before, const QImage& picture, int hundredths) const {
    QRect rect = before.isNull() ? picture.rect() : changedRect(before, picture);
    if (rect.isEmpty()) {
        rect = QRect(0, 0, 1, 1);  // an image must have a pixel
    }
    const Change change{rect, picture, before};
    const std::optional<Palette> common = commonPalette(change, palette_);
    QByteArray block;
    if (common) {
        block = codeImage(change, *common, hundredths, effort_);
    }
    const bool tryOwn = effort_ == GifEffort::Search && !paletteHoldsAll_ && !before.isNull();
    if (!common || tryOwn) {
        const QByteArray own = codeImage(change, ownPalette(change), hundredths, effort_);
        if (!common || own.size() < block.size()) {
            block = own;
        }
    }
    return block;
}

}  // namespace nubivane
