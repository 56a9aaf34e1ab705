// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_still.h"

#include "support/fixtures.h"

#include <QBuffer>
#include <QImageReader>

#include <cmath>
#include <random>

namespace nubivane {

namespace {

/// The picture as the system's own reader sees it.
QImage readBack(const QByteArray& gif) {
    QBuffer buffer;
    buffer.setData(gif);
    QImageReader reader(&buffer, "gif");
    const QImage image = reader.read();
    EXPECT_FALSE(image.isNull()) << reader.errorString().toStdString();
    return image.convertToFormat(QImage::Format_ARGB32);
}

/// `colors` different colours, scattered so that the coder's table fills and is cleared.
QImage ofColors(QSize size, int colors) {
    QImage image(size, QImage::Format_ARGB32);
    std::minstd_rand random(7);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int pixel = y * size.width() + x;
            image.setPixel(
                x, y, qRgb(pixel < colors ? pixel : static_cast<int>(random() % colors), 9, 77));
        }
    }
    return image;
}

/// Smooth colours, many more than a palette holds.
QImage gradient(QSize size) {
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(255 * x / size.width(), 255 * y / size.height(), 128));
        }
    }
    return image;
}

}  // namespace

TEST(GifStill, IsAGif89aFileThatEndsWithItsTrailer) {
    const QByteArray gif = encodeGifStill(testing::plainImage({3, 3}, Qt::red));
    EXPECT_TRUE(gif.startsWith("GIF89a"));
    EXPECT_TRUE(gif.endsWith(';'));
}

TEST(GifStill, EveryNumberOfColoursUpTo256IsExact) {
    for (const int colors : {1, 2, 3, 4, 5, 8, 9, 16, 17, 32, 33, 64, 65, 128, 129, 255, 256}) {
        const QImage image = ofColors({40, 40}, colors);
        EXPECT_EQ(readBack(encodeGifStill(image)), image) << colors << " colours";
    }
}

TEST(GifStill, ManyScatteredPixelsAreExact) {
    const QImage image = ofColors({301, 207}, 256);
    EXPECT_EQ(readBack(encodeGifStill(image)), image);
}

TEST(GifStill, NarrowAndFlatPicturesAreExact) {
    for (const QSize& size : {QSize(1, 1), QSize(1, 256), QSize(256, 1)}) {
        const QImage image = ofColors(size, std::min(256, size.width() * size.height()));
        EXPECT_EQ(readBack(encodeGifStill(image)), image);
    }
}

TEST(GifStill, TransparentPixelsStaySoAndOpaqueOnesAreExact) {
    QImage image = ofColors({40, 40}, 255);
    for (int i = 0; i < 40; ++i) {
        image.setPixel(i, 39, 0x00123456);
    }
    const QImage back = readBack(encodeGifStill(image));
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            if (y == 39) {
                EXPECT_EQ(qAlpha(back.pixel(x, y)), 0);
            } else {
                ASSERT_EQ(back.pixel(x, y), image.pixel(x, y)) << x << ", " << y;
            }
        }
    }
}

TEST(GifStill, ATransparentBlackIsNotTakenForAnOpaqueOne) {
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0xFF000000);
    image.setPixel(1, 0, 0x00000000);
    const QImage back = readBack(encodeGifStill(image));
    EXPECT_EQ(back.pixel(0, 0), 0xFF000000);
    EXPECT_EQ(qAlpha(back.pixel(1, 0)), 0);
}

TEST(GifStill, AWhollyTransparentPictureStaysSo) {
    QImage image(5, 5, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const QImage back = readBack(encodeGifStill(image));
    EXPECT_EQ(back.size(), QSize(5, 5));
    EXPECT_EQ(qAlpha(back.pixel(2, 2)), 0);
}

TEST(GifStill, HalfTransparentPixelsBecomeOpaque) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0x80FF0000);
    image.setPixel(1, 0, 0x0100FF00);
    image.setPixel(2, 0, 0xFE0000FF);
    const QImage back = readBack(encodeGifStill(image));
    EXPECT_EQ(back.pixel(0, 0), 0xFFFF0000);
    EXPECT_EQ(back.pixel(1, 0), 0xFF00FF00);
    EXPECT_EQ(back.pixel(2, 0), 0xFF0000FF);
}

TEST(GifStill, TheFormatOfTheImageDoesNotMatter) {
    const QImage image = ofColors({20, 20}, 200);
    for (const QImage::Format format :
         {QImage::Format_RGB32, QImage::Format_RGB888, QImage::Format_ARGB32_Premultiplied,
          QImage::Format_RGBA64}) {
        EXPECT_EQ(readBack(encodeGifStill(image.convertToFormat(format))), image) << format;
    }
    QImage indexed(4, 4, QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(1, 2, 3), qRgb(4, 5, 6)});
    indexed.fill(1);
    EXPECT_EQ(readBack(encodeGifStill(indexed)).pixel(3, 3), qRgb(4, 5, 6));
}

TEST(GifStill, With257ColoursEveryPixelIsStillClose) {
    QImage image = ofColors({40, 40}, 256);
    image.setPixel(39, 39, qRgb(0, 200, 0));
    const QImage back = readBack(encodeGifStill(image));
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            ASSERT_NEAR(qRed(back.pixel(x, y)), qRed(image.pixel(x, y)), 6);
            ASSERT_NEAR(qGreen(back.pixel(x, y)), qGreen(image.pixel(x, y)), 6);
            ASSERT_NEAR(qBlue(back.pixel(x, y)), qBlue(image.pixel(x, y)), 6);
            ASSERT_EQ(qAlpha(back.pixel(x, y)), 255);
        }
    }
}

TEST(GifStill, ManyColoursKeepTheLookOfThePicture) {
    const QImage image = gradient({160, 120});
    const QImage back = readBack(encodeGifStill(image));
    double squares = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb a = image.pixel(x, y);
            const QRgb b = back.pixel(x, y);
            squares += std::pow(qRed(a) - qRed(b), 2) + std::pow(qGreen(a) - qGreen(b), 2) +
                       std::pow(qBlue(a) - qBlue(b), 2);
        }
    }
    const double mean = squares / (3.0 * image.width() * image.height());
    EXPECT_GT(10 * std::log10(255.0 * 255.0 / mean), 30) << "signal to noise in decibel";
}

TEST(GifStill, WithManyColoursTransparencyIsKeptWhereItIsFullAndNowhereElse) {
    QImage image = gradient({120, 90});
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb c = image.pixel(x, y);
            const int alpha = x < 30 ? 0 : x < 60 ? 1 + 8 * (x - 30) : 255;
            image.setPixel(x, y, qRgba(qRed(c), qGreen(c), qBlue(c), alpha));
        }
    }
    const QImage back = readBack(encodeGifStill(image));
    int wrong = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            wrong += (qAlpha(back.pixel(x, y)) == 0) != (x < 30);
        }
    }
    EXPECT_EQ(wrong, 0) << "of " << image.width() * image.height() << " pixels";
}

TEST(GifStill, TheSamePictureGivesTheSameBytes) {
    const QImage image = gradient({60, 40});
    EXPECT_EQ(encodeGifStill(image), encodeGifStill(image));
}

}  // namespace nubivane
