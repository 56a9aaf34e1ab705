#include "app/single_instance.h"

#include "support/fixtures.h"

#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

namespace nubivane::testing {

TEST(SingleInstance, TheFirstFindsNoOther) {
    const TemporaryFolder folder;
    EXPECT_FALSE(SingleInstance(folder.path()).raiseOther());
}

TEST(SingleInstance, TheSecondRaisesTheFirst) {
    const TemporaryFolder folder;
    SingleInstance first(folder.path());
    int raised = 0;
    first.raised = [&raised] { ++raised; };
    first.listen();

    SingleInstance second(folder.path());
    EXPECT_TRUE(second.raiseOther());
    EXPECT_TRUE(QTest::qWaitFor([&raised] { return raised == 1; }));
}

TEST(SingleInstance, EveryFurtherOneRaisesTheFirstAgain) {
    const TemporaryFolder folder;
    SingleInstance first(folder.path());
    int raised = 0;
    first.raised = [&raised] { ++raised; };
    first.listen();
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(SingleInstance(folder.path()).raiseOther());
    }
    EXPECT_TRUE(QTest::qWaitFor([&raised] { return raised == 3; }));
}

TEST(SingleInstance, AProgramInAnotherFolderIsAnother) {
    const TemporaryFolder folder;
    const TemporaryFolder other;
    SingleInstance first(folder.path());
    first.listen();
    EXPECT_FALSE(SingleInstance(other.path()).raiseOther());
}

TEST(SingleInstance, OneThatHasEndedIsNotFound) {
    const TemporaryFolder folder;
    {
        SingleInstance first(folder.path());
        first.listen();
    }
    EXPECT_FALSE(SingleInstance(folder.path()).raiseOther());
}

TEST(SingleInstance, WhatACrashedOneLeftBehindIsNotInTheWay) {
    const TemporaryFolder folder;
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        SingleInstance crashing(folder.path());
        crashing.listen();
        _exit(0);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);

    SingleInstance next(folder.path());
    EXPECT_FALSE(next.raiseOther());
    bool raised = false;
    next.raised = [&raised] { raised = true; };
    next.listen();
    EXPECT_TRUE(SingleInstance(folder.path()).raiseOther());
    EXPECT_TRUE(QTest::qWaitFor([&raised] { return raised; }));
}

}  // namespace nubivane::testing
