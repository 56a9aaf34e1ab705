// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/parallel.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace nubivane {

void parallelFor(std::size_t count, const std::function<void(std::size_t)>& work,
                 const std::function<void(std::size_t)>& waiting) {
    std::mutex mutex;
    std::condition_variable changed;
    std::size_t next = 0;
    std::size_t done = 0;
    std::size_t running = 0;
    std::exception_ptr failure;

    const auto worker = [&] {
        std::unique_lock lock(mutex);
        while (next < count && !failure) {
            const std::size_t index = next++;
            lock.unlock();
            std::exception_ptr error;
            try {
                work(index);
            } catch (...) {
                error = std::current_exception();
            }
            lock.lock();
            ++done;
            if (error && !failure) {
                failure = error;
            }
        }
        --running;
        changed.notify_one();
    };

    {
        std::vector<std::jthread> threads;
        const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
        running = std::min(cores, count);
        for (std::size_t i = std::min(cores, count); i > 0; --i) {
            threads.emplace_back(worker);
        }
        std::unique_lock lock(mutex);
        while (running > 0) {
            changed.wait_for(lock, std::chrono::milliseconds(20));
            if (waiting) {
                const std::size_t finished = done;
                lock.unlock();
                waiting(finished);
                lock.lock();
            }
        }
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
}

}  // namespace nubivane
