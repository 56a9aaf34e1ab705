// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QFile>

namespace nubivane {

/// New, open, save and save as, from the menus of the window.
class ProjectMenu : public testing::EditorFixture {
  protected:
    void save(const QString& name) {
        shell.expectSaveDialog("Save project", model(name));
        trigger("mnuSaveProject");
    }
    void openFromMenu(const QString& name) {
        shell.expectOpenDialog("Open project", name.isEmpty() ? QString() : model(name));
        trigger("mnuOpenProject");
    }
    void expectGuard(Answer answer) {
        shell.expectMessage("The project has been changed. Save file before closing ?",
                            Icon::Exclamation, Buttons::YesNoCancel, answer);
    }
    /// Two Frames with a symbol on the first and a label on the second, saved as "week.nvpf".
    void saveTwoFrames() {
        placeSymbol({100, 100});
        trigger("mnuFrameInsert");
        placeLabel({200, 150});
        save("week.nvpf");
    }
    void TearDown() override { workspace.ProjectChanged = false; }
};

TEST_F(ProjectMenu, SaveAsksForANameTheFirstTimeOnly) {
    start();
    placeSymbol({100, 100});
    save("week.nvpf");
    EXPECT_TRUE(QFile::exists(host("week.nvpf")));
    EXPECT_EQ(window().windowTitle(), "week.nvpf - Nubivane");
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(shell.lastFileRequest.folder, workspace.folder.path());
    EXPECT_EQ(shell.lastFileRequest.filter, "Nubivane files (*.nvpf)|*.nvpf|");
    EXPECT_TRUE(shell.lastFileRequest.confirmOverwrite);
    placeSymbol({200, 100});
    trigger("mnuSaveProject");
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(ProjectMenu, SaveAsAlwaysAsks) {
    start();
    save("week.nvpf");
    shell.expectSaveDialog("Save project as", model("month.nvpf"));
    trigger("mnuSaveProjectAs");
    EXPECT_EQ(window().windowTitle(), "month.nvpf - Nubivane");
    EXPECT_EQ(workspace.Status.CurrentProject, model("month.nvpf"));
}

TEST_F(ProjectMenu, SaveAsCancelledOnANamedProjectSavesOverIt) {
    start();
    save("week.nvpf");
    placeSymbol({100, 100});
    shell.expectSaveDialog("Save project as", {});
    trigger("mnuSaveProjectAs");
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_TRUE(testing::readFile(host("week.nvpf")).contains("sun.gif"));
}

TEST_F(ProjectMenu, SaveCancelledChangesNothing) {
    start();
    placeSymbol({100, 100});
    shell.expectSaveDialog("Save project", {});
    trigger("mnuSaveProject");
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
}

TEST_F(ProjectMenu, ANameWithoutAnExtensionFailsAndLeavesTheWindowUsable) {
    start();
    shell.expectSaveDialog("Save project", "C:\\nowhere\\week");
    shell.expectMessage("An error occurred while saving the project.", Icon::Critical);
    trigger("mnuSaveProject");
    EXPECT_TRUE(window().acceptsInput());
    EXPECT_FALSE(shell.progressVisible);
    EXPECT_EQ(shell.pointer, Pointer::Default);
    EXPECT_EQ(workspace.Status.CurrentProject, "");
}

TEST_F(ProjectMenu, AfterASaveTheCanvasShowsTheFrameAsBefore) {
    start();
    placeLabel({100, 100});
    const QImage before = canvas().grab().toImage();
    save("week.nvpf");
    EXPECT_EQ(canvas().grab().toImage(), before);
    EXPECT_TRUE(window().acceptsInput());
}

TEST_F(ProjectMenu, OpenShowsTheFirstFrameWithItsSprites) {
    start();
    saveTwoFrames();
    trigger("mnuNewProject");
    openFromMenu("week.nvpf");
    EXPECT_EQ(window().windowTitle(), "week.nvpf - Nubivane");
    EXPECT_EQ(window().tabs().count(), 2);
    EXPECT_EQ(window().tabs().selected(), 1);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    ASSERT_EQ(window().canvas().sprites().controls().size(), 1u);
    EXPECT_EQ(window().canvas().sprites().controls().front()->rect, QRect(84, 84, 32, 32));
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_TRUE(window().acceptsInput());
    EXPECT_TRUE(window().commands()[Command::mnuFrameRemove]->isEnabled());
    window().tabs().select(2);
    window().findChild<FrameCommands*>()->changeFrame();
    EXPECT_EQ(window().canvas().sprites().lblTesto().upperBound(), 1);
}

TEST_F(ProjectMenu, OpenDoesNotKeepTheMapForTheNextStart) {
    start();
    const QString kept = settings.text(Setting::CurrentMap);
    testing::writeFile(host("Maps/italy.jpg"), testing::readFile(host("Maps/europe.jpg")));
    window().findChild<FrameCommands*>()->changeMap(model("Maps/italy.jpg"));
    save("week.nvpf");
    settings.set(Setting::CurrentMap, kept);
    openFromMenu("week.nvpf");
    EXPECT_TRUE(workspace.Status.CurrentMap.endsWith("italy.jpg"));
    EXPECT_EQ(settings.text(Setting::CurrentMap), kept);
}

TEST_F(ProjectMenu, OpenCancelledChangesNothing) {
    start();
    saveTwoFrames();
    openFromMenu({});
    EXPECT_EQ(window().windowTitle(), "week.nvpf - Nubivane");
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
}

TEST_F(ProjectMenu, ADamagedProjectShowsItsTextAndKeepsTheOpenOne) {
    start();
    saveTwoFrames();
    testing::writeFile(host("bad.nvpf"), "no project");
    testing::writeFile(host("bad.nvpx"), "no pictures");
    shell.expectMessage("Cannot open the specified file. It could be damaged or not valid.",
                        Icon::Critical);
    openFromMenu("bad.nvpf");
    EXPECT_EQ(window().windowTitle(), "week.nvpf - Nubivane");
    EXPECT_EQ(workspace.Frames().Count(), 2);
    EXPECT_TRUE(window().acceptsInput());
    EXPECT_FALSE(shell.progressVisible);
}

TEST_F(ProjectMenu, AnotherVersionShowsItsText) {
    start();
    save("week.nvpf");
    QByteArray xml = testing::readFile(host("week.nvpf"));
    testing::writeFile(host("week.nvpf"), xml.replace("\"2.0\"", "\"1.0\""));
    shell.expectMessage("Version format not currently supported.", Icon::Critical);
    openFromMenu("week.nvpf");
}

TEST_F(ProjectMenu, MissingSymbolsAreToldOnceHoweverMany) {
    start();
    placeSymbol({100, 100}, "sun.gif");
    placeSymbol({200, 100}, "rain.gif");
    save("week.nvpf");
    QFile::remove(host("Symbols/set-1/sun.gif"));
    QFile::remove(host("Symbols/set-1/rain.gif"));
    shell.expectMessage(
        "Cannot load some symbols: they refer to a location on a hard drive that is unavailable.",
        Icon::Exclamation);
    openFromMenu("week.nvpf");
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 0);
    EXPECT_TRUE(window().canvas().sprites().controls().empty());
}

TEST_F(ProjectMenu, NewGivesOneEmptyFrameOnTheSameMap) {
    start();
    saveTwoFrames();
    const QString map = workspace.Status.CurrentMap;
    trigger("mnuNewProject");
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(window().tabs().count(), 1);
    EXPECT_EQ(window().tabs().caption(1), "Map1");
    EXPECT_TRUE(window().canvas().sprites().controls().empty());
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_EQ(workspace.Status.CurrentMap, map);
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_FALSE(window().commands()[Command::mnuFrameRemove]->isEnabled());
}

TEST_F(ProjectMenu, NewAsksAndCancelStays) {
    start();
    placeSymbol({100, 100});
    expectGuard(Answer::Cancel);
    trigger("mnuNewProject");
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 1);
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(ProjectMenu, NewAsksAndNoGoesOnWithoutSaving) {
    start();
    placeSymbol({100, 100});
    expectGuard(Answer::No);
    trigger("mnuNewProject");
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 0);
}

TEST_F(ProjectMenu, NewAsksAndYesSavesFirst) {
    start();
    placeSymbol({100, 100});
    expectGuard(Answer::Yes);
    shell.expectSaveDialog("Save project", model("week.nvpf"));
    trigger("mnuNewProject");
    EXPECT_TRUE(QFile::exists(host("week.nvpf")));
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
}

TEST_F(ProjectMenu, OpenAsksBeforeItsDialog) {
    start();
    placeSymbol({100, 100});
    expectGuard(Answer::Cancel);
    trigger("mnuOpenProject");
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(ProjectMenu, NewWithoutItsMapEndsTheProgram) {
    start();
    bool ended = false;
    QObject::disconnect(&window().projectCommands(), &ProjectCommands::terminate, qApp, nullptr);
    QObject::connect(&window().projectCommands(), &ProjectCommands::terminate, &window(),
                     [&ended] { ended = true; });
    QFile::remove(host("Maps/europe.jpg"));
    shell.expectMessage("An error occurred while initializing. The application will be terminated.",
                        Icon::Critical);
    trigger("mnuNewProject");
    EXPECT_TRUE(ended);
}

TEST_F(ProjectMenu, AfterADamagedFrameOneCanGoOnWithWhatWasRead) {
    start();
    saveTwoFrames();
    QByteArray damaged = testing::readFile(host("week.nvpf"));
    damaged.replace("Number=\"2\"", "Number=\"two\"");
    testing::writeFile(host("bad.nvpf"), damaged);
    testing::writeFile(host("bad.nvpx"), testing::readFile(host("week.nvpx")));
    trigger("mnuFrameInsert");
    trigger("mnuFrameInsert");
    ASSERT_EQ(workspace.Status.CurrentFrame, 4);
    workspace.ProjectChanged = false;
    shell.expectMessage("Cannot open the specified file. It could be damaged or not valid.",
                        Icon::Critical);
    openFromMenu("bad.nvpf");

    ASSERT_EQ(workspace.Frames().Count(), 2);
    EXPECT_EQ(window().tabs().count(), 2);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    placeSymbol({100, 100});
    placeLabel({200, 100});
    trigger("mnuMapRename");
    QTest::keyClicks(window().tabs().txtDay(), "Sunday");
    QTest::keyClick(window().tabs().txtDay(), Qt::Key_Return);
    EXPECT_EQ(frame(1).Texts().Label, "Sunday");
    trigger("mnuFrameInsert");
    trigger("mnuFrameRemove");
    trigger("mnuFrameRemove");
    EXPECT_EQ(workspace.Frames().Count(), 1);
}

}  // namespace nubivane
