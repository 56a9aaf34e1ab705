// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/new_project.h"

#include "engine/core/error.h"
#include "engine/core/version.h"
#include "engine/project/handmade_project.h"

namespace nubivane::testing {

namespace {

class NewProject : public WorkspaceFixture {
  protected:
    NewProject() {
        HandmadeProject project;
        project.blocks = QList<QByteArray>(3, project.blocks[0]);
        project.write(temporary.file("old.nvpf"));
        open(temporary.file("old.nvpf"));
        workspace.Status.CurrentFrame = 3;
        view.calls.clear();
    }
};

}  // namespace

TEST_F(NewProject, HasOneEmptyFrameNamedMap1) {
    EXPECT_TRUE(newProject(editor()));
    ASSERT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "Map1");
    EXPECT_EQ(workspace.Frames().Item(1).Sprites().Count(), 0);
    EXPECT_EQ(workspace.pctPanel.Count(), 1);
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
}

TEST_F(NewProject, KeepsTheMapOfTheProjectBefore) {
    EXPECT_TRUE(newProject(editor()));
    EXPECT_EQ(workspace.Status.CurrentMap, model("Maps/plain.png"));
    EXPECT_TRUE(workspace.pctMap.image().originalBytes() == HandmadeProject().mapBytes);
}

TEST_F(NewProject, HasNoNameAndAlwaysTheSameCaption) {
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(newProject(editor()));
        EXPECT_EQ(workspace.Status.CurrentProject, "");
        EXPECT_EQ(view.caption, QStringLiteral("New project - ") + ProgramTitle);
        EXPECT_FALSE(workspace.ProjectChanged);
    }
}

TEST_F(NewProject, TellsTheWindowInOrder) {
    EXPECT_TRUE(newProject(editor()));
    EXPECT_EQ(view.calls, QStringList({"clearSelection", "unloadFrameSprites", "rebuildFrameTabs",
                                       "showMap", "selectFirstFrame"}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(NewProject, IsNoRecentFile) {
    const QStringList before = settings.list(SettingList::RecentFiles);
    EXPECT_TRUE(newProject(editor()));
    EXPECT_EQ(settings.list(SettingList::RecentFiles), before);
}

TEST_F(NewProject, WithoutAMapRaisesAndRestoresThePointer) {
    QFile::remove(host("Maps/plain.png"));
    EXPECT_THROW(newProject(editor()), Error);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

}  // namespace nubivane::testing
