// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace nubivane {

/// A button of the strip `pctTlbDraw`.
struct ToolRow {
    const char* name;  ///< value of `CurrentTool`, also the name of its icon
    const char* hint;
};

/// In the order of `btnDraw`. The first one leaves the map alone.
inline constexpr std::array<ToolRow, 8> toolTable = {{
    {"cursor", "Select and move symbols"},
    {"draw", "Draw by hand"},
    {"erase", "Erase what is drawn"},
    {"color", "Pick a color from the map"},
    {"line", "Line"},
    {"curvy", "Curve"},
    {"circle", "Circle"},
    {"poly", "Open polygon"},
}};

}  // namespace nubivane
