// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

#include <vector>

namespace nubivane {

/// The corners of the polyline that stands for the Bezier curve through control points, first and
/// last point included; empty for fewer than two. Pixels.
std::vector<QPoint> bezierCorners(const std::vector<QPoint>& controls);

}  // namespace nubivane
