// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/folder_lock.h"

#include "support/fixtures.h"

#include <QDir>
#include <QElapsedTimer>

#include <sys/wait.h>
#include <unistd.h>

namespace nubivane::testing {

using namespace std::chrono_literals;

TEST(FolderLock, KeepsOthersOutUntilItEnds) {
    const TemporaryFolder folder;
    {
        const FolderLock lock(folder.path());
        EXPECT_TRUE(lock.held());
        EXPECT_EQ(FolderLock(folder.path(), 0ms).state(), FolderLock::State::Busy);
    }
    EXPECT_TRUE(FolderLock(folder.path(), 0ms).held());
}

TEST(FolderLock, ReleasedLetsOthersIn) {
    const TemporaryFolder folder;
    FolderLock lock(folder.path());
    lock.release();
    EXPECT_FALSE(lock.held());
    EXPECT_TRUE(FolderLock(folder.path(), 0ms).held());
}

TEST(FolderLock, WaitsNoLongerThanItIsAllowedTo) {
    const TemporaryFolder folder;
    const FolderLock lock(folder.path());
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(FolderLock(folder.path(), 50ms).state(), FolderLock::State::Busy);
    EXPECT_GE(clock.elapsed(), 50);
    EXPECT_LT(clock.elapsed(), 20000);
}

TEST(FolderLock, EndsWithItsProcessAndLeavesNothing) {
    const TemporaryFolder folder;
    const pid_t child = ::fork();
    if (child == 0) {
        const FolderLock lock(folder.path());
        ::_exit(lock.held() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(FolderLock(folder.path(), 0ms).held());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(FolderLock, AFolderThatIsNotThereIsUnknown) {
    const TemporaryFolder folder;
    EXPECT_EQ(FolderLock(folder.file("none")).state(), FolderLock::State::Unknown);
}

}  // namespace nubivane::testing
