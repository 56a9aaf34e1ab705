// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_codec.h"

#include "engine/core/error.h"
#include "engine/gif/gif_still.h"
#include "engine/picture/invalid_picture.h"
#include "engine/picture/jpeg_inspection.h"
#include "engine/picture/png_chunks.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

struct FormatRow {
    PictureFormat format;
    const char* qtName;
    std::array<const char*, 2> extensions;
};

constexpr std::array formats = {
    FormatRow{PictureFormat::Bmp, "bmp", {"bmp", nullptr}},
    FormatRow{PictureFormat::Gif, "gif", {"gif", nullptr}},
    FormatRow{PictureFormat::Jpeg, "jpeg", {"jpg", "jpeg"}},
    FormatRow{PictureFormat::Png, "png", {"png", nullptr}},
    FormatRow{PictureFormat::Tiff, "tiff", {"tif", "tiff"}},
};

const FormatRow& rowOf(PictureFormat format) {
    for (const FormatRow& row : formats) {
        if (row.format == format) {
            return row;
        }
    }
    Q_UNREACHABLE();
}

/// Width and height of a GIF's logical screen, which is what decoding it takes memory for; the
/// reader tells that of its images.
QSize gifScreen(const QByteArray& bytes) {
    const auto number = [&bytes](qsizetype i) {
        return i + 1 < bytes.size()
                   ? static_cast<uchar>(bytes[i]) | static_cast<uchar>(bytes[i + 1]) << 8
                   : 0;
    };
    return {number(6), number(8)};
}

/// What a decoder may see of a file.
QByteArray forDecoding(const QByteArray& bytes) {
    return isPng(bytes) ? pngWithoutTexts(bytes) : bytes;
}

PictureInfo probe(QImageReader& reader, const QByteArray& bytes) {
    const QByteArray name = reader.format();
    for (const FormatRow& row : formats) {
        if (name != row.qtName && !(row.format == PictureFormat::Tiff && name == "tif")) {
            continue;
        }
        if (row.format == PictureFormat::Jpeg && jpegScans(bytes) > MaxJpegScans) {
            refusePicture(u"the JPEG picture has too many scans"_s);
        }
        // A GIF must hold an image, whose size the reader tells, and a screen to show it on.
        const QSize image = reader.size();
        const QSize size = row.format == PictureFormat::Gif ? gifScreen(bytes) : image;
        if (image.isEmpty() || size.isEmpty()) {
            refusePicture(u"the picture has no size"_s);
        }
        if (size.width() > MaxPictureSide || size.height() > MaxPictureSide ||
            qint64{size.width()} * size.height() > MaxPicturePixels) {
            refusePicture(
                QStringLiteral("%1 x %2 pixels are too many").arg(size.width()).arg(size.height()));
        }
        return {row.format, size};
    }
    refusePicture(u"the bytes are no bmp, gif, jpg, png or tif picture"_s);
}

}  // namespace

PictureFormat formatOfExtension(const QString& extension) {
    for (const FormatRow& row : formats) {
        for (const char* known : row.extensions) {
            if (known && extension.compare(QLatin1String(known), Qt::CaseInsensitive) == 0) {
                return row.format;
            }
        }
    }
    throw Error(
        error_number::InvalidArgument, u"picture"_s, u"Unsupported picture format."_s,
        u"the extension \""_s + extension + u"\" names no picture format that can be written"_s);
}

PictureInfo probePicture(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(forDecoding(bytes));
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    return probe(reader, bytes);
}

QImage decodePicture(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(forDecoding(bytes));
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    probe(reader, bytes);
    QImage image = reader.read();
    if (image.isNull()) {
        refusePicture(reader.errorString());
    }
    return image;
}

QByteArray encodePicture(const QImage& image, PictureFormat format) {
    if (format == PictureFormat::Gif) {
        return encodeGifStill(image);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, rowOf(format).qtName);
    if (format == PictureFormat::Jpeg) {
        writer.setQuality(JpegQuality);
    }
    if (!writer.write(image)) {
        refusePicture(writer.errorString());
    }
    return bytes;
}

}  // namespace nubivane
