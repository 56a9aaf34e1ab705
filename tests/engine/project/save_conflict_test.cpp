// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/history/version_store.h"
#include "engine/project/handmade_project.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"

#include <QFileInfo>

namespace nubivane::testing {

namespace {

constexpr char Question[] =
    "weather.nvpf has been changed on the disk since it was opened or saved here. Save over it ? "
    "What stands there now would be kept among the earlier versions.";

/// A project that somebody else saves while it is open here.
class SaveConflict : public WorkspaceFixture {
  protected:
    SaveConflict() {
        project.write(file());
        open(file());
        workspace.Frames().Item(1).Texts().Label = "mine";
    }

    QString file(const QString& name = "weather.nvpf") const { return temporary.file(name); }
    QString path(const QString& name = "weather.nvpf") const {
        return host_files::toModel(file(name));
    }
    void somebodyElseSaves() {
        project.mapBytes = encodePicture(plainImage({9, 9}, Qt::green), PictureFormat::Png);
        project.write(file());
    }
    void expectQuestion(Answer answer) {
        shell.expectMessage(Question, Icon::Exclamation, Buttons::YesNoSaveAs, answer);
    }
    bool save() { return saveProject(editor(), false); }

    HandmadeProject project;
};

}  // namespace

TEST_F(SaveConflict, WithoutOneNobodyIsAsked) {
    EXPECT_TRUE(save());
    workspace.Frames().Item(1).Texts().Label = "mine again";
    EXPECT_TRUE(save());
}

TEST_F(SaveConflict, NoLeavesWhatTheOtherSavedAndTheWorkUnsaved) {
    somebodyElseSaves();
    workspace.ProjectChanged = true;
    expectQuestion(Answer::No);
    EXPECT_FALSE(save());
    EXPECT_EQ(readFile(file()), project.xml());
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_EQ(shell.destroying, QStringList(Question)) << "Enter presses No";
    expectQuestion(Answer::No);  // and the next time again
    EXPECT_FALSE(save());
}

TEST_F(SaveConflict, YesSavesAndKeepsWhatTheOtherSaved) {
    somebodyElseSaves();
    expectQuestion(Answer::Yes);
    EXPECT_TRUE(save());
    EXPECT_TRUE(readFile(file()).contains("Label=\"mine\""));
    const auto versions =
        VersionStore::ofUser(VersionLimits{}).versionsOf(file(), file("weather.nvpx"));
    ASSERT_EQ(versions.size(), 1);
    EXPECT_EQ(readFile(versions[0].document), project.xml());
    EXPECT_TRUE(save()) << "it is our own now";
}

TEST_F(SaveConflict, SaveAsWritesUnderAnotherName) {
    somebodyElseSaves();
    expectQuestion(Answer::SaveAs);
    shell.expectSaveDialog("Save project as", path("mine.nvpf"));
    EXPECT_TRUE(save());
    EXPECT_EQ(readFile(file()), project.xml());
    EXPECT_TRUE(readFile(file("mine.nvpf")).contains("Label=\"mine\""));
    EXPECT_EQ(workspace.Status.CurrentProject, path("mine.nvpf"));
}

TEST_F(SaveConflict, SaveAsThatIsCancelledSavesNothing) {
    somebodyElseSaves();
    expectQuestion(Answer::SaveAs);
    shell.expectSaveDialog("Save project as", {});
    EXPECT_FALSE(save());
    EXPECT_EQ(readFile(file()), project.xml());
}

TEST_F(SaveConflict, TheGuardOfLeavingAsksAsWell) {
    somebodyElseSaves();
    workspace.ProjectChanged = true;
    shell.expectMessage("The project has been changed. Save file before closing ?",
                        Icon::Exclamation, Buttons::YesNoCancel, Answer::Yes);
    expectQuestion(Answer::No);
    EXPECT_FALSE(confirmLeavingProject(editor()));
    EXPECT_EQ(readFile(file()), project.xml());
}

TEST_F(SaveConflict, WhereNothingLiesAnyMoreNobodyIsAsked) {
    QFile::remove(file());
    QFile::remove(file("weather.nvpx"));
    EXPECT_TRUE(save());
}

}  // namespace nubivane::testing
