// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "engine/history/version_store.h"
#include "engine/model/edits/frame_edits.h"
#include "engine/model/edits/project_edits.h"
#include "engine/project/new_project.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "support/fixtures.h"
#include "support/project_snapshot.h"

namespace nubivane::testing {

namespace {

/// Work that is left by opening or beginning another project, without having been saved.
class LeftWork : public WorkspaceFixture {
  protected:
    LeftWork() {
        useMap("map.png", {60, 40});
        workspace.resetProject();
        workspace.clearTempPicture();
        workspace.showFrame(1);
        workspace.Status.CurrentProject = path("week.nvpf");
        EXPECT_TRUE(saveProject(editor(), false));
        workspace.Status.CurrentProject = path("other.nvpf");
        EXPECT_TRUE(saveProject(editor(), false));
        open(temporary.file("week.nvpf"));
    }
    QString path(const QString& name) const { return host_files::toModel(temporary.file(name)); }
    void edit(const QString& label) {
        workspace.edits().push(std::make_unique<RenameFrame>(1, label));
        workspace.ProjectChanged = false;  // so that no guard asks
    }
    QList<KeptVersion> versionsOf(const QString& name) const {
        return VersionStore::ofUser(VersionLimits{})
            .versionsOf(name.isEmpty() ? QString() : temporary.file(name + ".nvpf"),
                        name.isEmpty() ? QString() : temporary.file(name + ".nvpx"));
    }
};

}  // namespace

TEST_F(LeftWork, WithoutAnEditNothingIsKept) {
    open(temporary.file("other.nvpf"));
    EXPECT_TRUE(versionsOf("week").isEmpty());
}

TEST_F(LeftWork, OpeningAnotherProjectKeepsItAsAVersionOfItsOwn) {
    edit("left behind");
    const QString work = snapshotOf(workspace);
    open(temporary.file("other.nvpf"));
    const auto versions = versionsOf("week");
    ASSERT_EQ(versions.size(), 1);
    EXPECT_EQ(causeText(versions[0].cause), "before opening");
    workspace.edits().clear();
    open(versions[0].document);
    EXPECT_EQ(snapshotOf(workspace), work);
}

TEST_F(LeftWork, ANewProjectKeepsItToo) {
    edit("left behind");
    ASSERT_TRUE(newProject(editor()));
    const auto versions = versionsOf("week");
    ASSERT_EQ(versions.size(), 1);
    EXPECT_EQ(causeText(versions[0].cause), "closed without saving");
}

TEST_F(LeftWork, OfAProjectWithoutANameIsKeptAmongThoseWithout) {
    ASSERT_TRUE(newProject(editor()));
    edit("never saved");
    const auto before = versionsOf({}).size();
    open(temporary.file("other.nvpf"));
    EXPECT_EQ(versionsOf({}).size(), before + 1);
}

TEST_F(LeftWork, WhatWasSavedOrUndoneIsNotLeft) {
    edit("saved");
    EXPECT_TRUE(saveProject(editor(), false));
    const auto saved = versionsOf("week").size();
    edit("undone");
    workspace.edits().undo();
    workspace.ProjectChanged = false;
    open(temporary.file("other.nvpf"));
    EXPECT_EQ(versionsOf("week").size(), saved);
}

TEST_F(LeftWork, TheSwitchOfVersionsHoldsForItToo) {
    settings.set(Setting::VersionsKept, "0");
    edit("left behind");
    open(temporary.file("other.nvpf"));
    EXPECT_TRUE(versionsOf("week").isEmpty());
}

}  // namespace nubivane::testing
