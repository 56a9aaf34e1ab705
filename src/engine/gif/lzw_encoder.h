// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>
#include <span>

namespace nubivane {

/// How hard the coder tries to find the fewest bytes.
enum class LzwEffort {
    Quick,   ///< follows the first string that fits; begins a new table of codes when one is full
    Search,  ///< tries also to follow several strings at once, and many places for new tables
};

/// The image data of a GIF (Appendix F of GIF89a): the code size, then sub-blocks, the empty one at
/// their end included. `bits` (2 to 8) is what the largest index takes.
///
/// A pixel may be given two indexes that look the same; the coder takes whichever prolongs the
/// string that it is following. `alternatives` is empty or as long as `pixels`.
QByteArray encodeLzw(std::span<const std::uint8_t> pixels,
                     std::span<const std::uint8_t> alternatives, int bits, LzwEffort effort);

}  // namespace nubivane
