// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/huffman_code.h"

#include "engine/help/help_error.h"

namespace nubivane {

HuffmanCode::HuffmanCode(std::span<const std::uint8_t> lengths) {
    for (const std::uint8_t length : lengths) {
        ++counts_[length];
    }
    counts_[0] = 0;
    std::array<std::size_t, MaxLength + 2> starts{};
    std::int64_t room = 1;
    for (std::size_t length = 1; length <= MaxLength; ++length) {
        room = room * 2 - counts_[length];
        if (room < 0) {
            throw damagedHelp("more codes than bits");
        }
        starts[length + 1] = starts[length] + counts_[length];
    }
    symbols_.resize(starts[MaxLength + 1]);
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        if (lengths[symbol] != 0) {
            symbols_[starts[lengths[symbol]]++] = static_cast<std::uint16_t>(symbol);
        }
    }
}

void HuffmanCode::failNoCode() {
    throw damagedHelp("bits that are no code");
}

}  // namespace nubivane
