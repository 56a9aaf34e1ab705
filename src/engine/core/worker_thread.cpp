// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/worker_thread.h"

#include <QEventLoop>
#include <QTimer>

#include <atomic>
#include <exception>

namespace nubivane {

namespace {

constexpr int TickMs = 50;

}  // namespace

WorkerThread::~WorkerThread() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
}

bool WorkerThread::run(const std::function<void()>& work, const Meanwhile& meanwhile) {
    if (busy_) {
        return false;
    }
    busy_ = true;
    QEventLoop events;
    std::exception_ptr failure;
    std::atomic<bool> finished = false;
    {
        const std::lock_guard lock(mutex_);
        job_ = [&] {
            try {
                work();
            } catch (...) {
                failure = std::current_exception();
            }
            finished = true;
            QMetaObject::invokeMethod(&events, &QEventLoop::quit, Qt::QueuedConnection);
        };
        if (!thread_.joinable()) {
            thread_ = std::thread([this] { loop(); });
        }
    }
    changed_.notify_all();

    QTimer ticks;
    if (meanwhile.tick) {
        QObject::connect(&ticks, &QTimer::timeout, &events, meanwhile.tick);
        ticks.start(TickMs);
    }
    events.exec();
    ticks.stop();
    // The loop also ends, with the work still under way, when the whole program is told to end.
    if (!finished && meanwhile.interrupted) {
        meanwhile.interrupted();
    }
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !job_; });
    }
    busy_ = false;
    if (failure) {
        std::rethrow_exception(failure);
    }
    return true;
}

void WorkerThread::loop() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return job_ || ending_; });
        if (!job_) {
            return;
        }
        lock.unlock();
        job_();
        lock.lock();
        job_ = nullptr;
        changed_.notify_all();
    }
}

}  // namespace nubivane
