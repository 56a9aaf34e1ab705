// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_stage.h"

namespace nubivane {

/// When a stage is taken for an animation: at 0, `interval`, 2 x `interval` and so on, up to and
/// including the end of the longest loop. Milliseconds.
struct CapturePlan {
    qint64 longestLoop;
    qint64 interval;

    qint64 count() const { return longestLoop / interval + 1; }
};

/// How a user trades images for bytes: the step between captures is taken once, twice, three times.
inline constexpr int MaxCompression = 3;

/// More captures than anyone waits for; only a symbol made to do harm asks for them.
inline constexpr qint64 MaxCaptures = 20'000;

/// The plan of an animated GIF. Raises `Error` (OutOfRange) beyond `MaxCaptures`.
CapturePlan planGif(const StageTiming& timing, int compression);

/// That of a video, which differs for a Frame without Symbols.
CapturePlan planVideo(const StageTiming& timing, int compression);

}  // namespace nubivane
