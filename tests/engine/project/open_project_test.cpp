// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/open_project.h"

#include "engine/core/host_files.h"
#include "engine/core/version.h"
#include "engine/project/folder_snapshot.h"
#include "engine/project/handmade_project.h"
#include "engine/project/message_log.h"
#include "engine/project/model_text.h"
#include "engine/project/save_project.h"

namespace nubivane::testing {

namespace {

constexpr char MissingSymbols[] =
    "Cannot load some symbols: they refer to a location on a hard drive that is unavailable.";

class Opening : public WorkspaceFixture {
  protected:
    QString file(const QString& name = "weather.nvpf") const {
        return temporary.file("projects/" + name);
    }
    void write(const HandmadeProject& project) { project.write(file()); }

    cSprites& sprites(qint32 frame = 1) { return workspace.Frames().Item(frame).Sprites(); }

    HandmadeProject twoFrames() {
        HandmadeProject project;
        project.blocks << encodePicture(plainImage({8, 6}, Qt::green), PictureFormat::Png);
        return project;
    }
};

}  // namespace

TEST_F(Opening, ShowsTheFirstFrameUnderTheProjectsName) {
    const HandmadeProject project = twoFrames();
    write(project);
    workspace.Status.CurrentFrame = 7;
    workspace.ProjectChanged = false;
    open(file());
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_EQ(workspace.Status.CurrentProject, host_files::toModel(file()));
    EXPECT_EQ(workspace.Status.CurrentMap, model("Maps/plain.png"));
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(view.caption, QStringLiteral("weather.nvpf - ") + ProgramTitle);
    EXPECT_TRUE(workspace.pctMap.image().sharesContentWith(workspace.pctPanel.picture(1)));
}

TEST_F(Opening, GivesEachFrameItsBlock) {
    const HandmadeProject project = twoFrames();
    write(project);
    open(file());
    ASSERT_EQ(workspace.pctPanel.Count(), 2);
    EXPECT_TRUE(workspace.pctPanel.picture(1).originalBytes() == project.blocks[0]);
    EXPECT_TRUE(workspace.pctPanel.picture(2).originalBytes() == project.blocks[1]);
    EXPECT_EQ(workspace.Frames().Item(2).Texts().Label, "Day 2");
}

TEST_F(Opening, ReplacesTheModelAsAWhole) {
    workspace.Frames().Add();
    workspace.Frames().Item(1).Texts().Label = "old";
    const cWrapper* const old = workspace.Project.get();
    write(HandmadeProject());
    open(file());
    EXPECT_NE(workspace.Project.get(), old);
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "Day 1");
}

TEST_F(Opening, TellsTheWindowInOrder) {
    write(HandmadeProject());
    open(file());
    EXPECT_EQ(view.calls,
              QStringList({"disable", "unloadFrameSprites", "rebuildPalette", "rebuildFrameTabs",
                           "showMap", "selectFirstFrame", "refreshRecentFiles", "enable"}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
    EXPECT_FALSE(shell.progressVisible);
}

TEST_F(Opening, ShowsItsProgressAtTheFixedSteps) {
    write(HandmadeProject());
    open(file());
    QList<int> steps = shell.progress;
    steps.removeAll(0);  // the bar appears empty
    EXPECT_EQ(steps, QList<int>({1, 55, 70, 85, 100}));
    EXPECT_GE(shell.eventRounds, 3);
}

TEST_F(Opening, LeavesTheSettingOfTheCurrentMapAlone) {
    write(HandmadeProject());
    settings.set(Setting::CurrentMap, "somewhere\\else.jpg");
    open(file());
    EXPECT_EQ(settings.text(Setting::CurrentMap), "somewhere\\else.jpg");
}

TEST_F(Opening, BringsTheMapToAMachineThatLacksItAndLeavesNothingElse) {
    const HandmadeProject project;
    write(project);
    const Snapshot before = snapshotOf(temporary.path());
    open(file());
    QStringList changes = differences(before, snapshotOf(temporary.path()));
    changes.removeIf([](const QString& change) { return change.endsWith("settings.ini"); });
    EXPECT_EQ(changes, QStringList({"new: program/Maps/", "new: program/Maps/plain.png"}));
    EXPECT_TRUE(readFile(host("Maps/plain.png")) == project.mapBytes);
}

TEST_F(Opening, WritesTheMapOverAnOlderOneOfThatName) {
    const HandmadeProject project;
    write(project);
    writeFile(host("Maps/plain.png"), "short");
    open(file());
    EXPECT_TRUE(readFile(host("Maps/plain.png")) == project.mapBytes);
}

TEST_F(Opening, KeepsTheTailOfALongerMapOfThatName) {
    const HandmadeProject project;
    write(project);
    writeFile(host("Maps/plain.png"), QByteArray(project.mapBytes.size(), 'x') + "tail");
    open(file());
    EXPECT_TRUE(readFile(host("Maps/plain.png")) == project.mapBytes + "tail");
}

TEST_F(Opening, DropsSymbolsWithoutFilesAndWarnsOnce) {
    HandmadeProject project = twoFrames();
    const QString gone = HandmadeProject::symbolItem("set-1\\gone.gif");
    project.frameBodies = {"<Symbol>" + gone + HandmadeProject::symbolItem("set-1\\sun.gif") +
                               gone + HandmadeProject::symbolItem("sea\\wave.png") + "</Symbol>",
                           "<Symbol>" + gone + "</Symbol>"};
    write(project);
    shell.expectMessage(MissingSymbols, Icon::Exclamation);
    open(file());
    ASSERT_EQ(sprites(1).Symbols().Count(), 2);
    EXPECT_EQ(sprites(1).Symbols().Item(1).PathFileGif, model("Symbols/set-1/sun.gif"));
    EXPECT_EQ(sprites(1).Symbols().Item(1).FileGif, model("Symbols/set-1/sun.gif"));
    EXPECT_EQ(sprites(1).Symbols().Item(1).Index, 1);
    EXPECT_EQ(sprites(1).Symbols().Item(2).Index, 2);
    EXPECT_EQ(sprites(1).Symbols().Item(2).Key_, "K-2");
    EXPECT_EQ(sprites(2).Symbols().Count(), 0);
}

TEST_F(Opening, ShowsTheWarningWhenTheWindowIsUsableAgain) {
    HandmadeProject project;
    project.frameBodies = {"<Symbol>" + HandmadeProject::symbolItem("set-1\\gone.gif") +
                           "</Symbol>"};
    write(project);
    MessageLog log(view);
    OpenProject({workspace, log, view}, host_files::toModel(file()));
    EXPECT_EQ(log.texts, QStringList{MissingSymbols});
    EXPECT_EQ(log.pointers, QList<Pointer>{Pointer::Default});
    EXPECT_EQ(log.windowEnabled, QList<bool>{true});
    EXPECT_EQ(log.barVisible, QList<bool>{false});
}

TEST_F(Opening, LosesMissingSymbolsForGoodOnceItIsSaved) {
    HandmadeProject project;
    project.frameBodies = {"<Symbol>" + HandmadeProject::symbolItem("set-1\\gone.gif") +
                           "</Symbol>"};
    write(project);
    shell.expectMessage(MissingSymbols, Icon::Exclamation);
    open(file());
    ASSERT_TRUE(saveProject(editor(), false));
    EXPECT_FALSE(readFile(file()).contains("gone.gif"));
    writeFile(host("Symbols/set-1/gone.gif"), readFile(host("Symbols/set-1/sun.gif")));
    open(file());
    EXPECT_EQ(sprites().Symbols().Count(), 0);
}

TEST_F(Opening, ShowsTheCollectionsInTheOrderOfTheFileEachOnce) {
    HandmadeProject project;
    project.collections =
        "<Item Name=\"set-1\" Path=\"set-1\"/><Item Name=\"none\" Path=\"none\"/>"
        "<Item Name=\"sea\" Path=\"sea\"/><Item Name=\"set-1\" Path=\"set-1\"/>";
    write(project);
    open(file());
    EXPECT_EQ(view.palette, QStringList({model("Symbols/set-1"), model("Symbols/sea")}));
}

TEST_F(Opening, PassesOverAnUnknownCollectionWhoseSymbolsExist) {
    HandmadeProject project;
    project.collections =
        "<Item Name=\"unknown\" Path=\"unknown\"/><Item Name=\"sea\" Path=\"x\"/>";
    project.frameBodies = {"<Symbol>" + HandmadeProject::symbolItem("set-1\\sun.gif") +
                           "</Symbol>"};
    write(project);
    open(file());
    EXPECT_EQ(checkedCollections(workspace), QStringList{"sea"});
    EXPECT_EQ(sprites().Symbols().Count(), 1);
}

TEST_F(Opening, ForgetsTheCollectionsOfTheProjectBefore) {
    HandmadeProject project;
    project.collections = "<Item Name=\"set-1\" Path=\"set-1\"/>";
    project.write(file("first.nvpf"));
    HandmadeProject().write(file("second.nvpf"));
    open(file("first.nvpf"));
    const cSymbolsCollections* const list = &workspace.Status.SymbolsCollection();
    EXPECT_EQ(checkedCollections(workspace), QStringList{"set-1"});
    open(file("second.nvpf"));
    EXPECT_EQ(checkedCollections(workspace), QStringList());
    EXPECT_EQ(&workspace.Status.SymbolsCollection(), list);
}

TEST_F(Opening, OfAMissingFileClearsThePanelsAndTakesTheName) {
    write(HandmadeProject());
    open(file());
    const cWrapper* const model = workspace.Project.get();
    const QStringList texts = modelText(workspace);
    workspace.pctMap.setPicture(workspace.pctPanel.picture(1));
    open(file("gone.nvpf"));

    EXPECT_EQ(workspace.Project.get(), model);
    EXPECT_EQ(modelText(workspace), texts);
    ASSERT_EQ(workspace.pctPanel.Count(), 1);
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    EXPECT_EQ(workspace.Status.CurrentProject, host_files::toModel(file("gone.nvpf")));
    EXPECT_EQ(settings.list(SettingList::RecentFiles),
              QStringList({host_files::toModel(file("gone.nvpf")), host_files::toModel(file())}));
    EXPECT_EQ(view.caption, QStringLiteral("gone.nvpf - ") + ProgramTitle);
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(shell.pointer, Pointer::Default);
    EXPECT_EQ(view.calls.last(), "enable");
}

TEST_F(Opening, OfAMissingFileLeavesAProjectThatCanBeSaved) {
    write(HandmadeProject());
    open(file());
    open(file("gone.nvpf"));
    EXPECT_TRUE(saveProject(editor(), false));
    EXPECT_TRUE(readFile(file("gone.nvpx")) == HandmadeProject().mapBytes.repeated(2));
}

TEST_F(Opening, WithoutAFileAsksForOne) {
    write(HandmadeProject());
    shell.expectOpenDialog("Open project", "  " + host_files::toModel(file()) + " ");
    OpenProject(editor());
    EXPECT_EQ(workspace.Status.CurrentProject, host_files::toModel(file()));
    EXPECT_EQ(shell.lastFileRequest.folder, workspace.folder.path());
    EXPECT_EQ(shell.lastFileRequest.filter, "Nubivane files (*.nvpf)|*.nvpf|");
}

TEST_F(Opening, CancelledInTheDialogChangesNothing) {
    shell.expectOpenDialog("Open project", "");
    workspace.Status.CurrentProject = "C:\\old.nvpf";
    workspace.Status.CurrentMap = "C:\\old.png";
    const cWrapper* const model = workspace.Project.get();
    OpenProject(editor());
    EXPECT_EQ(workspace.Project.get(), model);
    EXPECT_EQ(workspace.Status.CurrentProject, "C:\\old.nvpf");
    EXPECT_EQ(workspace.Status.CurrentMap, "C:\\old.png");
    EXPECT_EQ(settings.list(SettingList::RecentFiles), QStringList());
    EXPECT_EQ(view.calls, QStringList());
    EXPECT_EQ(shell.progress, QList<int>());
}

TEST_F(Opening, OfANameOfBlanksDoesNothing) {
    OpenProject(editor(), QStringLiteral("   "));
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_EQ(view.calls, QStringList());
}

TEST_F(Opening, TakesTheExtensionInAnyCase) {
    const HandmadeProject project;
    writeFile(file("LOUD.NVPF"), project.xml());
    writeFile(file("LOUD.NVPX"), project.data());
    open(file("LOUD.NVPF"));
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "Day 1");
}

TEST_F(Opening, TakesANameWithSeveralPoints) {
    HandmadeProject().write(file("v1.2 of May.nvpf"));
    open(file("v1.2 of May.nvpf"));
    EXPECT_EQ(workspace.Status.CurrentProject, host_files::toModel(file("v1.2 of May.nvpf")));
}

TEST_F(Opening, OfMapsInEachFormatOfMaps) {
    for (const char* extension : {"png", "gif", "bmp", "jpg", "jpeg"}) {
        const PictureFormat format = formatOfExtension(extension);
        HandmadeProject project;
        project.map = QStringLiteral("plain.") + extension;
        project.mapBytes = encodePicture(plainImage({8, 6}, Qt::blue), format);
        project.blocks = {encodePicture(plainImage({8, 6}, Qt::red), format)};
        write(project);
        open(file());
        EXPECT_EQ(workspace.pctPanel.picture(1).size(), QSize(8, 6)) << extension;
        EXPECT_TRUE(readFile(host("Maps/" + project.map)) == project.mapBytes) << extension;
    }
}

}  // namespace nubivane::testing
