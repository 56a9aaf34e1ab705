// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace nubivane {

/// Row `y` of an image of 32 bits a pixel (RGB32, ARGB32): as many values as the image is wide.
inline const QRgb* constLineOf(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

/// The same to be written; the image's pixels are its own from then on.
inline QRgb* lineOf(QImage& image, int y) {
    return reinterpret_cast<QRgb*>(image.scanLine(y));
}

}  // namespace nubivane
