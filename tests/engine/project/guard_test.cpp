// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/handmade_project.h"
#include "engine/project/new_project.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "support/texts.h"

namespace nubivane::testing {

namespace {

constexpr char Question[] = "The project has been changed. Save file before closing ?";

/// A changed project is open and another waits on the disk.
class Guard : public WorkspaceFixture {
  protected:
    Guard() {
        HandmadeProject().write(temporary.file("mine.nvpf"));
        HandmadeProject().write(temporary.file("other.nvpf"));
        open(temporary.file("mine.nvpf"));
        workspace.Frames().Item(1).Texts().Label = "changed";
        workspace.ProjectChanged = true;
        model = workspace.Project.get();
        view.calls.clear();
    }

    void expectQuestion(Answer answer) {
        shell.expectMessage(Question, Icon::Exclamation, Buttons::YesNoCancel, answer);
    }
    void openOther() { open(temporary.file("other.nvpf")); }
    bool isOther() const {
        return workspace.Status.CurrentProject == host_files::toModel(temporary.file("other.nvpf"));
    }
    bool wasSaved() const { return readFile(temporary.file("mine.nvpf")).contains("changed"); }

    const cWrapper* model = nullptr;
};

}  // namespace

TEST_F(Guard, AsksNothingWhenNothingWasChanged) {
    workspace.ProjectChanged = false;
    openOther();
    EXPECT_TRUE(isOther());
    EXPECT_FALSE(wasSaved());
}

TEST_F(Guard, CancelEndsTheOpening) {
    expectQuestion(Answer::Cancel);
    openOther();
    EXPECT_EQ(workspace.Project.get(), model);
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_FALSE(isOther());
    EXPECT_FALSE(wasSaved());
    EXPECT_EQ(view.calls, QStringList());
}

TEST_F(Guard, NoOpensWithoutSaving) {
    expectQuestion(Answer::No);
    openOther();
    EXPECT_TRUE(isOther());
    EXPECT_FALSE(wasSaved());
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Guard, YesSavesAndOpens) {
    expectQuestion(Answer::Yes);
    openOther();
    EXPECT_TRUE(isOther());
    EXPECT_TRUE(wasSaved());
}

TEST_F(Guard, YesWithAFailingSaveEndsTheOpening) {
    QFile::remove(host("Maps/plain.png"));
    expectQuestion(Answer::Yes);
    shell.expectMessage(SaveFailed, Icon::Critical);
    openOther();
    EXPECT_EQ(workspace.Project.get(), model);
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_FALSE(isOther());
    EXPECT_FALSE(wasSaved());
}

TEST_F(Guard, YesRestoresThePersistentLayerWhetherOrNotTheSaveWorked) {
    for (const bool works : {false, true}) {
        QFile::remove(host("Maps/plain.png"));
        if (works) {
            writeFile(host("Maps/plain.png"), HandmadeProject().mapBytes);
        }
        workspace.pctMap.persistentLayer().fill(Qt::yellow);
        view.calls.clear();
        expectQuestion(Answer::Yes);
        if (!works) {
            shell.expectMessage(SaveFailed, Icon::Critical);
        }
        EXPECT_EQ(confirmLeavingProject(editor()), works);
        // The picture is shown anew where it stands, not scrolled back to its rest.
        EXPECT_FALSE(view.calls.contains("showMap")) << works;
        EXPECT_TRUE(workspace.pctMap.image().sharesContentWith(workspace.pctPanel.picture(1)))
            << works;
        EXPECT_EQ(workspace.pctMap.image().image().pixelColor(3, 3), QColor(Qt::yellow)) << works;
    }
}

TEST_F(Guard, YesOnAProjectWithoutANameAsksForOne) {
    workspace.Status.CurrentProject.clear();
    const QString chosen = host_files::toModel(temporary.file("chosen.nvpf"));
    expectQuestion(Answer::Yes);
    shell.expectSaveDialog("Save project", chosen);
    openOther();
    EXPECT_TRUE(isOther());
    EXPECT_TRUE(readFile(temporary.file("chosen.nvpf")).contains("changed"));
}

TEST_F(Guard, YesAndNoNameEndsTheOpening) {
    workspace.Status.CurrentProject.clear();
    expectQuestion(Answer::Yes);
    shell.expectSaveDialog("Save project", "");
    openOther();
    EXPECT_EQ(workspace.Project.get(), model);
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(Guard, StandsBeforeTheOpenDialog) {
    expectQuestion(Answer::Cancel);
    OpenProject(editor());
    EXPECT_EQ(workspace.Project.get(), model);
}

TEST_F(Guard, HasSavedAlreadyWhenTheOpenDialogIsCancelled) {
    expectQuestion(Answer::Yes);
    shell.expectOpenDialog("Open project", "");
    OpenProject(editor());
    EXPECT_TRUE(wasSaved());
    EXPECT_EQ(workspace.Project.get(), model);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(Guard, StandsBeforeANewProject) {
    expectQuestion(Answer::Cancel);
    EXPECT_FALSE(newProject(editor()));
    EXPECT_EQ(workspace.Project.get(), model);
    EXPECT_NE(workspace.Status.CurrentProject, "");

    expectQuestion(Answer::No);
    EXPECT_TRUE(newProject(editor()));
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_FALSE(wasSaved());
}

TEST_F(Guard, SavesBeforeANewProject) {
    expectQuestion(Answer::Yes);
    EXPECT_TRUE(newProject(editor()));
    EXPECT_TRUE(wasSaved());
    EXPECT_EQ(workspace.Status.CurrentProject, "");
}

}  // namespace nubivane::testing
