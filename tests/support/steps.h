// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include <gtest/gtest.h>

#include <deque>
#include <functional>

namespace nubivane::testing {

/// What is done to a window that runs event loops of its own: each step as soon as its condition
/// holds. None of them waits, so those loops can end meanwhile. Steps that are left in the end fail
/// the test; after some seconds without one `giveUp` is called, which should end the loops.
class Steps {
  public:
    explicit Steps(std::function<void()> giveUp) : giveUp_(std::move(giveUp)) { look(); }
    ~Steps() { EXPECT_TRUE(steps_.empty()) << steps_.size() << " steps were not reached"; }
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;

    void when(std::function<bool()> condition, std::function<void()> action) {
        steps_.emplace_back(std::move(condition), std::move(action));
    }

  private:
    static constexpr int EveryMs = 10;
    static constexpr int LooksWithoutStep = 1500;

    void look() {
        // First of all, since an action may run a loop in which the next step is due.
        QTimer::singleShot(EveryMs, &context_, [this] { look(); });
        if (!steps_.empty() && steps_.front().first()) {
            const auto action = std::move(steps_.front().second);
            steps_.pop_front();
            looks_ = 0;
            action();
        } else if (++looks_ == LooksWithoutStep) {
            giveUp_();
        }
    }

    QObject context_;
    std::function<void()> giveUp_;
    std::deque<std::pair<std::function<bool()>, std::function<void()>>> steps_;
    int looks_ = 0;
};

}  // namespace nubivane::testing
