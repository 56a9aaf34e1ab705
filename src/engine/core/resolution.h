// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

/// How large things are on maps, pages and paper: a pixel is the 96th part of an inch, a point the
/// 72nd.
inline constexpr int PixelsPerInch = 96;
inline constexpr int PointsPerInch = 72;

}  // namespace nubivane
