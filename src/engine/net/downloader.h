// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/worker_thread.h"
#include "engine/net/stop_signal.h"

#include <QString>

#include <atomic>
#include <functional>

namespace nubivane {

/// Fetches a file from a web server while the caller's events run. Nothing appears under the final
/// name before the whole file is there.
class Downloader {
  public:
    /// Limits in seconds: until the connection stands, and without a byte.
    explicit Downloader(int connectLimit = 20, int stallLimit = 30)
        : connectLimit_(connectLimit), stallLimit_(stallLimit) {}
    ~Downloader() { abort(); }
    Downloader(const Downloader&) = delete;
    Downloader& operator=(const Downloader&) = delete;

    /// Bytes so far and all of them; 0 while that is not known.
    std::function<void(qint64 bytes, qint64 total)> progress;

    /// Fetches `url` (http or https) to a path with backslashes.
    bool fetch(const QString& url, const QString& target);
    /// Makes a running `fetch` fail.
    void abort() { stop_.raise(); }

    /// Why the last `fetch` failed.
    const QString& failure() const { return failure_; }

    /// The last part of a URL's path as the name of a file; empty when it is none.
    static QString fileNameOf(const QString& url);

  private:
    struct Job;

    void transfer(Job& job);

    int connectLimit_;
    int stallLimit_;
    QString failure_;
    StopSignal stop_;
    std::atomic<qint64> bytes_ = 0;
    std::atomic<qint64> total_ = 0;
    WorkerThread worker_;  // the last: its thread ends before what it works with
};

}  // namespace nubivane
