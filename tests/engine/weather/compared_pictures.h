// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <algorithm>
#include <cstdlib>

namespace nubivane::weather::testing {

/// Pixels of two pictures of one size of which a channel differs by more than `tolerance`, of 255.
inline int differentPixels(const QImage& a, const QImage& b, int tolerance) {
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            const int apart =
                std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                          std::abs(qBlue(one) - qBlue(other))});
            different += apart > tolerance ? 1 : 0;
        }
    }
    return different;
}

}  // namespace nubivane::weather::testing
