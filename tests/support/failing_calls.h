// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/temporary_name.h"
#include "support/fixtures.h"
#include "support/system_calls.h"

#include <QDir>

#include <functional>
#include <string>
#include <vector>

namespace nubivane::testing {

/// A writer whose calls into the system are made to fail, one in each run. As with
/// `system_calls.h`, one test file of an executable includes this.
struct FailingWriter {
    std::string name;
    std::function<bool()> run;  ///< false when it says that it could not write
    QStringList files;          ///< what it writes, as host paths
    /// True when the content of a file is what a run without a failure writes.
    std::function<bool(const QString& file, const QByteArray& content)> isNew;
    bool mayVanish = false;  ///< what is made anew in a folder that is emptied before
};

inline const QByteArray OldContent = "what stood there before";

class FailingCalls {
  public:
    explicit FailingCalls(FailingWriter writer) : writer_(std::move(writer)) {}

    /// Has each call fail in turn, until a run makes no more.
    void failEach(int error) {
        for (int n = 1; n < Enough; ++n) {
            putOldFiles();
            std::string failed;
            const bool done = runUnder([&, seen = 0](system_calls::Call& call) mutable {
                if (++seen == n) {
                    failed = call.name;
                    call.error = error;
                }
            });
            if (failed.empty()) {
                EXPECT_TRUE(done) << writer_.name << " without a failure";
                EXPECT_GT(n, LeastCalls) << writer_.name << ": the calls are not seen";
                return;
            }
            const std::string when =
                writer_.name + ", call " + std::to_string(n) + " (" + failed + ") failed";
            expectWhole(done, when);
            if (failed == "unlink") {
                EXPECT_TRUE(writer_.run()) << when;  // what is left goes with the next run
            }
            expectNoLeftovers(when);
        }
        FAIL() << writer_.name << ": no run came to its end";
    }

    /// From the n-th write on the disk is full: no byte more is taken.
    void fillTheDiskAtEachWrite() {
        for (int n = 1; n < Enough; ++n) {
            putOldFiles();
            int writes = 0;
            const bool done = runUnder([&](system_calls::Call& call) {
                if (call.name == "write" && ++writes >= n) {
                    call.error = ENOSPC;
                }
            });
            const std::string when = writer_.name + ", full at write " + std::to_string(n);
            expectWhole(done, when);
            expectNoLeftovers(when);
            if (writes < n) {
                EXPECT_TRUE(done) << when;
                return;
            }
        }
        FAIL() << writer_.name << ": no run came to its end";
    }

    /// The system takes half of what it is given, each time.
    void takeHalfOfEachWrite() {
        putOldFiles();
        EXPECT_TRUE(runUnder([](system_calls::Call& call) {
            if (call.name == "write" && call.count > 1) {
                call.count /= 2;
            }
        })) << writer_.name;
        expectWhole(true, writer_.name + ", taken by halves");
        expectNoLeftovers(writer_.name);
    }

  private:
    static constexpr int Enough = 2000;
    static constexpr int LeastCalls = 5;  // open, lock, write, flush, rename

    bool runUnder(system_calls::Hook hook) const {
        const system_calls::Watch watch(std::move(hook));
        return writer_.run();
    }

    void putOldFiles() const {
        for (const QString& file : writer_.files) {
            writeFile(file, OldContent);
        }
    }

    /// Each file is the old or the new one, and all are new where the writer says so.
    void expectWhole(bool done, const std::string& when) const {
        int news = 0;
        for (const QString& file : writer_.files) {
            if (writer_.mayVanish && !QFile::exists(file)) {
                continue;
            }
            const QByteArray content = readFile(file);
            const bool isNew = writer_.isNew(file, content);
            EXPECT_TRUE(isNew || content == OldContent)
                << when << ": " << file.toStdString() << " is torn";
            news += isNew ? 1 : 0;
        }
        if (done) {
            EXPECT_EQ(news, writer_.files.size()) << when << ", which was not told";
        }
    }

    void expectNoLeftovers(const std::string& when) const {
        for (const QString& file : writer_.files) {
            const QDir folder = QFileInfo(file).dir();
            for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
                EXPECT_FALSE(temporary_name::isOurs(name)) << when << ": " << name.toStdString();
            }
        }
    }

    FailingWriter writer_;
};

/// All of it, with the refusals that a disk and a folder give.
inline void failEveryCallOf(const FailingWriter& writer) {
    FailingCalls calls(writer);
    calls.failEach(ENOSPC);
    calls.failEach(EIO);
    calls.fillTheDiskAtEachWrite();
    calls.takeHalfOfEachWrite();
}

}  // namespace nubivane::testing
