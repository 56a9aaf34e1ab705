// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_blocks.h"

#include "engine/core/error.h"

namespace nubivane::gif_blocks {

using namespace Qt::StringLiterals;

namespace {

constexpr int HasPalette = 0x80;

void appendWord(QByteArray& bytes, int value) {
    bytes.append(static_cast<char>(value & 0xFF)).append(static_cast<char>(value >> 8));
}

/// The colours, and black up to the next power of two.
void appendColors(QByteArray& bytes, const std::vector<QRgb>& colors) {
    const std::size_t places = std::size_t{1} << bitsFor(colors.size());
    for (std::size_t i = 0; i < places; ++i) {
        const QRgb color = i < colors.size() ? colors[i] : 0;
        bytes.append(static_cast<char>(qRed(color)))
            .append(static_cast<char>(qGreen(color)))
            .append(static_cast<char>(qBlue(color)));
    }
}

}  // namespace

void fail(const QString& cause) {
    throw Error(error_number::InvalidPicture, u"gif"_s, u"Cannot encode the picture as GIF."_s,
                cause);
}

void requireSize(QSize size) {
    if (size.isEmpty() || size.width() > MaxSide || size.height() > MaxSide) {
        fail(u"a GIF holds pictures of 1 to 65535 pixels a side"_s);
    }
}

int bitsFor(std::size_t count) {
    int bits = 1;
    while (std::size_t{1} << bits < count) {
        ++bits;
    }
    return bits;
}

QByteArray header(QSize size, const std::vector<QRgb>& palette, int grayBits) {
    QByteArray bytes = "GIF89a";
    appendWord(bytes, size.width());
    appendWord(bytes, size.height());
    bytes.append(
        static_cast<char>(HasPalette | (grayBits - 1) << 4 | (bitsFor(palette.size()) - 1)));
    bytes.append(2, '\0');
    appendColors(bytes, palette);
    return bytes;
}

QByteArray endlessLoop() {
    return QByteArray::fromHex("21ff0b") + "NETSCAPE2.0" + QByteArray::fromHex("0301000000");
}

QByteArray control(const Control& control) {
    constexpr int LeaveStanding = 1 << 2;
    QByteArray block = QByteArray::fromHex("21f904");
    block.append(static_cast<char>((control.leftStanding ? LeaveStanding : 0) |
                                   (control.transparent ? 1 : 0)));
    appendWord(block, control.hundredths);
    block.append(static_cast<char>(control.transparent.value_or(0)));
    return block.append('\0');
}

QByteArray image(const QRect& rect, const std::vector<QRgb>& ownPalette) {
    QByteArray block(1, ',');
    appendWord(block, rect.x());
    appendWord(block, rect.y());
    appendWord(block, rect.width());
    appendWord(block, rect.height());
    if (ownPalette.empty()) {
        return block.append('\0');
    }
    block.append(static_cast<char>(HasPalette | (bitsFor(ownPalette.size()) - 1)));
    appendColors(block, ownPalette);
    return block;
}

}  // namespace nubivane::gif_blocks
