// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

/// Tells calls that wait on other threads to give up at once. Any thread may raise it.
class StopSignal {
  public:
    StopSignal();
    ~StopSignal();
    StopSignal(const StopSignal&) = delete;
    StopSignal& operator=(const StopSignal&) = delete;

    void raise() const;
    void clear() const;
    bool raised() const;

    /// Readable for poll(2) while the signal is raised.
    int descriptor() const { return descriptor_; }

    /// Waits until the signal is raised or the time is over; true when it is raised.
    bool wait(int milliseconds) const;

  private:
    int descriptor_;
};

}  // namespace nubivane
