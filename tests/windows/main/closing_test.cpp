// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QFile>

namespace nubivane {

/// Closing the main window, with and without unsaved work.
class Closing : public testing::EditorFixture {
  protected:
    void expectGuard(Answer answer) {
        shell.expectMessage("The project has been changed. Save file before closing ?",
                            Icon::Exclamation, Buttons::YesNoCancel, answer);
    }
    bool stored() { return !settings.text(Setting::WindowFormTop).isEmpty() || storedNormal(); }
    bool storedNormal() { return settings.text(Setting::WindowWidthFirstRead) != u"12900"; }
};

TEST_F(Closing, AnUntouchedProjectAsksNothing) {
    start();
    EXPECT_TRUE(window().close());
    EXPECT_FALSE(window().isVisible());
}

TEST_F(Closing, CancelKeepsTheWindowAndStoresNothing) {
    start();
    placeSymbol({200, 150});
    expectGuard(Answer::Cancel);
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_FALSE(stored());
    EXPECT_EQ(window().canvas().sprites().controls().size(), 1u);
    workspace.ProjectChanged = false;
}

TEST_F(Closing, NoClosesWithoutSaving) {
    start();
    placeSymbol({200, 150});
    expectGuard(Answer::No);
    EXPECT_TRUE(window().close());
    EXPECT_TRUE(stored());
    EXPECT_EQ(workspace.Status.CurrentProject, "");
}

TEST_F(Closing, YesSavesUnderANewNameAndCloses) {
    start();
    placeSymbol({200, 150});
    expectGuard(Answer::Yes);
    shell.expectSaveDialog("Save project", model("week.nvpf"));
    EXPECT_TRUE(window().close());
    EXPECT_TRUE(QFile::exists(host("week.nvpf")));
    EXPECT_TRUE(QFile::exists(host("week.nvpx")));
    EXPECT_TRUE(stored());
}

TEST_F(Closing, YesSavesAProjectThatHasANameWithoutAsking) {
    start();
    shell.expectSaveDialog("Save project", model("week.nvpf"));
    trigger("mnuSaveProject");
    const QByteArray before = testing::readFile(host("week.nvpf"));
    placeSymbol({200, 150});
    expectGuard(Answer::Yes);
    EXPECT_TRUE(window().close());
    EXPECT_NE(testing::readFile(host("week.nvpf")), before);
}

TEST_F(Closing, YesWithoutANameChosenKeepsTheWindow) {
    start();
    placeSymbol({200, 150});
    expectGuard(Answer::Yes);
    shell.expectSaveDialog("Save project", {});
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(stored());
    workspace.ProjectChanged = false;
}

TEST_F(Closing, YesWithASaveThatFailsKeepsTheWindowAndTheWork) {
    start();
    placeSymbol({200, 150});
    expectGuard(Answer::Yes);
    shell.expectSaveDialog("Save project", model("no extension").replace('.', '_'));
    shell.expectMessage("An error occurred while saving the project.", Icon::Critical);
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(window().acceptsInput());
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 1);
    workspace.ProjectChanged = false;
}

TEST_F(Closing, ExitClosesTheWindow) {
    start();
    trigger("mnuEsci");
    EXPECT_FALSE(window().isVisible());
}

TEST_F(Closing, ExitAsksLikeTheCloseBox) {
    start();
    placeLabel({200, 150});
    expectGuard(Answer::Cancel);
    trigger("mnuEsci");
    EXPECT_TRUE(window().isVisible());
    workspace.ProjectChanged = false;
}

TEST_F(Closing, TheSplitterAndTheLockAreStored) {
    start();
    trigger("mnuLock");
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::WindowSplitter), "360");
    EXPECT_EQ(settings.text(Setting::Locked), "1");
}

TEST_F(Closing, AnOpenLockIsStoredAsZero) {
    settings.set(Setting::Locked, "1");
    start();
    trigger("mnuLock");
    ASSERT_TRUE(window().close());
    EXPECT_EQ(settings.text(Setting::Locked), "0");
}

TEST_F(Closing, TheSpritesOnTheScreenGoAndThePointerReturns) {
    start();
    placeSymbol({200, 150});
    workspace.ProjectChanged = false;
    ASSERT_TRUE(window().close());
    EXPECT_TRUE(window().canvas().sprites().controls().empty());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(Closing, AWindowThatGoesWhileItsSymbolsAreStillBeingReadWaitsForThem) {
    const QByteArray gif = testing::readFile(host("Symbols/set-1/sun.gif"));
    for (int i = 0; i < 200; ++i) {
        testing::writeFile(host("Symbols/set-1/sun" + QString::number(i) + ".gif"), gif);
    }
    for (int i = 0; i < 10; ++i) {
        frmMap passing(workspace, shell);
        passing.Init({});
    }
}

}  // namespace nubivane
