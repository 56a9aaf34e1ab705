// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/halftone.h"

#include "engine/picture/made_pictures.h"
#include "support/fixtures.h"

#include <QSet>

namespace nubivane::testing {

namespace {

constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb White = qRgb(255, 255, 255);

QImage undecided(QSize size) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Undecided);
    return image;
}

QImage decided(const QImage& picture, const std::vector<QRgb>& palette, HalftoneWeights weights) {
    QImage shown = undecided(picture.size());
    Halftone(palette, weights).decide(picture, picture.rect(), shown);
    return shown;
}

QImage grey(QSize size, int level) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(level, level, level));
    return image;
}

/// The share of white pixels.
double whiteness(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == White ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (image.width() * image.height());
}

/// How often neighbours in a row differ.
int changes(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x) {
            count += image.pixel(x, y) != image.pixel(x - 1, y) ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

TEST(Halftone, ColoursOfThePaletteStandAsTheyAre) {
    const QImage picture = scattered({50, 120}, 40);
    std::vector<QRgb> palette;
    for (int i = 0; i < 40; ++i) {
        palette.push_back(picture.pixel(i, 0));
    }
    EXPECT_EQ(decided(picture, palette, {4, 0}).convertToFormat(QImage::Format_RGB32), picture);
}

TEST(Halftone, AColourBetweenTwoBecomesAMixtureOfBoth) {
    for (const int level : {64, 128, 192}) {
        const QImage shown = decided(grey({96, 100}, level), {Black, White}, {20, 0});
        EXPECT_NEAR(whiteness(shown), level / 255.0, 0.06) << level;
    }
}

TEST(Halftone, WithoutABlurEveryPixelGetsTheNearestColour) {
    EXPECT_EQ(whiteness(decided(grey({40, 60}, 120), {Black, White}, {0, 0})), 0);
    EXPECT_EQ(whiteness(decided(grey({40, 60}, 135), {Black, White}, {0, 0})), 1);
}

TEST(Halftone, ChangesAreAvoidedAsFarAsTheyCount) {
    const QImage picture = shaded({160, 120});
    std::vector<QRgb> palette;
    for (int i = 0; i < 216; ++i) {
        palette.push_back(qRgb(i / 36 * 51, i / 6 % 6 * 51, i % 6 * 51));
    }
    const QImage close = decided(picture, palette, {4, 0});
    const QImage plain = decided(picture, palette, {4, 1});
    EXPECT_LT(changes(plain), changes(close) * 3 / 4);
    EXPECT_GT(psnr(plain, picture), 22);
}

TEST(Halftone, DecidedPixelsAndThoseOutsideTheRectangleStay) {
    const QImage picture = grey({60, 120}, 128);
    QImage shown = undecided(picture.size());
    const QRgb strange = qRgb(9, 99, 199);
    shown.setPixel(20, 50, strange);
    const QRect rect(10, 5, 30, 110);
    Halftone({Black, White}, {4, 0}).decide(picture, rect, shown);
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const QRgb color = shown.pixel(x, y);
            if (!rect.contains(x, y)) {
                ASSERT_EQ(color, Undecided) << x << ", " << y;
            } else if (QPoint(x, y) == QPoint(20, 50)) {
                ASSERT_EQ(color, strange);
            } else {
                ASSERT_TRUE(color == Black || color == White) << x << ", " << y;
            }
        }
    }
}

TEST(Halftone, WhatIsDecidedAlreadyIsMadeUpForAround) {
    // A white field on mid grey: the pixels around it are darker than elsewhere.
    const QImage picture = grey({41, 41}, 128);
    QImage shown = undecided(picture.size());
    for (int y = 18; y < 23; ++y) {
        for (int x = 18; x < 23; ++x) {
            shown.setPixel(x, y, White);
        }
    }
    Halftone({Black, White}, {20, 0}).decide(picture, picture.rect(), shown);
    int white = 0;
    for (int i = 17; i < 24; ++i) {
        white += (shown.pixel(i, 17) == White) + (shown.pixel(i, 23) == White);
        white += (shown.pixel(17, i) == White) + (shown.pixel(23, i) == White);
    }
    EXPECT_LT(white, 6);  // of 28
}

TEST(Halftone, PalettesOfOneColourAndPicturesOfOnePixelServe) {
    EXPECT_EQ(decided(grey({1, 1}, 90), {White}, {4, 1}).pixel(0, 0), White);
    EXPECT_EQ(whiteness(decided(grey({200, 1}, 3), {Black, White}, {4, 1})), 0);
    EXPECT_EQ(whiteness(decided(grey({1, 200}, 253), {Black, White}, {4, 1})), 1);
}

}  // namespace nubivane::testing
