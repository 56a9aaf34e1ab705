// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/png_chunks.h"

#include "engine/picture/image_codec.h"
#include "engine/picture/invalid_picture.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView Signature("\x89PNG\r\n\x1a\n");
constexpr qsizetype ChunkOverhead = 12;  // length, type, checksum

quint32 numberAt(QByteArrayView bytes, qsizetype at) {
    return qFromBigEndian<quint32>(bytes.data() + at);
}

/// Bytes that the pixels take before compression, or a little more: each row of each pass of an
/// interlaced picture has a byte of its own and may have one of padding.
qint64 uncompressedSize(QByteArrayView header) {
    constexpr std::array<int, 7> channelsOfType = {1, 1, 3, 1, 2, 1, 4};
    constexpr qsizetype HeaderSize = 13;
    if (header.size() < HeaderSize) {
        refusePicture(u"the PNG picture has no header"_s);
    }
    // Larger sides are refused anyway, and must not overflow here.
    const qint64 width = std::min<qint64>(numberAt(header, 0), MaxPictureSide);
    const qint64 height = std::min<qint64>(numberAt(header, 4), MaxPictureSide);
    const int depth = static_cast<uchar>(header[8]);
    const auto type = static_cast<std::size_t>(static_cast<uchar>(header[9]));
    const int channels = type < channelsOfType.size() ? channelsOfType[type] : 4;
    return (width * channels * std::min(depth, 16) / 8 + 1) * height + 4 * height;
}

}  // namespace

bool isPng(const QByteArray& bytes) {
    return bytes.startsWith(Signature);
}

QByteArray pngWithoutTexts(const QByteArray& bytes) {
    const QByteArrayView all(bytes);
    QByteArray kept;
    kept.reserve(bytes.size());
    kept += Signature;
    qint64 mostPixelBytes = 0;
    qint64 pixelBytes = 0;
    qsizetype at = Signature.size();
    QByteArrayView type;
    while (type != QByteArrayView("IEND")) {
        const qsizetype left = all.size() - at - ChunkOverhead;
        if (left < 0 || numberAt(all, at) > left) {
            refusePicture(u"the PNG picture is cut short"_s);
        }
        const qsizetype length = numberAt(all, at);
        type = all.sliced(at + 4, 4);
        if (type == QByteArrayView("IHDR")) {
            // Encoders may store what does not compress, with some bytes around each block.
            mostPixelBytes = uncompressedSize(all.sliced(at + 8, length)) * 5 / 4 + 4096;
        } else if (type == QByteArrayView("IDAT")) {
            pixelBytes += length;
        }
        if (type != QByteArrayView("tEXt") && type != QByteArrayView("zTXt") &&
            type != QByteArrayView("iTXt")) {
            kept += all.sliced(at, length + ChunkOverhead);
        }
        at += length + ChunkOverhead;
    }
    if (pixelBytes > mostPixelBytes) {
        refusePicture(u"the PNG picture has more data than pixels"_s);
    }
    return kept;
}

}  // namespace nubivane
