// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace nubivane {

/// A canonical prefix code, made from the lengths of its symbols' codes.
class HuffmanCode {
  public:
    static constexpr int MaxLength = 16;  // bits

    /// `lengths` are from 0 (the symbol does not occur) to MaxLength. Raises `Error` when there are
    /// more codes than their lengths leave room for.
    explicit HuffmanCode(std::span<const std::uint8_t> lengths);

    /// The next symbol; `nextBit` gives the bits, the first of a code first. Raises `Error` for
    /// bits that are no code.
    template <class NextBit>
    int decode(NextBit nextBit) const {
        std::uint32_t code = 0;
        std::uint32_t first = 0;
        std::size_t index = 0;
        for (int length = 1; length <= MaxLength; ++length) {
            code |= nextBit();
            const std::uint32_t count = counts_[static_cast<std::size_t>(length)];
            if (code < first + count) {
                return symbols_[index + (code - first)];
            }
            index += count;
            first = (first + count) << 1;
            code <<= 1;
        }
        failNoCode();
    }

  private:
    [[noreturn]] static void failNoCode();

    std::array<std::uint32_t, MaxLength + 1> counts_{};
    std::vector<std::uint16_t> symbols_;  ///< by length, then by number
};

}  // namespace nubivane
