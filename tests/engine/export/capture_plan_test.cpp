// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/capture_plan.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

namespace nubivane::testing {

namespace {

struct Plan {
    StageTiming timing;
    int compression;
    qint64 interval;
    qint64 count;
};

void PrintTo(const Plan& plan, std::ostream* out) {
    *out << plan.timing.symbols << " symbols, loop " << plan.timing.longestLoop
         << " ms, 1:" << plan.compression;
}

class GifPlan : public ::testing::TestWithParam<Plan> {};
class VideoPlan : public ::testing::TestWithParam<Plan> {};

constexpr StageTiming NoSymbols{};
constexpr StageTiming StillSymbols{3, 0, std::nullopt};
constexpr StageTiming Moving{2, 1000, 50};

}  // namespace

TEST_P(GifPlan, StepAndNumberOfCaptures) {
    const CapturePlan plan = planGif(GetParam().timing, GetParam().compression);
    EXPECT_EQ(plan.interval, GetParam().interval);
    EXPECT_EQ(plan.count(), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(
    Timings, GifPlan,
    ::testing::Values(Plan{NoSymbols, 1, 500, 1}, Plan{NoSymbols, 2, 1000, 1},
                      Plan{NoSymbols, 3, 1500, 1}, Plan{StillSymbols, 1, 500, 1},
                      Plan{StillSymbols, 3, 1500, 1}, Plan{Moving, 1, 50, 21},
                      Plan{Moving, 2, 100, 11}, Plan{Moving, 3, 150, 7},
                      // The end of the loop is captured only where a step falls on it.
                      Plan{{1, 1010, 50}, 1, 50, 21}, Plan{{1, 1050, 50}, 1, 50, 22},
                      // A step of ten seconds or more counts as none.
                      Plan{{1, 20'000, 9'990}, 1, 9'990, 3}, Plan{{1, 20'000, 10'000}, 1, 500, 41},
                      Plan{{1, 24'000, 12'000}, 1, 500, 49}));

TEST_P(VideoPlan, StepAndNumberOfCaptures) {
    const CapturePlan plan = planVideo(GetParam().timing, GetParam().compression);
    EXPECT_EQ(plan.interval, GetParam().interval);
    EXPECT_EQ(plan.count(), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(Timings, VideoPlan,
                         ::testing::Values(Plan{NoSymbols, 1, 1, 2}, Plan{NoSymbols, 2, 2, 1},
                                           Plan{NoSymbols, 3, 3, 1}, Plan{StillSymbols, 1, 500, 1},
                                           Plan{StillSymbols, 2, 1000, 1}, Plan{Moving, 1, 50, 21},
                                           Plan{Moving, 3, 150, 7}));

TEST(CapturePlanLimit, MoreCapturesThanAnyoneWaitsForAreRefused) {
    EXPECT_EQ(planGif({1, 20 * (MaxCaptures - 1), 20}, 1).count(), MaxCaptures);
    try {
        planGif({1, 20 * MaxCaptures, 20}, 1);
        FAIL() << "nothing was raised";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), error_number::OutOfRange);
    }
}

}  // namespace nubivane::testing
