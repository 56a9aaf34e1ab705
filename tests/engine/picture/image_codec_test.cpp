// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_codec.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

namespace nubivane {

namespace {

constexpr std::array allFormats = {PictureFormat::Bmp, PictureFormat::Gif, PictureFormat::Jpeg,
                                   PictureFormat::Png, PictureFormat::Tiff};

/// Four quarters of plain colours, each larger than a block of a JPEG picture.
QImage quarters() {
    QImage image(64, 48, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(
                x, y,
                x < 32 ? (y < 24 ? 0xFF0000FF : 0xFF00C000) : (y < 24 ? 0xFFFFFFFF : 0xFFE08020));
        }
    }
    return image;
}

template <class Work>
int errorNumberOf(Work work) {
    try {
        work();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

QByteArray writtenAs(const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(QImageWriter(&buffer, format).write(quarters())) << format;
    return bytes;
}

}  // namespace

TEST(ImageCodec, ExtensionsNameTheirFormatsInAnyCase) {
    EXPECT_EQ(formatOfExtension("bmp"), PictureFormat::Bmp);
    EXPECT_EQ(formatOfExtension("gif"), PictureFormat::Gif);
    EXPECT_EQ(formatOfExtension("jpg"), PictureFormat::Jpeg);
    EXPECT_EQ(formatOfExtension("jpeg"), PictureFormat::Jpeg);
    EXPECT_EQ(formatOfExtension("png"), PictureFormat::Png);
    EXPECT_EQ(formatOfExtension("tif"), PictureFormat::Tiff);
    EXPECT_EQ(formatOfExtension("tiff"), PictureFormat::Tiff);
    EXPECT_EQ(formatOfExtension("JPG"), PictureFormat::Jpeg);
    EXPECT_EQ(formatOfExtension("Png"), PictureFormat::Png);
}

TEST(ImageCodec, AnotherExtensionIsAnError) {
    for (const char* extension : {"", "webp", "ico", ".png", "png ", "jp", "svg", "nvpx"}) {
        EXPECT_EQ(errorNumberOf([&] { formatOfExtension(extension); }),
                  error_number::InvalidArgument)
            << extension;
    }
}

TEST(ImageCodec, EveryFormatIsKnownByItsBytes) {
    for (const PictureFormat format : allFormats) {
        const PictureInfo info = probePicture(encodePicture(quarters(), format));
        EXPECT_EQ(info.format, format);
        EXPECT_EQ(info.size, QSize(64, 48));
    }
}

TEST(ImageCodec, FourFormatsBringEveryPixelBack) {
    for (const PictureFormat format :
         {PictureFormat::Bmp, PictureFormat::Gif, PictureFormat::Png, PictureFormat::Tiff}) {
        const QImage back = decodePicture(encodePicture(quarters(), format));
        EXPECT_EQ(back.convertToFormat(QImage::Format_RGB32), quarters())
            << static_cast<int>(format);
    }
}

TEST(ImageCodec, JpegBringsPlainColoursBackWithinTwoSteps) {
    const QImage back = decodePicture(encodePicture(quarters(), PictureFormat::Jpeg));
    for (const QPoint& point : {QPoint(8, 8), QPoint(50, 8), QPoint(8, 40), QPoint(50, 40)}) {
        const QColor was = quarters().pixelColor(point);
        const QColor is = back.pixelColor(point);
        EXPECT_NEAR(is.red(), was.red(), 2);
        EXPECT_NEAR(is.green(), was.green(), 2);
        EXPECT_NEAR(is.blue(), was.blue(), 2);
    }
}

TEST(ImageCodec, PngKeepsTransparency) {
    QImage image(4, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0x00000000);
    image.setPixel(1, 0, 0x80FF0000);
    image.setPixel(2, 0, 0xFF00FF00);
    image.setPixel(3, 0, 0x01FFFFFF);
    const QImage back = decodePicture(encodePicture(image, PictureFormat::Png));
    EXPECT_EQ(back.convertToFormat(QImage::Format_ARGB32), image);
}

TEST(ImageCodec, TheSmallestPictureGoesThroughEveryFormat) {
    for (const PictureFormat format : allFormats) {
        const QImage back =
            decodePicture(encodePicture(testing::plainImage({1, 1}, Qt::white), format));
        EXPECT_EQ(back.size(), QSize(1, 1));
        EXPECT_EQ(back.pixelColor(0, 0), QColor(Qt::white)) << static_cast<int>(format);
    }
}

TEST(ImageCodec, OtherFormatsThatTheSystemReadsAreRefused) {
    for (const char* format : {"webp", "ico", "ppm", "xpm"}) {
        const QByteArray bytes = writtenAs(format);
        EXPECT_EQ(errorNumberOf([&] { probePicture(bytes); }), error_number::InvalidPicture)
            << format;
        EXPECT_EQ(errorNumberOf([&] { decodePicture(bytes); }), error_number::InvalidPicture)
            << format;
    }
}

TEST(ImageCodec, BytesThatAreNoPictureAreRefused) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("x"), QByteArray("<html>"), QByteArray("GIF89a"),
          QByteArray("BM"), QByteArray("\x89PNG\r\n\x1A\n"), QByteArray("\xFF\xD8\xFF"),
          QByteArray("II*\0", 4), QByteArray(1000, '\0')}) {
        EXPECT_EQ(errorNumberOf([&] { probePicture(bytes); }), error_number::InvalidPicture)
            << bytes.left(6).toHex().toStdString();
        EXPECT_EQ(errorNumberOf([&] { decodePicture(bytes); }), error_number::InvalidPicture)
            << bytes.left(6).toHex().toStdString();
    }
}

TEST(ImageCodec, APngCutShortIsRefusedFromItsHeader) {
    const QByteArray whole = writtenAs("png");
    for (const qsizetype kept : {whole.size() / 2, whole.size() - 12}) {
        EXPECT_EQ(errorNumberOf([&] { probePicture(whole.left(kept)); }),
                  error_number::InvalidPicture)
            << kept;
    }
}

TEST(ImageCodec, EveryFormatCutShortEndsInAPictureOfItsSizeOrARefusal) {
    for (const PictureFormat format : allFormats) {
        const QByteArray whole = encodePicture(quarters(), format);
        for (qsizetype kept = 0; kept < whole.size(); kept += 1 + whole.size() / 97) {
            try {
                EXPECT_EQ(decodePicture(whole.left(kept)).size(), QSize(64, 48));
            } catch (const Error& error) {
                EXPECT_EQ(error.number(), error_number::InvalidPicture);
            }
        }
    }
}

TEST(ImageCodec, NoPictureCannotBeEncodedInAnyFormat) {
    for (const PictureFormat format : allFormats) {
        EXPECT_EQ(errorNumberOf([&] { encodePicture(QImage(), format); }),
                  error_number::InvalidPicture)
            << static_cast<int>(format);
    }
}

TEST(ImageCodec, ASideThatTheFormatCannotTellIsAnErrorOfTheEncoder) {
    const QImage wide(70000, 1, QImage::Format_RGB32);
    for (const PictureFormat format : {PictureFormat::Gif, PictureFormat::Jpeg}) {
        EXPECT_EQ(errorNumberOf([&] { encodePicture(wide, format); }), error_number::InvalidPicture)
            << static_cast<int>(format);
    }
}

TEST(ImageCodec, OfAMovingPictureTheFirstImageIsDecoded) {
    const QByteArray one = encodePicture(testing::plainImage({8, 8}, Qt::red), PictureFormat::Gif);
    const QByteArray two = encodePicture(testing::plainImage({8, 8}, Qt::blue), PictureFormat::Gif);
    // A header of 13 bytes, a palette of two colours, then the image: the second image takes the
    // palette along as its own.
    const QByteArray palette = two.mid(13, 6);
    QByteArray image = two.mid(19);
    image[9] = static_cast<char>(0x80);
    const QByteArray moving = one.chopped(1) + image.insert(10, palette);
    QBuffer buffer;
    buffer.setData(moving);
    ASSERT_EQ(QImageReader(&buffer).imageCount(), 2);
    EXPECT_EQ(decodePicture(moving).pixelColor(4, 4), QColor(Qt::red));
    EXPECT_EQ(decodePicture(moving).size(), QSize(8, 8));
}

TEST(ImageCodec, TheSizeOfAGifIsThatOfItsDecodedPicture) {
    // A small image somewhere on a much larger screen.
    QByteArray bytes = encodePicture(testing::plainImage({16, 16}, Qt::red), PictureFormat::Gif);
    bytes.replace(6, 4, QByteArray("\xB8\x0B\xB8\x0B", 4));  // 3000 x 3000
    EXPECT_EQ(decodePicture(bytes).size(), probePicture(bytes).size);
}

}  // namespace nubivane
