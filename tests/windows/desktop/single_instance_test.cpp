// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/single_instance.h"

#include "support/fixtures.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nubivane::testing {

TEST(SingleInstance, TheFirstFindsNoOther) {
    const TemporaryFolder folder;
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST(SingleInstance, TheSecondRaisesTheFirst) {
    const TemporaryFolder folder;
    SingleInstance first(folder.path());
    int raised = 0;
    QObject::connect(&first, &SingleInstance::raised, &first, [&raised] { ++raised; });
    ASSERT_TRUE(first.isFirst());

    SingleInstance second(folder.path());
    EXPECT_FALSE(second.isFirst());
    EXPECT_TRUE(QTest::qWaitFor([&raised] { return raised == 1; }));
}

TEST(SingleInstance, EveryFurtherOneRaisesTheFirstAgain) {
    const TemporaryFolder folder;
    SingleInstance first(folder.path());
    int raised = 0;
    QObject::connect(&first, &SingleInstance::raised, &first, [&raised] { ++raised; });
    ASSERT_TRUE(first.isFirst());
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(SingleInstance(folder.path()).isFirst());
    }
    EXPECT_TRUE(QTest::qWaitFor([&raised] { return raised == 3; }));
}

TEST(SingleInstance, AProgramInAnotherFolderIsAnother) {
    const TemporaryFolder folder;
    const TemporaryFolder other;
    SingleInstance first(folder.path());
    ASSERT_TRUE(first.isFirst());
    EXPECT_TRUE(SingleInstance(other.path()).isFirst());
}

TEST(SingleInstance, OneThatHasEndedIsNotFound) {
    const TemporaryFolder folder;
    {
        SingleInstance first(folder.path());
        ASSERT_TRUE(first.isFirst());
    }
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST(SingleInstance, WhatACrashedOneLeftBehindIsNotInTheWay) {
    const TemporaryFolder folder;
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        SingleInstance crashing(folder.path());
        crashing.isFirst();
        _exit(0);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);

    SingleInstance next(folder.path());
    EXPECT_TRUE(next.isFirst());
    bool raised = false;
    QObject::connect(&next, &SingleInstance::raised, &next, [&raised] { raised = true; });
    EXPECT_FALSE(SingleInstance(folder.path()).isFirst());
    EXPECT_TRUE(QTest::qWaitFor([&raised] { return raised; }));
}

TEST(SingleInstance, MeetsNobodyInAFolderThatOthersCanWrite) {
    const TemporaryFolder folder;
    const TemporaryFolder session;
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(session.path()));
    ASSERT_EQ(::chmod(QFile::encodeName(session.path()).constData(), 0777), 0);
    SingleInstance first(folder.path());
    EXPECT_TRUE(first.isFirst());
    EXPECT_FALSE(SingleInstance(folder.path()).isFirst()) << "they meet in the user's own folder";
    EXPECT_TRUE(QDir(session.path()).isEmpty());
    qputenv("XDG_RUNTIME_DIR", before);
    qputenv("HOME", home);
}

}  // namespace nubivane::testing
