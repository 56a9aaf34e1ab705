// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/status.h"

/// The tools for the figures of weather maps, one for each group of figures. They follow the tools
/// of plain lines in the strip and in `cStatus::CurrentTool`, for which they are tools like all
/// others.
namespace nubivane::weather_tool {

inline constexpr Tool front{8};
inline constexpr Tool isoline{9};
inline constexpr Tool area{10};
inline constexpr Tool arrow{11};
inline constexpr Tool text{12};

}  // namespace nubivane::weather_tool

namespace nubivane {

constexpr bool isWeatherTool(Tool tool) {
    return tool > Tool::poly;
}

}  // namespace nubivane
