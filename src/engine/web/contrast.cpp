// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/contrast.h"

#include <algorithm>
#include <cmath>

namespace nubivane {

namespace {

// A way to black or white is walked in as many steps as a colour channel has.
constexpr int Steps = 255;

double linear(int channel) {
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

QRgb towards(QRgb from, int target, int step) {
    const auto mixed = [=](int channel) { return channel + (target - channel) * step / Steps; };
    return qRgb(mixed(qRed(from)), mixed(qGreen(from)), mixed(qBlue(from)));
}

/// The first step of the way that can be read; behind the last one when none can.
int firstReadable(QRgb ink, QRgb ground, int target) {
    int step = 1;
    while (step <= Steps && contrast(towards(ink, target, step), ground) < ReadableContrast) {
        ++step;
    }
    return step;
}

}  // namespace

double luminance(QRgb color) {
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

double contrast(QRgb a, QRgb b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QRgb readable(QRgb ink, QRgb ground) {
    if (contrast(ink, ground) >= ReadableContrast) {
        return ink;
    }
    const int darker = firstReadable(ink, ground, 0);
    const int lighter = firstReadable(ink, ground, 255);
    return darker <= lighter ? towards(ink, 0, darker) : towards(ink, 255, lighter);
}

}  // namespace nubivane
