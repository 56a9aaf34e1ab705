#pragma once

#include <QByteArray>

#include <cstdint>
#include <span>

namespace nubivane {

/// What the coder does when its table of 4096 codes is full.
enum class LzwTable {
    StartOver,  ///< begins a new one at once: best for what changes from place to place
    Keep,       ///< goes on with it while it still serves: best for what repeats
};

/// The image data of a GIF (Appendix F of GIF89a): the code size, then sub-blocks, the empty one at
/// their end included. `bits` (2 to 8) is what the largest index takes.
///
/// A pixel may be given two indexes that look the same; the coder takes whichever prolongs the
/// string that it is following. `alternatives` is empty or as long as `pixels`.
QByteArray encodeLzw(std::span<const std::uint8_t> pixels,
                     std::span<const std::uint8_t> alternatives, int bits, LzwTable table);

}  // namespace nubivane
