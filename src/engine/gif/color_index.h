// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRgb>

#include <array>
#include <cstdint>
#include <vector>

namespace nubivane {

/// Gives up to 256 colours numbers in the order in which they come.
class ColorIndex {
  public:
    static constexpr int Full = -1;

    /// The number of a colour, which is added if it is new; `Full` when there is no room for it.
    int add(QRgb color) {
        const std::size_t slot = slotOf(color);
        if (numbers_[slot] < 0) {
            if (colors_.size() == 256) {
                return Full;
            }
            keys_[slot] = color;
            numbers_[slot] = static_cast<std::int16_t>(colors_.size());
            colors_.push_back(color);
        }
        return numbers_[slot];
    }

    /// The number of a colour, or -1.
    int find(QRgb color) const { return numbers_[slotOf(color)]; }

    const std::vector<QRgb>& colors() const { return colors_; }

    ColorIndex() { numbers_.fill(-1); }

  private:
    static constexpr std::size_t Size = 1024;

    std::size_t slotOf(QRgb color) const {
        std::size_t slot = color * 2654435761U >> 22;
        while (numbers_[slot] >= 0 && keys_[slot] != color) {
            slot = (slot + 1) % Size;
        }
        return slot;
    }

    std::array<QRgb, Size> keys_{};
    std::array<std::int16_t, Size> numbers_{};
    std::vector<QRgb> colors_;
};

}  // namespace nubivane
