// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/save_project.h"

#include "engine/core/host_files.h"
#include "engine/core/version.h"
#include "engine/project/folder_snapshot.h"
#include "engine/project/message_log.h"
#include "support/texts.h"

#include <QFileInfo>

namespace nubivane::testing {

namespace {

class Saving : public WorkspaceFixture {
  protected:
    Saving() { useMap("plain.png", {8, 6}); }

    QString file(const QString& name = "weather.nvpf") const { return temporary.file(name); }
    QString path(const QString& name = "weather.nvpf") const {
        return host_files::toModel(file(name));
    }

    /// Makes Frames that nobody has visited yet, up to `count`.
    void makeFrames(qint32 count) {
        while (workspace.Frames().Count() < count) {
            workspace.Frames().Add();
        }
        workspace.clearTempPicture();
    }

    bool saveAs(const QString& name) {
        workspace.Status.CurrentProject = path(name);
        return saveProject(editor(), false);
    }
};

}  // namespace

TEST_F(Saving, ANewProjectAsksForAName) {
    shell.expectSaveDialog("Save project", "  " + path() + "  ");
    EXPECT_TRUE(saveProject(editor(), false));
    EXPECT_EQ(workspace.Status.CurrentProject, path());
    EXPECT_TRUE(QFileInfo::exists(file()));
    EXPECT_EQ(shell.lastFileRequest.folder, workspace.folder.path());
    EXPECT_EQ(shell.lastFileRequest.filter, "Nubivane files (*.nvpf)|*.nvpf|");
    EXPECT_TRUE(shell.lastFileRequest.confirmOverwrite);
}

TEST_F(Saving, AProjectWithANameAsksNothing) {
    EXPECT_TRUE(saveAs("weather.nvpf"));
}

TEST_F(Saving, SaveAsAlwaysAsks) {
    ASSERT_TRUE(saveAs("weather.nvpf"));
    shell.expectSaveDialog("Save project as", path("second.nvpf"));
    EXPECT_TRUE(saveProject(editor(), true));
    EXPECT_EQ(workspace.Status.CurrentProject, path("second.nvpf"));
    EXPECT_TRUE(readFile(file()) == readFile(file("second.nvpf")));
}

TEST_F(Saving, CancellingTheDialogOfAProjectWithoutANameChangesNothing) {
    const Snapshot before = snapshotOf(temporary.path());
    workspace.ProjectChanged = true;
    shell.expectSaveDialog("Save project", "");
    EXPECT_FALSE(saveProject(editor(), false));
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_EQ(view.calls, QStringList());
    EXPECT_EQ(shell.progress, QList<int>());
    EXPECT_EQ(differences(before, snapshotOf(temporary.path())), QStringList());
}

TEST_F(Saving, ANameOfBlanksIsNone) {
    shell.expectSaveDialog("Save project", "   ");
    EXPECT_FALSE(saveProject(editor(), false));
}

TEST_F(Saving, SaveAsAndCancelSavesOverTheNamedProject) {
    ASSERT_TRUE(saveAs("weather.nvpf"));
    workspace.Frames().Item(1).Texts().Label = "changed";
    shell.expectSaveDialog("Save project as", "");
    EXPECT_TRUE(saveProject(editor(), true));
    EXPECT_TRUE(readFile(file()).contains("changed"));
    EXPECT_EQ(workspace.Status.CurrentProject, path());
}

TEST_F(Saving, ANameWithoutAPointFailsAndNothingIsWritten) {
    const Snapshot before = snapshotOf(temporary.path());
    shell.expectSaveDialog("Save project", path("weather"));
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveProject(editor(), false));
    EXPECT_EQ(differences(before, snapshotOf(temporary.path())), QStringList());
    EXPECT_EQ(workspace.Status.CurrentProject, "");
}

TEST_F(Saving, ANameWithoutAPointInAFolderWithOneFailsToo) {
    QDir().mkpath(file("v1.0"));
    const Snapshot before = snapshotOf(temporary.path());
    shell.expectSaveDialog("Save project", path("v1.0") + "\\weather");
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveProject(editor(), false));
    EXPECT_EQ(differences(before, snapshotOf(temporary.path())), QStringList());
}

TEST_F(Saving, ANameOfAnotherExtensionGetsItsDataFileAllTheSame) {
    EXPECT_TRUE(saveAs("weather.v2.txt"));
    EXPECT_TRUE(QFileInfo::exists(file("weather.v2.txt")));
    EXPECT_TRUE(QFileInfo::exists(file("weather.v2.nvpx")));
}

TEST_F(Saving, ANameThatIsItsOwnDataFileIsRefused) {
    // Both files would be one, and the pictures would be lost without a word.
    ASSERT_TRUE(saveAs("weather.nvpf"));
    const QByteArray pictures = readFile(file("weather.nvpx"));
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveAs("weather.nvpx"));
    EXPECT_TRUE(readFile(file("weather.nvpx")) == pictures);
}

TEST_F(Saving, LeavesTheProjectSavedAndNamed) {
    workspace.ProjectChanged = true;
    EXPECT_TRUE(saveAs("weather.nvpf"));
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_EQ(workspace.Status.CurrentProject, path());
    EXPECT_EQ(view.caption, QStringLiteral("weather.nvpf - ") + ProgramTitle);
    EXPECT_EQ(settings.list(SettingList::RecentFiles), QStringList{path()});
}

TEST_F(Saving, PutsTheFileAtTheTopOfTheRecentFiles) {
    settings.setList(SettingList::RecentFiles, {"a", path(), "b"});
    EXPECT_TRUE(saveAs("weather.nvpf"));
    EXPECT_EQ(settings.list(SettingList::RecentFiles), QStringList({path(), "a", "b"}));
}

TEST_F(Saving, TellsTheWindowInOrder) {
    EXPECT_TRUE(saveAs("weather.nvpf"));
    EXPECT_EQ(view.calls, QStringList({"disable", "resetDrawing", "refreshRecentFiles", "enable"}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
    EXPECT_FALSE(shell.progressVisible);
}

TEST_F(Saving, ShowsTheShareOfTheFramesDone) {
    makeFrames(3);
    EXPECT_TRUE(saveAs("weather.nvpf"));
    EXPECT_EQ(shell.progress, QList<int>({10, 30, 53, 76, 100}));
    EXPECT_EQ(shell.eventRounds, 5);
}

TEST_F(Saving, WritesTheTwoFilesAndNothingElse) {
    makeFrames(2);
    const Snapshot before = snapshotOf(temporary.path());
    EXPECT_TRUE(saveAs("weather.nvpf"));
    QStringList changes = differences(before, snapshotOf(temporary.path()));
    changes.removeIf([](const QString& change) { return change.endsWith("settings.ini"); });
    EXPECT_EQ(changes, QStringList({"new: weather.nvpf", "new: weather.nvpx"}));
}

TEST_F(Saving, LeavesTheSettingOfTheCurrentMapAlone) {
    settings.set(Setting::CurrentMap, "somewhere\\else.jpg");
    EXPECT_TRUE(saveAs("weather.nvpf"));
    EXPECT_EQ(settings.text(Setting::CurrentMap), "somewhere\\else.jpg");
}

TEST_F(Saving, ShowsTheFailureWhenTheWindowIsUsableAgain) {
    QFile::remove(host("Maps/plain.png"));
    workspace.Status.CurrentProject = path();
    MessageLog log(view);
    EXPECT_FALSE(saveProject({workspace, log, view}, false));
    EXPECT_EQ(log.texts, QStringList{SaveFailed});
    EXPECT_EQ(log.barVisible, QList<bool>{false});
    EXPECT_EQ(log.pointers, QList<Pointer>{Pointer::Default});
    EXPECT_EQ(log.windowEnabled, QList<bool>{true});
}

TEST_F(Saving, AFailureKeepsChangedFlagNameCaptionAndRecentFiles) {
    ASSERT_TRUE(saveAs("weather.nvpf"));
    QFile::remove(host("Maps/plain.png"));
    workspace.ProjectChanged = true;
    shell.expectSaveDialog("Save project as", path("second.nvpf"));
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveProject(editor(), true));
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_EQ(workspace.Status.CurrentProject, path());
    EXPECT_EQ(view.caption, QStringLiteral("weather.nvpf - ") + ProgramTitle);
    EXPECT_EQ(settings.list(SettingList::RecentFiles), QStringList{path()});
    EXPECT_FALSE(QFileInfo::exists(file("second.nvpf")));
    EXPECT_EQ(shell.pointer, Pointer::Default);
    EXPECT_EQ(view.calls.last(), "enable");
    EXPECT_FALSE(shell.progressVisible);
}

TEST_F(Saving, OnAMapOfAFormatThatIsNotWrittenFails) {
    QFile::copy(host("Maps/plain.png"), host("Maps/plain.webp"));
    workspace.Status.CurrentMap = model("Maps/plain.webp");
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveAs("weather.nvpf"));
}

}  // namespace nubivane::testing
