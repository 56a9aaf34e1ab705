// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_tables.h"

#include "engine/picture/image_codec.h"

namespace nubivane {

namespace {

/// The content of all quantisation table segments (DQT) before the picture's data, in order.
QByteArray quantisationTables(const QByteArray& jpeg) {
    constexpr uchar StartOfScan = 0xDA;
    constexpr uchar DefineTables = 0xDB;
    const auto at = [&jpeg](qsizetype i) { return static_cast<uchar>(jpeg[i]); };
    QByteArray tables;
    qsizetype i = 2;
    while (i + 4 <= jpeg.size() && at(i) == 0xFF && at(i + 1) != StartOfScan) {
        const qsizetype length = at(i + 2) << 8 | at(i + 3);
        if (at(i + 1) == DefineTables) {
            tables += jpeg.mid(i + 4, length - 2);
        }
        i += 2 + length;
    }
    return tables;
}

}  // namespace

bool hasOurJpegQuality(const QByteArray& jpeg) {
    static const QByteArray ours = [] {
        QImage pixel(1, 1, QImage::Format_RGB32);
        pixel.fill(Qt::white);
        return quantisationTables(encodePicture(pixel, PictureFormat::Jpeg));
    }();
    return quantisationTables(jpeg) == ours;
}

}  // namespace nubivane
