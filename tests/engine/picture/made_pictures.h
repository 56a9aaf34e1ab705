// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPainter>

#include <cmath>
#include <random>

/// Pictures made for tests of GIFs and videos. All are RGB32.
namespace nubivane::testing {

/// One pixel a colour, as many as asked for, the rest at random among them.
inline QImage scattered(QSize size, int colors, unsigned seed = 7) {
    QImage image(size, QImage::Format_RGB32);
    std::minstd_rand random(seed);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int pixel = y * size.width() + x;
            const int number = pixel < colors ? pixel : static_cast<int>(random() % colors);
            image.setPixel(x, y, qRgb(number, number / 256, 77));
        }
    }
    return image;
}

/// Smooth colours, many more than a palette holds: a shaded map.
inline QImage shaded(QSize size, int shift = 0) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y,
                           qRgb(255 * ((x + shift) % size.width()) / size.width(),
                                255 * y / size.height(), (x * 3 + y * 5) % 256));
        }
    }
    return image;
}

/// A picture with a filled square on it.
inline QImage withSquare(QImage image, QRect square, QColor color) {
    QPainter(&image).fillRect(square, color);
    return image;
}

/// Signal to noise of two pictures in decibel.
inline double psnr(const QImage& a, const QImage& b) {
    double squares = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            squares += std::pow(qRed(p) - qRed(q), 2) + std::pow(qGreen(p) - qGreen(q), 2) +
                       std::pow(qBlue(p) - qBlue(q), 2);
        }
    }
    return 10 * std::log10(255.0 * 255.0 * 3.0 * a.width() * a.height() / squares);
}

}  // namespace nubivane::testing
