// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace nubivane {

/// What happens in the caller's thread while another one works.
struct Meanwhile {
    std::function<void()> tick{};         ///< some twenty times a second
    std::function<void()> interrupted{};  ///< the program ends: the work should stop
};

/// A thread for calls that block, while the caller's own events go on: windows repaint and buttons
/// work.
class WorkerThread {
  public:
    WorkerThread() = default;
    ~WorkerThread();
    WorkerThread(const WorkerThread&) = delete;
    WorkerThread& operator=(const WorkerThread&) = delete;

    /// Runs `work` on the thread and returns when it is done; what it throws is thrown here. The
    /// caller's events run meanwhile, so a second call may come out of one of them: it returns
    /// false and does nothing.
    bool run(const std::function<void()>& work, const Meanwhile& meanwhile = {});

    bool busy() const { return busy_; }

  private:
    void loop();

    bool busy_ = false;  // of the caller's thread alone
    std::mutex mutex_;
    std::condition_variable changed_;
    std::function<void()> job_;  ///< empty when there is none
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace nubivane
