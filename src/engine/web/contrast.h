// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

namespace nubivane {

/// The contrast that text must have to what is behind it (WCAG 2.2, 1.4.3).
inline constexpr double ReadableContrast = 4.5;

/// Relative luminance of a colour and contrast of two, 1 to 21, as WCAG 2.2 defines them.
double luminance(QRgb color);
double contrast(QRgb a, QRgb b);

/// `ink` as it is where it can be read on `ground`; otherwise the nearest colour on its way to
/// black or white that can.
QRgb readable(QRgb ink, QRgb ground);

}  // namespace nubivane
