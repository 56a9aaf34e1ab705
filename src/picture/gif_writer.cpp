#include "picture/gif_writer.h"

#include "core/error.h"
#include "picture/color_index.h"
#include "picture/lzw_encoder.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace nubivane {

namespace {

constexpr int MaxSide = 65535;   // sizes have 16 bits
constexpr int MaxDelay = 65535;  // and so have delays

[[noreturn]] void fail(const QString& cause) {
    throw Error(error_number::InvalidPicture, "gif", "Cannot encode the picture as GIF.", cause);
}

const QRgb* lineOf(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

void appendWord(QByteArray& bytes, int value) {
    bytes.append(static_cast<char>(value & 0xFF)).append(static_cast<char>(value >> 8));
}

/// The bits that the largest of `count` indexes takes, as palettes and codes count them.
int bitsFor(std::size_t count) {
    int bits = 1;
    while (std::size_t{1} << bits < count) {
        ++bits;
    }
    return bits;
}

void appendColors(QByteArray& bytes, const std::vector<QRgb>& colors) {
    const std::size_t places = std::size_t{1} << bitsFor(colors.size());
    for (std::size_t i = 0; i < places; ++i) {
        const QRgb color = i < colors.size() ? colors[i] : 0;
        bytes.append(static_cast<char>(qRed(color)))
            .append(static_cast<char>(qGreen(color)))
            .append(static_cast<char>(qBlue(color)));
    }
}

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
        return {lineOf(picture, y), before.isNull() ? nullptr : lineOf(before, y)};
    }
};

/// Colours for a change, and whether one index is kept for what has not changed.
struct Palette {
    ColorIndex index;
    int transparent = -1;
    bool isCommon = false;

    std::size_t places() const {
        return std::max<std::size_t>(index.colors().size(),
                                     static_cast<std::size_t>(transparent + 1));
    }
};

ColorIndex indexOf(const std::vector<QRgb>& colors) {
    ColorIndex index;
    for (const QRgb color : colors) {
        index.add(color);
    }
    return index;
}

/// A palette of just the changed pixels' colours; those that did not change are transparent.
Palette ownPalette(const Change& change) {
    Palette palette;
    bool unchanged = false;
    for (int y = change.rect.top(); y <= change.rect.bottom(); ++y) {
        const Change::Row row = change.row(y);
        for (int x = change.rect.left(); x <= change.rect.right(); ++x) {
            if (!row.changed(x)) {
                unchanged = true;
            } else if (palette.index.add(row.now[x]) == ColorIndex::Full) {
                fail("more than 256 colours change in one image");
            }
        }
    }
    if (unchanged && palette.index.colors().size() < 256) {
        palette.transparent = static_cast<int>(palette.index.colors().size());
    }
    return palette;
}

/// The common palette where it holds all that changes.
std::optional<Palette> commonPalette(const Change& change, const std::vector<QRgb>& colors) {
    Palette palette;
    palette.index = indexOf(colors);
    palette.isCommon = true;
    if (colors.size() < 256 && !change.before.isNull()) {
        palette.transparent = static_cast<int>(colors.size());
    }
    for (int y = change.rect.top(); y <= change.rect.bottom(); ++y) {
        const Change::Row row = change.row(y);
        for (int x = change.rect.left(); x <= change.rect.right(); ++x) {
            if ((palette.transparent < 0 || row.changed(x)) && palette.index.find(row.now[x]) < 0) {
                return std::nullopt;
            }
        }
    }
    return palette;
}

/// The pixels of a change as indexes: `pixels` with the transparent index wherever nothing changed,
/// `colored` with the pixels' own colours there, as far as the palette has them.
struct Indexed {
    std::vector<std::uint8_t> pixels;
    std::vector<std::uint8_t> colored;
};

Indexed indexed(const Change& change, const Palette& palette) {
    Indexed result;
    const auto count = static_cast<std::size_t>(change.rect.width()) *
                       static_cast<std::size_t>(change.rect.height());
    result.pixels.reserve(count);
    result.colored.reserve(count);
    QRgb color = 0;
    int number = -1;
    for (int y = change.rect.top(); y <= change.rect.bottom(); ++y) {
        const Change::Row row = change.row(y);
        for (int x = change.rect.left(); x <= change.rect.right(); ++x) {
            if (number < 0 || row.now[x] != color) {
                color = row.now[x];
                number = palette.index.find(color);
            }
            const bool still = palette.transparent >= 0 && !row.changed(x);
            if (!still && number < 0) {
                fail("a colour is missing in the palette");
            }
            result.pixels.push_back(
                static_cast<std::uint8_t>(still ? palette.transparent : number));
            result.colored.push_back(
                static_cast<std::uint8_t>(number >= 0 ? number : palette.transparent));
        }
    }
    return result;
}

/// An image descriptor, its palette if it is not the common one, and its data.
QByteArray imageBlock(const Change& change, const Palette& palette, const QByteArray& data) {
    QByteArray block(1, ',');
    appendWord(block, change.rect.x());
    appendWord(block, change.rect.y());
    appendWord(block, change.rect.width());
    appendWord(block, change.rect.height());
    if (palette.isCommon) {
        block.append('\0');
    } else {
        std::vector<QRgb> colors = palette.index.colors();
        colors.resize(palette.places());
        block.append(static_cast<char>(0x80 | (bitsFor(colors.size()) - 1)));
        appendColors(block, colors);
    }
    return block + data;
}

/// How long an image stays, that it is left standing, and its transparent index.
QByteArray controlBlock(int hundredths, int transparent) {
    constexpr int LeaveStanding = 1 << 2;
    QByteArray block = QByteArray::fromHex("21f904");
    block.append(static_cast<char>(LeaveStanding | (transparent >= 0 ? 1 : 0)));
    appendWord(block, hundredths);
    block.append(static_cast<char>(std::max(transparent, 0))).append('\0');
    return block;
}

QByteArray codeImage(const Change& change, const Palette& palette, GifEffort effort) {
    const Indexed image = indexed(change, palette);
    const int bits = std::max(2, bitsFor(palette.places()));
    const std::span<const std::uint8_t> none;
    QByteArray best = encodeLzw(image.pixels, image.colored, bits, LzwTable::StartOver);
    if (effort == GifEffort::Quick) {
        return imageBlock(change, palette, best);
    }
    const auto tryCoding = [&best, bits](auto pixels, auto alternatives, LzwTable table) {
        QByteArray coded = encodeLzw(pixels, alternatives, bits, table);
        if (coded.size() < best.size()) {
            best = std::move(coded);
        }
    };
    tryCoding(image.pixels, image.colored, LzwTable::Keep);
    if (palette.transparent >= 0) {
        tryCoding(image.pixels, none, LzwTable::Keep);
        tryCoding(image.colored, image.pixels, LzwTable::Keep);
    }
    return imageBlock(change, palette, best);
}

}  // namespace

QRect changedRect(const QImage& before, const QImage& after) {
    const int width = after.width();
    int top = after.height();
    int bottom = -1;
    int left = width;
    int right = -1;
    for (int y = 0; y < after.height(); ++y) {
        const QRgb* a = lineOf(before, y);
        const QRgb* b = lineOf(after, y);
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
    : size_(size), sink_(std::move(sink)), effort_(effort), palette_(std::move(palette)) {
    if (size.isEmpty() || size.width() > MaxSide || size.height() > MaxSide) {
        fail("a GIF holds pictures of 1 to 65535 pixels a side");
    }
}

void GifWriter::addImage(const QImage& picture, qint64 hundredths) {
    if (picture.size() != size_ || picture.format() != QImage::Format_RGB32) {
        fail("the images differ in size or format");
    }
    if (last_.isNull()) {
        if (palette_.empty()) {
            palette_ = ownPalette({picture.rect(), picture, last_}).index.colors();
        }
        writeStart();
    }
    for (; hundredths > MaxDelay; hundredths -= MaxDelay) {
        writeImage(picture, MaxDelay);
    }
    writeImage(picture, static_cast<int>(hundredths));
}

void GifWriter::finish() {
    sink_(QByteArray(1, ';'));
}

void GifWriter::writeStart() {
    const std::size_t places = std::min<std::size_t>(palette_.size() + 1, 256);
    std::vector<QRgb> colors = palette_;
    colors.resize(places);
    QByteArray start = "GIF89a";
    appendWord(start, size_.width());
    appendWord(start, size_.height());
    const int bits = bitsFor(places);
    start.append(static_cast<char>(0x80 | (bits - 1) << 4 | (bits - 1)));
    start.append(2, '\0');
    appendColors(start, colors);
    start += QByteArray::fromHex("21ff0b") + "NETSCAPE2.0" + QByteArray::fromHex("0301000000");
    sink_(start);
}

void GifWriter::writeImage(const QImage& picture, int hundredths) {
    QRect rect = last_.isNull() ? picture.rect() : changedRect(last_, picture);
    if (rect.isEmpty()) {
        rect = QRect(0, 0, 1, 1);  // an image must have a pixel
    }
    const Change change{rect, picture, last_};
    std::optional<Palette> palette = commonPalette(change, palette_);
    QByteArray block;
    if (palette) {
        block = codeImage(change, *palette, effort_);
    }
    if (!palette || (effort_ == GifEffort::Search && !last_.isNull())) {
        Palette own = ownPalette(change);
        const QByteArray ownBlock = codeImage(change, own, effort_);
        if (!palette || ownBlock.size() < block.size()) {
            palette = std::move(own);
            block = ownBlock;
        }
    }
    sink_(controlBlock(hundredths, palette->transparent) + block);
    last_ = picture;
}

}  // namespace nubivane
