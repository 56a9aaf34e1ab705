// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_encoder.h"

#include "engine/core/error.h"
#include "engine/picture/image_codec.h"
#include "engine/picture/made_pictures.h"
#include "support/fixtures.h"

#include <cmath>

namespace nubivane::testing {

namespace {

/// How many pixels share a value of colour, across and down, as the frame header tells: 0x11 for
/// one.
int colorSampling(const QByteArray& jpeg) {
    for (qsizetype at = 2; at + 9 < jpeg.size();) {
        const auto marker = static_cast<uchar>(jpeg[at + 1]);
        if (marker == 0xC0) {
            return static_cast<uchar>(jpeg[at + 11]);
        }
        at += 2 + (static_cast<uchar>(jpeg[at + 2]) << 8) + static_cast<uchar>(jpeg[at + 3]);
    }
    return 0;
}

/// Coloured lines of one pixel on a pale ground, as thin letters are.
QImage lettering() {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(qRgb(200, 220, 180));
    for (int y = 0; y < 64; y += 3) {
        for (int x = 0; x < 64; ++x) {
            image.setPixel(x, y, y % 2 == 0 ? qRgb(220, 0, 0) : qRgb(0, 0, 200));
        }
    }
    return image;
}

double squareError(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum += std::pow(qRed(p) - qRed(q), 2) + std::pow(qGreen(p) - qGreen(q), 2) +
                   std::pow(qBlue(p) - qBlue(q), 2);
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

}  // namespace

TEST(JpegEncoder, EveryPixelHasAColourOfItsOwn) {
    const QByteArray bytes = encodeJpegWithFullColor(lettering(), 92);
    EXPECT_EQ(colorSampling(bytes), 0x11);
    EXPECT_EQ(probePicture(bytes).format, PictureFormat::Jpeg);
    EXPECT_EQ(probePicture(bytes).size, QSize(64, 64));
}

TEST(JpegEncoder, ThinColouredLinesKeepTheirColour) {
    const QImage picture = lettering();
    const double full = squareError(picture, decodePicture(encodeJpegWithFullColor(picture, 92)));
    const double usual =
        squareError(picture, decodePicture(encodePicture(picture, PictureFormat::Jpeg)));
    EXPECT_LT(full * 10, usual);
    // 20 lg (255 / e) is at least 40 dB.
    EXPECT_LT(std::sqrt(full), 2.55);
}

TEST(JpegEncoder, APictureIs96PixelsToTheInch) {
    const QByteArray bytes = encodeJpegWithFullColor(lettering(), 92);
    EXPECT_EQ(bytes.mid(6, 5), QByteArray("JFIF\0", 5));
    EXPECT_EQ(bytes.mid(13, 5), QByteArray("\1\0\x60\0\x60", 5));
}

TEST(JpegEncoder, SeeThroughPlacesLieOnWhite) {
    QImage glass(8, 8, QImage::Format_ARGB32);
    glass.fill(Qt::transparent);
    const QImage shown = decodePicture(encodeJpegWithFullColor(glass, 92));
    EXPECT_EQ(shown.pixel(4, 4), qRgb(255, 255, 255));
}

TEST(JpegEncoder, APictureWithoutASizeIsRefused) {
    EXPECT_THROW(encodeJpegWithFullColor(QImage(), 92), Error);
}

TEST(JpegEncoder, APictureBeyondTheFormatIsRefusedWithTheLibrarysReason) {
    try {
        encodeJpegWithFullColor(plainImage({65501, 1}, Qt::white), 92);
        FAIL() << "it was encoded";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), error_number::InvalidPicture);
        EXPECT_TRUE(error.cause().contains("65500")) << error.what();
    }
}

TEST(JpegEncoder, OddSidesAndASinglePixelAreWritten) {
    for (const QSize size : {QSize(1, 1), QSize(17, 3), QSize(8, 1)}) {
        const QImage picture = plainImage(size, Qt::darkCyan);
        EXPECT_EQ(decodePicture(encodeJpegWithFullColor(picture, 92)).size(), size);
    }
}

}  // namespace nubivane::testing
