// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/durable_file.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

#include <QDir>

namespace nubivane {

namespace {

class DurableFile : public ::testing::Test {
  protected:
    testing::TemporaryFolder folder;
};

template <class Work>
bool refusesAccess(Work work) {
    try {
        work();
    } catch (const Error& error) {
        EXPECT_FALSE(error.cause().isEmpty());
        return error.number() == error_number::FileAccess;
    }
    return false;
}

}  // namespace

TEST_F(DurableFile, WhatIsAppendedStandsInTheFinishedFile) {
    QFile file(folder.file("a"));
    durable_file::create(file);
    durable_file::append(file, "one");
    durable_file::append(file, {});
    durable_file::append(file, "two");
    durable_file::finish(file);
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(testing::readFile(folder.file("a")), "onetwo");
}

TEST_F(DurableFile, CreatingEmptiesAFileThatIsThere) {
    testing::writeFile(folder.file("a"), "a long old content");
    QFile file(folder.file("a"));
    durable_file::create(file);
    durable_file::finish(file);
    EXPECT_EQ(testing::readFile(folder.file("a")), "");
}

TEST_F(DurableFile, CreatingInPlaceOfAFolderOrInNoneIsRefused) {
    QFile inNone(folder.file("none/a"));
    EXPECT_TRUE(refusesAccess([&] { durable_file::create(inNone); }));
    QFile aFolder(folder.path());
    EXPECT_TRUE(refusesAccess([&] { durable_file::create(aFolder); }));
}

TEST_F(DurableFile, AFullDiskIsToldBeforeTheFileIsFinished) {
    QFile full("/dev/full");
    durable_file::create(full);
    EXPECT_TRUE(refusesAccess([&] {
        durable_file::append(full, "few bytes, which a buffer takes");
        durable_file::finish(full);
    }));
    QFile again("/dev/full");
    durable_file::create(again);
    EXPECT_TRUE(refusesAccess([&] {
        durable_file::append(again, QByteArray(1 << 20, 'x'));
        durable_file::finish(again);
    }));
}

TEST_F(DurableFile, RenamingReplacesTheTarget) {
    testing::writeFile(folder.file("new"), "new");
    testing::writeFile(folder.file("old"), "old");
    durable_file::renameOver(folder.file("new"), folder.file("old"));
    EXPECT_EQ(testing::readFile(folder.file("old")), "new");
    EXPECT_FALSE(QFileInfo::exists(folder.file("new")));
}

TEST_F(DurableFile, RenamingWhatIsNotThereIsRefusedAndSparesTheTarget) {
    testing::writeFile(folder.file("old"), "old");
    EXPECT_TRUE(
        refusesAccess([&] { durable_file::renameOver(folder.file("none"), folder.file("old")); }));
    EXPECT_EQ(testing::readFile(folder.file("old")), "old");
}

TEST_F(DurableFile, RenamingOverAFolderIsRefusedAndSparesBoth) {
    testing::writeFile(folder.file("new"), "new");
    testing::writeFile(folder.file("old/inside"), "old");
    EXPECT_TRUE(
        refusesAccess([&] { durable_file::renameOver(folder.file("new"), folder.file("old")); }));
    EXPECT_EQ(testing::readFile(folder.file("new")), "new");
    EXPECT_EQ(testing::readFile(folder.file("old/inside")), "old");
}

}  // namespace nubivane
