// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QFile>

namespace nubivane {

/// Starts with a project named on the command line.
class ProjectAtStart : public testing::EditorFixture {
  protected:
    void SetUp() override {
        start();
        placeSymbol({100, 100});
        trigger("mnuFrameInsert");
        shell.expectSaveDialog("Save project", model("week.nvpf"));
        trigger("mnuSaveProject");
    }
    /// The project in a window and workspace of their own, as the program makes them.
    void begin(const QString& name) {
        fresh = std::make_unique<Workspace>(workspace.folder, settings);
        started = std::make_unique<frmMap>(*fresh, shell);
        started->Init(model(name));
        started->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(started.get()));
    }

    std::unique_ptr<Workspace> fresh;
    std::unique_ptr<frmMap> started;
};

TEST_F(ProjectAtStart, KeepsTheCaptionOfANewProjectUntilItIsSaved) {
    begin("week.nvpf");
    EXPECT_EQ(started->windowTitle(), "New project - Nubivane");
    EXPECT_EQ(fresh->Status.CurrentProject, model("week.nvpf"));
    EXPECT_FALSE(fresh->ProjectChanged);
    started->commands()[Command::mnuSaveProject]->trigger();
    EXPECT_EQ(started->windowTitle(), "week.nvpf - Nubivane");
}

TEST_F(ProjectAtStart, ShowsItsFramesAndSprites) {
    begin("week.nvpf");
    EXPECT_EQ(started->tabs().count(), 2);
    EXPECT_EQ(started->tabs().selected(), 1);
    EXPECT_EQ(started->canvas().sprites().controls().size(), 1u);
    EXPECT_TRUE(started->commands()[Command::mnuFrameRemove]->isEnabled());
}

TEST_F(ProjectAtStart, BecomesTheFirstRecentFile) {
    begin("week.nvpf");
    EXPECT_EQ(settings.list(SettingList::RecentFiles).first(), model("week.nvpf"));
}

TEST_F(ProjectAtStart, BringsItsMapAndLeavesTheOneOfTheSettingsAlone) {
    settings.set(Setting::CurrentMap, model("Maps/other.jpg"));
    QFile::remove(host("Maps/europe.jpg"));
    begin("week.nvpf");
    EXPECT_TRUE(QFile::exists(host("Maps/europe.jpg")));
    EXPECT_EQ(started->canvas().widget().size(), QSize(502, 402));
    EXPECT_EQ(settings.text(Setting::CurrentMap), model("Maps/other.jpg"));
}

TEST_F(ProjectAtStart, ADamagedOneShowsItsTextAndTheStartGoesOnEmpty) {
    testing::writeFile(host("bad.nvpf"), "no project");
    testing::writeFile(host("bad.nvpx"), "no pictures");
    shell.expectMessage("Cannot open the specified file. It could be damaged or not valid.",
                        Icon::Critical);
    begin("bad.nvpf");
    EXPECT_EQ(fresh->Frames().Count(), 1);
    EXPECT_EQ(fresh->Status.CurrentProject, "");
    EXPECT_EQ(started->windowTitle(), "New project - Nubivane");
    EXPECT_TRUE(started->isEnabled());
}

TEST_F(ProjectAtStart, AfterADamagedOneAnotherProjectCanBeOpened) {
    testing::writeFile(host("bad.nvpf"), "no project");
    testing::writeFile(host("bad.nvpx"), "no pictures");
    shell.expectMessage("Cannot open the specified file. It could be damaged or not valid.",
                        Icon::Critical);
    begin("bad.nvpf");
    shell.expectOpenDialog("Open project", model("week.nvpf"));
    started->commands()[Command::mnuOpenProject]->trigger();
    EXPECT_EQ(started->windowTitle(), "week.nvpf - Nubivane");
    EXPECT_EQ(started->canvas().widget().size(), QSize(502, 402));
}

TEST_F(ProjectAtStart, AfterADamagedOneANewProjectDoesNotEndTheProgram) {
    testing::writeFile(host("bad.nvpf"), "no project");
    testing::writeFile(host("bad.nvpx"), "no pictures");
    shell.expectMessage("Cannot open the specified file. It could be damaged or not valid.",
                        Icon::Critical);
    begin("bad.nvpf");
    bool ended = false;
    QObject::connect(&started->projectCommands(), &ProjectCommands::terminate, &*started,
                     [&ended] { ended = true; });
    started->commands()[Command::mnuNewProject]->trigger();
    EXPECT_FALSE(ended);
}

TEST_F(ProjectAtStart, ADamagedFrameLeavesAWindowThatCanBeUsed) {
    const QByteArray sound = testing::readFile(host("week.nvpf"));
    QByteArray damaged = sound;
    damaged.replace("Number=\"2\"", "Number=\"two\"");
    ASSERT_NE(damaged, sound);
    damaged.replace("europe.jpg", "other.jpg");
    testing::writeFile(host("bad.nvpf"), damaged);
    testing::writeFile(host("bad.nvpx"), testing::readFile(host("week.nvpx")));
    shell.expectMessage("Cannot open the specified file. It could be damaged or not valid.",
                        Icon::Critical);
    begin("bad.nvpf");
    EXPECT_EQ(started->tabs().count(), fresh->Frames().Count());
    EXPECT_EQ(fresh->pctPanel.Count(), fresh->Frames().Count());
    EXPECT_EQ(fresh->Status.CurrentMap.toLower(), model("Maps/europe.jpg").toLower());
    EXPECT_EQ(fresh->pctMap.ScaleWidth(), 500);
    started->commands()[Command::mnuNewProject]->trigger();
    EXPECT_EQ(started->tabs().count(), 1);
}

}  // namespace nubivane
