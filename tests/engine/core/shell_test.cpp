// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/shell.h"

#include "engine/core/error.h"
#include "engine/core/program_folder.h"
#include "support/fixtures.h"

#include <stdexcept>

namespace nubivane {

TEST(ShellGuards, TheProgressBarIsHiddenOnEveryWayOut) {
    testing::ScriptedShell shell;
    try {
        const ProgressGuard progress(shell, 10);
        EXPECT_TRUE(shell.progressVisible);
        throw std::runtime_error("a failure");
    } catch (const std::runtime_error&) {
    }
    EXPECT_FALSE(shell.progressVisible);
    EXPECT_EQ(shell.progress, QList<int>{10});
}

TEST(ShellGuards, TheHourglassGoesOnEveryWayOut) {
    testing::ScriptedShell shell;
    try {
        const HourglassGuard hourglass(shell);
        EXPECT_EQ(shell.pointer, Pointer::Hourglass);
        throw std::runtime_error("a failure");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST(ErrorText, DescriptionAndCauseStandTogether) {
    const Error error(-100, "OpenProject", "It is damaged.", QString::fromUtf8("/a/è.nvpf"));
    EXPECT_EQ(error.number(), -100);
    EXPECT_EQ(error.source(), "OpenProject");
    EXPECT_STREQ(error.what(), "It is damaged. /a/\xC3\xA8.nvpf");
}

TEST(ErrorText, WithoutACauseTheDescriptionStandsAlone) {
    EXPECT_STREQ(Error(9, "list", "No such position.").what(), "No such position.");
}

TEST(ProgramFolderPaths, EverythingLiesBelowTheFolder) {
    const ProgramFolder folder("C:\\Nubivane");
    EXPECT_EQ(folder.path(), "C:\\Nubivane");
    EXPECT_EQ(folder.maps(), "C:\\Nubivane\\Maps");
    EXPECT_EQ(folder.symbols(), "C:\\Nubivane\\Symbols");
    EXPECT_EQ(folder.web(), "C:\\Nubivane\\Web");
    EXPECT_EQ(folder.entry("Forecast.htm"), "C:\\Nubivane\\Forecast.htm");
}

TEST(ShellGuards, TheHourglassStaysUntilTheOutermostCommandEnds) {
    testing::ScriptedShell shell;
    {
        const HourglassGuard command(shell);
        { const HourglassGuard part(shell); }
        EXPECT_EQ(shell.pointer, Pointer::Hourglass);
    }
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

}  // namespace nubivane
