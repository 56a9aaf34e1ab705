// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>
#include <QtEndian>

/// PNG files put together chunk by chunk, so that they may also say what no encoder would write.
namespace nubivane::testing::small_png {

inline QByteArray big(quint32 number) {
    QByteArray bytes(sizeof number, 0);
    qToBigEndian(number, bytes.data());
    return bytes;
}

inline quint32 crc32(const QByteArray& bytes) {
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320 : 0);
        }
    }
    return ~crc;
}

inline QByteArray chunk(const QByteArray& type, const QByteArray& data) {
    return big(static_cast<quint32>(data.size())) + type + data + big(crc32(type + data));
}

inline QByteArray deflated(const QByteArray& bytes) {
    return qCompress(bytes, 9).mid(4);  // behind the length that only Qt knows
}

/// Pixels of three bytes, all grey, as many rows as said.
inline QByteArray pixels(int width, int rows) {
    return (QByteArray(1, '\0') + QByteArray(3 * width, '\x80')).repeated(rows);
}

/// A picture that claims a size, with other chunks before whatever is to stand for its pixels.
inline QByteArray file(QSize size, const QByteArray& others, const QByteArray& data) {
    return "\x89PNG\r\n\x1A\n" +
           chunk("IHDR", big(static_cast<quint32>(size.width())) +
                             big(static_cast<quint32>(size.height())) +
                             QByteArray("\x08\x02\0\0\0", 5)) +
           others + chunk("IDAT", data) + chunk("IEND", {});
}

/// A sound picture of a size.
inline QByteArray sound(QSize size) {
    return file(size, {}, deflated(pixels(size.width(), size.height())));
}

}  // namespace nubivane::testing::small_png
