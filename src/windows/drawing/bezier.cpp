// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/bezier.h"

#include <cmath>

namespace nubivane {

namespace {

constexpr double Step = 0.06;
constexpr int Steps = 16;  // as often as the step goes into 1

double factorial(int n) {
    return n == 0 ? 1.0 : n * factorial(n - 1);
}

/// The weight of control point k of a curve of degree n at t.
double bernstein(int k, int n, double t) {
    return factorial(n) / (factorial(k) * factorial(n - k)) * std::pow(t, k) *
           std::pow(1.0 - t, n - k);
}

/// The weights add up to 1 but for the last digits, which must not bring a point that lies on a
/// pixel down to the one before.
int wholePart(double value) {
    return static_cast<int>(std::floor(value + 1e-9));
}

QPoint curvePoint(const std::vector<QPoint>& controls, double t) {
    const int n = static_cast<int>(controls.size()) - 1;
    double x = 0.0;
    double y = 0.0;
    for (int k = 0; k <= n; ++k) {
        const QPoint& control = controls[static_cast<std::size_t>(k)];
        const double weight = bernstein(k, n, t);
        x += control.x() * weight;
        y += control.y() * weight;
    }
    return {wholePart(x), wholePart(y)};
}

}  // namespace

std::vector<QPoint> bezierCorners(const std::vector<QPoint>& controls) {
    if (controls.size() < 2) {
        return {};
    }
    std::vector<QPoint> corners = {controls.front()};
    for (int i = 0; i <= Steps; ++i) {
        corners.push_back(curvePoint(controls, i * Step));
    }
    corners.push_back(controls.back());  // the steps do not land on 1
    return corners;
}

}  // namespace nubivane
