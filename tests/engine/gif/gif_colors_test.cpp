// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_colors.h"

#include "engine/picture/made_pictures.h"
#include "support/fixtures.h"

#include <QSet>

namespace nubivane::testing {

namespace {

constexpr QSize Size(120, 90);

QSet<QRgb> colorsOf(const QImage& image) {
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors;
}

QSet<QRgb> changedColors(const QImage& before, const QImage& after) {
    QSet<QRgb> colors;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y)) {
                colors.insert(after.pixel(x, y));
            }
        }
    }
    return colors;
}

}  // namespace

TEST(GifColors, PicturesOfFewColoursStayAsTheyAre) {
    const QImage map = scattered(Size, 250);
    GifColors colors;
    for (int i = 0; i < 5; ++i) {
        const QImage picture = withSquare(map, {i * 10, 20, 30, 30}, Qt::white);
        EXPECT_EQ(colors.next({picture, map}), picture) << i;
    }
}

TEST(GifColors, With256ColoursInAllNothingIsLostHoweverMuchChanges) {
    const QImage map = scattered({16, 32}, 256);
    const QImage other = map.mirrored(false, true);
    GifColors colors;
    EXPECT_EQ(colors.next({map, map}), map);
    EXPECT_EQ(colors.next({other, map}), other);
}

TEST(GifColors, AShadedMapComesDownToAPalette) {
    const QImage map = shaded(Size);
    ASSERT_GT(colorsOf(map).size(), 256);
    const QImage shown = GifColors().next({map, map});
    EXPECT_LE(colorsOf(shown).size(), 256);
    EXPECT_GT(psnr(shown, map), 28);
}

TEST(GifColors, AFlatSymbolOnAShadedMapKeepsItsColour) {
    const QImage map = shaded(Size);
    GifColors colors;
    for (int i = 0; i < 5; ++i) {
        const QRect square(10 + i * 15, 30, 20, 20);
        const QImage shown = colors.next({withSquare(map, square, QColor(200, 30, 90)), map});
        EXPECT_EQ(colorsOf(shown.copy(square)), QSet<QRgb>({qRgb(200, 30, 90)})) << i;
    }
}

TEST(GifColors, TheMapStandsStillWhateverMovesOverIt) {
    const QImage map = shaded(Size);
    GifColors colors;
    QImage known(Size, QImage::Format_ARGB32);
    known.fill(0U);
    for (int i = 0; i < 12; ++i) {
        const QImage picture = withSquare(map, {(i * 35) % 100, 30, 20, 25}, Qt::red);
        const QImage shown = colors.next({picture, map});
        for (int y = 0; y < Size.height(); ++y) {
            for (int x = 0; x < Size.width(); ++x) {
                if (picture.pixel(x, y) != map.pixel(x, y)) {
                    continue;
                }
                if (known.pixel(x, y) != 0) {
                    ASSERT_EQ(shown.pixel(x, y), known.pixel(x, y))
                        << x << ", " << y << " in " << i;
                }
                known.setPixel(x, y, shown.pixel(x, y));
            }
        }
    }
}

TEST(GifColors, WhatDoesNotChangeInTheAnimationDoesNotChangeInTheResult) {
    const QImage map = shaded(Size);
    // A shaded symbol of more colours than a palette holds, beside one that moves.
    QImage still = map;
    QPainter(&still).drawImage(60, 40, shaded({50, 45}, 17).mirrored());
    GifColors colors;
    QImage before;
    QImage shownBefore;
    for (int i = 0; i < 6; ++i) {
        const QImage picture = withSquare(still, {i * 8, 5, 30, 20}, QColor(40 * i, 0, 0));
        const QImage shown = colors.next({picture, map});
        for (int y = 0; i > 0 && y < Size.height(); ++y) {
            for (int x = 0; x < Size.width(); ++x) {
                if (before.pixel(x, y) == picture.pixel(x, y)) {
                    ASSERT_EQ(shownBefore.pixel(x, y), shown.pixel(x, y)) << x << ", " << y;
                }
            }
        }
        before = picture;
        shownBefore = shown;
    }
}

TEST(GifColors, WhatChangesNeverTakesMoreThan255Colours) {
    GifColors colors;
    QImage before;
    for (int i = 0; i < 5; ++i) {
        // Map and symbols change as a whole each time.
        const QImage map = shaded(Size, i * 13);
        QImage picture = map;
        QPainter(&picture).drawImage(10 * i, 10, shaded({60, 60}, 5 + i).mirrored());
        const QImage shown = colors.next({picture, map});
        if (i > 0) {
            EXPECT_LE(changedColors(before, shown).size(), 255);
        }
        EXPECT_GT(psnr(shown, picture), 26) << i;
        before = shown;
    }
}

TEST(GifColors, ALineDrawnOnTheNextMapLeavesTheRestOfItAlone) {
    const QImage map = shaded(Size);
    const QImage drawn = withSquare(map, {20, 20, 60, 3}, QColor(255, 0, 0));
    GifColors colors;
    const QImage first = colors.next({map, map});
    const QImage second = colors.next({drawn, drawn});
    EXPECT_EQ(colorsOf(second.copy(20, 20, 60, 3)), QSet<QRgb>({qRgb(255, 0, 0)}));
    EXPECT_EQ(changedColors(first, second), QSet<QRgb>({qRgb(255, 0, 0)}));
}

TEST(GifColors, FineComesCloserToAShadedMap) {
    const QImage map = shaded(Size);
    const QImage usual = GifColors(GifQuality::Usual).next({map, map});
    const QImage fine = GifColors(GifQuality::Fine).next({map, map});
    EXPECT_GT(psnr(fine, map), psnr(usual, map));
    EXPECT_LE(colorsOf(fine).size(), 256);
}

TEST(GifColors, AShadedSymbolIsNotBandedByAMapOfManyColours) {
    const QImage map = shaded({300, 220});
    // A ball that goes from yellow to orange, hardly a hundredth of the picture.
    const QRect ball(130, 90, 24, 24);
    QImage picture = map;
    for (int y = ball.top(); y <= ball.bottom(); ++y) {
        for (int x = ball.left(); x <= ball.right(); ++x) {
            picture.setPixel(x, y, qRgb(250, 240 - 4 * (x - ball.left()), 6 * (y - ball.top())));
        }
    }
    const QImage shown = GifColors().next({picture, map});
    EXPECT_GT(psnr(shown.copy(ball), picture.copy(ball)), 24);
    EXPECT_GT(colorsOf(shown.copy(ball)).size(), 12);
}

TEST(GifColors, TheSamePicturesGiveTheSameColours) {
    const QImage map = shaded(Size);
    QImage picture = map;
    QPainter(&picture).drawImage(30, 20, shaded({60, 60}, 5).mirrored());
    EXPECT_EQ(GifColors().next({picture, map}), GifColors().next({picture, map}));
}

}  // namespace nubivane::testing
