// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/durable_file.h"

#include "support/fixtures.h"

#include <QFile>

#include <cerrno>

namespace nubivane {

TEST(DurableFile, WhatWasWrittenIsInTheFileOnceItIsFlushed) {
    const testing::TemporaryFolder folder;
    QFile file(folder.file("a"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("one");
    EXPECT_TRUE(durable_file::flush(file));
    EXPECT_EQ(testing::readFile(folder.file("a")), "one");
}

TEST(DurableFile, AFullDiskIsToldAtTheFlush) {
    QFile full("/dev/full");
    ASSERT_TRUE(full.open(QIODevice::WriteOnly));
    full.write("few bytes, which a buffer takes");
    EXPECT_FALSE(durable_file::flush(full));
    EXPECT_FALSE(durable_file::reasonOf(full).isEmpty());
}

TEST(DurableFile, AReasonThatQtDoesNotKnowIsTheSystems) {
    const QFile file("/nowhere");
    errno = EFBIG;
    EXPECT_EQ(durable_file::reasonOf(file), "File too large");
}

TEST(DurableFile, AFolderThatCannotBeFlushedIsNoFailure) {
    const testing::TemporaryFolder folder;
    durable_file::flushFolder(folder.path());
    durable_file::flushFolder(folder.file("none"));
}

}  // namespace nubivane
