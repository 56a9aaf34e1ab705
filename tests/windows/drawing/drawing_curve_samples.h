// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

#include <vector>

namespace nubivane::testing {

/// Wide enough for 50 to the power of 14 times a map's width.
__extension__ using Wide = __int128;

inline Wide power(Wide base, int exponent) {
    Wide result = 1;
    for (int i = 0; i < exponent; ++i) {
        result *= base;
    }
    return result;
}

inline Wide binomial(int n, int k) {
    Wide result = 1;
    for (int i = 1; i <= k; ++i) {
        result = result * (n - k + i) / i;
    }
    return result;
}

/// The point of the curve at t = 3 * step / 50, that is 0.06 * step, by whole numbers alone, so
/// that nothing is rounded before the fraction is cut off.
inline QPoint curvePoint(const std::vector<QPoint>& controls, int step) {
    const int n = static_cast<int>(controls.size()) - 1;
    Wide x = 0;
    Wide y = 0;
    for (int k = 0; k <= n; ++k) {
        const Wide weight = binomial(n, k) * power(3 * step, k) * power(50 - 3 * step, n - k);
        x += weight * controls[static_cast<std::size_t>(k)].x();
        y += weight * controls[static_cast<std::size_t>(k)].y();
    }
    const Wide whole = power(50, n);
    return {static_cast<int>(x / whole), static_cast<int>(y / whole)};
}

}  // namespace nubivane::testing
