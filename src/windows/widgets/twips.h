// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

/// Twips (1/1440 inch) in a pixel: one inch is 96 pixels, on every screen.
inline constexpr int TwipsPerPixel = 15;

}  // namespace nubivane
