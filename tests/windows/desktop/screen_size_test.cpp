// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/screen_size.h"

#include "support/scripted_shell.h"

#include <gtest/gtest.h>

namespace nubivane::testing {

TEST(ScreenSize, TheHeightAloneIsNeverTested) {
    ScriptedShell shell;
    EXPECT_TRUE(screenSuffices(shell, {1024, 600}));
    EXPECT_TRUE(screenSuffices(shell, {1920, 1080}));
}

TEST(ScreenSize, ANarrowScreenIsAskedAbout) {
    ScriptedShell shell;
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        shell.expectMessage(
            "Nubivane requires a minimum resolution of 1024 x 768 pixels.\rThe current resolution "
            "is 1023 x 900, do you want to continue anyway ?",
            Icon::Exclamation, Buttons::YesNo, answer);
        EXPECT_EQ(screenSuffices(shell, {1023, 900}), answer == Answer::Yes);
    }
}

}  // namespace nubivane::testing
