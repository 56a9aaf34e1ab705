// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/worker_thread.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>

namespace nubivane::testing {

TEST(WorkerThread, WorksOnAnotherThreadAndReturnsWhenItIsDone) {
    WorkerThread worker;
    Qt::HANDLE thread = nullptr;
    EXPECT_TRUE(worker.run([&] { thread = QThread::currentThreadId(); }));
    EXPECT_NE(thread, nullptr);
    EXPECT_NE(thread, QThread::currentThreadId());
}

TEST(WorkerThread, AllCallsShareOneThread) {
    WorkerThread worker;
    Qt::HANDLE first = nullptr;
    Qt::HANDLE second = nullptr;
    worker.run([&] { first = QThread::currentThreadId(); });
    worker.run([&] { second = QThread::currentThreadId(); });
    EXPECT_EQ(first, second);
}

TEST(WorkerThread, EventsOfTheCallerRunMeanwhile) {
    WorkerThread worker;
    std::atomic<bool> event = false;
    QTimer::singleShot(0, [&] { event = true; });
    worker.run([&] {
        while (!event) {
            QThread::msleep(1);
        }
    });
    EXPECT_TRUE(event);
    EXPECT_FALSE(worker.busy());
}

TEST(WorkerThread, TheTickRunsInTheCallersThread) {
    WorkerThread worker;
    std::atomic<int> ticks = 0;
    Qt::HANDLE thread = nullptr;
    const auto work = [&] {
        while (ticks < 2) {
            QThread::msleep(1);
        }
    };
    worker.run(work, {.tick = [&] {
                   thread = QThread::currentThreadId();
                   ++ticks;
               }});
    EXPECT_EQ(thread, QThread::currentThreadId());
}

TEST(WorkerThread, ACallOutOfAnEventOfAnotherDoesNothing) {
    WorkerThread worker;
    std::atomic<bool> tried = false;
    bool taken = true;
    bool worked = false;
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(worker.busy());
        taken = worker.run([&] { worked = true; });
        tried = true;
    });
    worker.run([&] {
        while (!tried) {
            QThread::msleep(1);
        }
    });
    EXPECT_FALSE(taken);
    EXPECT_FALSE(worked);
}

TEST(WorkerThread, WhatTheWorkThrowsArrives) {
    WorkerThread worker;
    EXPECT_THROW(worker.run([] { throw std::runtime_error("broken"); }), std::runtime_error);
    EXPECT_TRUE(worker.run([] {}));
}

TEST(WorkerThread, TheEndOfTheProgramInterruptsTheWorkAndWaitsForIt) {
    WorkerThread worker;
    std::atomic<bool> started = false;
    std::atomic<bool> interrupted = false;
    bool finished = false;
    const auto work = [&] {
        started = true;
        while (!interrupted) {
            QThread::msleep(1);
        }
        finished = true;
    };
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, [&] {
        if (started) {
            QCoreApplication::exit();
        }
    });
    end.start(1);
    // Inside the program's own loop, as in the editor.
    QTimer::singleShot(0, [&] {
        worker.run(work, {.interrupted = [&] { interrupted = true; }});
        EXPECT_TRUE(finished);
    });
    QCoreApplication::exec();
    EXPECT_TRUE(finished);
}

}  // namespace nubivane::testing
