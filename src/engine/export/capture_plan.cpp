// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/capture_plan.h"

#include "engine/core/error.h"

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// What stands when nothing on the stage moves, or only more slowly than `SlowestStep`.
constexpr int StillInterval = 500;
constexpr int SlowestStep = 10'000;

CapturePlan plan(qint64 longestLoop, int shortest, int compression) {
    const CapturePlan result{longestLoop, std::max(1, shortest * compression)};
    if (result.count() > MaxCaptures) {
        throw Error(error_number::OutOfRange, u"export"_s, u"The animation has too many images."_s,
                    QStringLiteral("%1 images, one every %2 ms, where at most %3 are written")
                        .arg(result.count())
                        .arg(result.interval)
                        .arg(MaxCaptures));
    }
    return result;
}

int shortestInterval(const StageTiming& timing) {
    const int shortest = std::min(timing.shortestStep.value_or(SlowestStep), SlowestStep);
    return shortest == SlowestStep ? StillInterval : shortest;
}

}  // namespace

CapturePlan planGif(const StageTiming& timing, int compression) {
    return plan(timing.longestLoop, shortestInterval(timing), compression);
}

CapturePlan planVideo(const StageTiming& timing, int compression) {
    return timing.symbols == 0 ? plan(1, 1, compression) : planGif(timing, compression);
}

}  // namespace nubivane
