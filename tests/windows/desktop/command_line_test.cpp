// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/command_line.h"

#include "support/fixtures.h"

#include <QDir>

namespace nubivane::testing {

TEST(CommandLine, WithoutArgumentsThereIsNoProject) {
    EXPECT_EQ(projectArgument({}), "");
}

TEST(CommandLine, APathStandsAsItIs) {
    EXPECT_EQ(projectArgument({"/home/me/week.nvpf"}), "/home/me/week.nvpf");
}

TEST(CommandLine, APathThatTheSystemSplitAtItsBlanksIsOnePath) {
    EXPECT_EQ(projectArgument({"/home/me/the", "whole", "week.nvpf"}),
              "/home/me/the whole week.nvpf");
}

TEST(CommandLine, ASurroundingPairOfQuotesIsDropped) {
    EXPECT_EQ(projectArgument({"\"/home/me/the week.nvpf\""}), "/home/me/the week.nvpf");
}

TEST(CommandLine, EachQuoteIsDroppedByItself) {
    EXPECT_EQ(projectArgument({"\"week.nvpf"}), "week.nvpf");
    EXPECT_EQ(projectArgument({"week.nvpf\""}), "week.nvpf");
}

TEST(CommandLine, OnlyOnePairOfQuotesIsDropped) {
    EXPECT_EQ(projectArgument({"\"\"week.nvpf\"\""}), "\"week.nvpf\"");
    EXPECT_EQ(projectArgument({"a\"b.nvpf"}), "a\"b.nvpf");
}

TEST(CommandLine, NothingButQuotesIsNoPath) {
    EXPECT_EQ(projectArgument({"\"\""}), "");
    EXPECT_EQ(projectArgument({"\""}), "");
}

TEST(CommandLine, ATrailingBlankStays) {
    EXPECT_EQ(projectArgument({"week.nvpf "}), "week.nvpf ");
    EXPECT_EQ(projectArgument({"\"week.nvpf \""}), "week.nvpf ");
}

TEST(CommandLine, WhatLooksLikeAnOptionIsAPath) {
    EXPECT_EQ(projectArgument({"--help"}), "--help");
}

class StartableProject : public ::testing::Test {
  protected:
    QString make(const QString& name, const QString& dataName) {
        writeFile(folder_.file(name), "project");
        if (!dataName.isEmpty()) {
            writeFile(folder_.file(dataName), "pictures");
        }
        return folder_.file(name);
    }
    QString path(const QString& name) const { return folder_.file(name); }

  private:
    TemporaryFolder folder_;
};

TEST_F(StartableProject, AProjectWithItsDataFileIsOne) {
    EXPECT_TRUE(isStartableProject(make("week.nvpf", "week.nvpx")));
}

TEST_F(StartableProject, APathInQuotesWithABlankInItIsOne) {
    const QString file = make("the week.nvpf", "the week.nvpx");
    EXPECT_TRUE(isStartableProject(projectArgument({'"' + file + '"'})));
}

TEST_F(StartableProject, APathWithATrailingBlankIsNone) {
    const QString file = make("week.nvpf", "week.nvpx");
    EXPECT_FALSE(isStartableProject(projectArgument({file + ' '})));
}

TEST_F(StartableProject, AnExtensionWithATrailingBlankIsNoneEvenWhereTheFileExists) {
    EXPECT_FALSE(isStartableProject(make("week.nvpf ", "week.nvpx")));
}

TEST_F(StartableProject, AnExtensionInCapitalsPasses) {
    EXPECT_TRUE(isStartableProject(make("WEEK.NVPF", "WEEK.nvpx")));
    EXPECT_TRUE(isStartableProject(make("day.NvPf", "day.nvpx")));
}

TEST_F(StartableProject, AnyOtherExtensionIsNoneEvenBesideADataFile) {
    EXPECT_FALSE(isStartableProject(make("week.xml", "week.nvpx")));
    EXPECT_FALSE(isStartableProject(make("day.nvpfx", "day.nvpx")));
    EXPECT_FALSE(isStartableProject(path("day.nvpx")));
}

TEST_F(StartableProject, AProjectWithoutItsDataFileIsNone) {
    EXPECT_FALSE(isStartableProject(make("week.nvpf", {})));
}

TEST_F(StartableProject, TheDataFileOfAnotherProjectDoesNotServe) {
    EXPECT_FALSE(isStartableProject(make("week.nvpf", "day.nvpx")));
}

TEST_F(StartableProject, AMissingProjectIsNoneEvenWithADataFile) {
    writeFile(path("week.nvpx"), "pictures");
    EXPECT_FALSE(isStartableProject(path("week.nvpf")));
}

TEST_F(StartableProject, AFolderIsNone) {
    writeFile(path("week.nvpx"), "pictures");
    ASSERT_TRUE(QDir().mkpath(path("week.nvpf")));
    EXPECT_FALSE(isStartableProject(path("week.nvpf")));
}

TEST_F(StartableProject, TheDotThatCountsIsTheLastOne) {
    EXPECT_TRUE(isStartableProject(make("week.12.nvpf", "week.12.nvpx")));
    EXPECT_FALSE(isStartableProject(make("day.12.nvpf", "day.nvpx")));
}

TEST(StartRefusal, ItsTextIsThePathADotAndTheReason) {
    EXPECT_EQ(notStartableText("/home/me/week.txt"),
              "/home/me/week.txt.\r"
              "This is not a valid Nubivane file, or its format is not currently supported.");
}

}  // namespace nubivane::testing
