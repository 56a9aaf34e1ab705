// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/quantizer.h"

#include <gmock/gmock.h>

namespace nubivane::testing {

TEST(Quantizer, TakesMoreColoursAfterAPictureOfMillions) {
    // More than the library counts one by one, each once.
    QImage picture(1500, 1400, QImage::Format_RGB32);
    quint32 color = 0;
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            line[x] = 0xFF000000 | (color += 7);
        }
    }
    Quantizer quantizer(256);
    quantizer.add(picture);
    quantizer.keep({qRgb(255, 0, 0)});
    quantizer.add(std::vector<CountedColor>{{qRgb(1, 2, 3), 50}, {qRgb(250, 240, 10), 20}});
    const std::vector<QRgb> palette = quantizer.palette();
    EXPECT_GT(palette.size(), 200U);
    EXPECT_LE(palette.size(), 256U);
    EXPECT_THAT(palette, ::testing::Contains(qRgb(255, 0, 0)));
}

}  // namespace nubivane::testing
