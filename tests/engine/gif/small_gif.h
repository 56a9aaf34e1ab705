// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QRect>

/// GIF files put together byte by byte, so that they may also say what no encoder would write.
namespace nubivane::testing::small_gif {

inline QByteArray word(int value) {
    return QByteArray(1, static_cast<char>(value)) + QByteArray(1, static_cast<char>(value >> 8));
}

/// The pixels of an image of one pixel: index 0 (red), 1 (green) or 2 (blue).
inline QByteArray pixel(int index) {
    constexpr int Clear = 4;
    constexpr int End = 5;
    const int codes = Clear | index << 3 | End << 6;
    return QByteArray::fromHex("0202") + word(codes) + QByteArray(1, '\0');
}

inline QByteArray control(int delay, int disposal = 1) {
    return QByteArray::fromHex("21f904") + QByteArray(1, static_cast<char>(disposal << 2)) +
           word(delay) + QByteArray(2, '\0');
}

/// An image's place with whatever is to stand for its pixels.
inline QByteArray image(const QRect& rect, const QByteArray& pixels) {
    return "," + word(rect.x()) + word(rect.y()) + word(rect.width()) + word(rect.height()) +
           QByteArray(1, '\0') + pixels;
}

/// An image of one pixel in the upper left corner.
inline QByteArray dot(int index = 0) {
    return image({0, 0, 1, 1}, pixel(index));
}

/// How often to play, as encoders say it.
inline QByteArray loop(int times) {
    return QByteArray::fromHex("21ff0b") + "NETSCAPE2.0" + QByteArray::fromHex("0301") +
           word(times) + QByteArray(1, '\0');
}

inline QByteArray start(int width, int height) {
    return "GIF89a" + word(width) + word(height) + QByteArray::fromHex("f10000") +
           QByteArray::fromHex("ff000000ff000000ffffffff");
}

inline QByteArray file(int width, int height, const QByteArrayList& parts) {
    return start(width, height) + parts.join() + ";";
}

}  // namespace nubivane::testing::small_gif
