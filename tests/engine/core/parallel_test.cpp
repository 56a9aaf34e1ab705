// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/parallel.h"

#include "support/fixtures.h"

#include <atomic>
#include <future>
#include <stdexcept>
#include <thread>
#include <vector>

namespace nubivane {

TEST(Parallel, EachIndexIsWorkedOnce) {
    std::vector<std::atomic<int>> calls(1000);
    parallelFor(calls.size(), [&](std::size_t i) { ++calls[i]; });
    for (std::size_t i = 0; i < calls.size(); ++i) {
        EXPECT_EQ(calls[i], 1) << i;
    }
}

TEST(Parallel, NoWorkCallsNothing) {
    parallelFor(
        0, [](std::size_t) { ADD_FAILURE(); }, [](std::size_t) { ADD_FAILURE(); });
}

TEST(Parallel, OneWorkIsEnough) {
    int calls = 0;
    parallelFor(1, [&](std::size_t i) { calls += 1 + static_cast<int>(i); });
    EXPECT_EQ(calls, 1);
}

TEST(Parallel, WaitingRunsOnTheCallingThreadWhileWorkGoesOn) {
    const std::thread::id caller = std::this_thread::get_id();
    std::promise<void> mayFinish;
    const std::shared_future<void> permission = mayFinish.get_future();
    int rounds = 0;
    parallelFor(
        2, [&](std::size_t) { permission.wait(); },
        [&](std::size_t done) {
            EXPECT_EQ(std::this_thread::get_id(), caller);
            EXPECT_LE(done, 2U);
            if (++rounds == 3) {
                EXPECT_EQ(done, 0U);
                mayFinish.set_value();
            }
        });
    EXPECT_GE(rounds, 3);
}

TEST(Parallel, WaitingIsToldHowMuchIsDone) {
    std::promise<void> mayFinish;
    const std::shared_future<void> permission = mayFinish.get_future();
    bool released = false;
    parallelFor(
        5, [&](std::size_t i) { i == 4 ? permission.wait() : void(); },
        [&](std::size_t done) {
            if (done == 4 && !released) {
                released = true;
                mayFinish.set_value();
            }
        });
    EXPECT_TRUE(released);
}

TEST(Parallel, AnExceptionIsRaisedAgainForTheCaller) {
    try {
        parallelFor(10, [](std::size_t i) {
            if (i == 3) {
                throw std::runtime_error("three");
            }
        });
        ADD_FAILURE() << "nothing was raised";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "three");
    }
}

TEST(Parallel, AnExceptionEndsTheRun) {
    std::atomic<std::size_t> calls = 0;
    EXPECT_THROW(parallelFor(1'000'000,
                             [&](std::size_t) {
                                 ++calls;
                                 throw std::runtime_error("stop");
                             }),
                 std::runtime_error);
    EXPECT_LE(calls, std::max(1U, std::thread::hardware_concurrency()));
}

TEST(Parallel, AnExceptionWhileWaitingArrivesWhenTheWorkIsDone) {
    std::promise<void> mayFinish;
    const std::shared_future<void> permission = mayFinish.get_future();
    std::atomic<int> finished = 0;
    EXPECT_THROW(parallelFor(
                     2,
                     [&](std::size_t) {
                         permission.wait();
                         ++finished;
                     },
                     [&](std::size_t) {
                         mayFinish.set_value();
                         throw std::logic_error("window closed");
                     }),
                 std::logic_error);
    EXPECT_EQ(finished, 2);
}

}  // namespace nubivane
