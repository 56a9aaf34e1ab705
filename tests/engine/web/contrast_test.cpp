// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/contrast.h"

#include "support/fixtures.h"

namespace nubivane::testing {

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_DOUBLE_EQ(contrast(0xFF000000, 0xFFFFFFFF), 21);
    EXPECT_DOUBLE_EQ(contrast(0xFFFFFFFF, 0xFF000000), 21);
    EXPECT_DOUBLE_EQ(contrast(0xFF336699, 0xFF336699), 1);
    // Known from every table of such colours: the lightest grey for white paper.
    EXPECT_NEAR(contrast(0xFF767676, 0xFFFFFFFF), 4.54, 0.005);
    EXPECT_NEAR(contrast(0xFF777777, 0xFFFFFFFF), 4.48, 0.005);
}

TEST(Contrast, WhatCanBeReadStays) {
    EXPECT_EQ(readable(0xFF00008B, 0xFFFFFFFF), 0xFF00008B);
    EXPECT_EQ(readable(0xFF767676, 0xFFFFFFFF), 0xFF767676);
}

TEST(Contrast, WhatCannotBeReadMovesNoFurtherThanItMust) {
    EXPECT_EQ(readable(0xFF777777, 0xFFFFFFFF), 0xFF767676);
}

TEST(Contrast, EveryInkCanBeReadOnEveryGround) {
    for (int r = 0; r <= 255; r += 51) {
        for (int g = 0; g <= 255; g += 51) {
            for (int b = 0; b <= 255; b += 51) {
                const QRgb ground = qRgb(r, g, b);
                for (const QRgb ink : {ground, qRgb(b, r, g), qRgb(255 - r, g, b)}) {
                    EXPECT_GE(contrast(readable(ink, ground), ground), ReadableContrast);
                }
            }
        }
    }
}

}  // namespace nubivane::testing
