// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

namespace nubivane {

/// Calls `work(0)` … `work(count - 1)` on as many threads as the machine has cores and returns when
/// all are done. Meanwhile `waiting(done)` runs on the calling thread some fifty times a second
/// with the number of finished calls, so that a window can repaint. The first exception ends the
/// run and is raised again here.
void parallelFor(std::size_t count, const std::function<void(std::size_t)>& work,
                 const std::function<void(std::size_t)>& waiting = {});

}  // namespace nubivane
