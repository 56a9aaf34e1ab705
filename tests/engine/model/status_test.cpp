// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/status.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/project/new_project.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "support/fixtures.h"

#include <QFile>

namespace nubivane {

namespace {

class StatusTest : public testing::WorkspaceFixture {
  protected:
    /// A project with the one-colour map "sea.png" and two Frames.
    QString saveProjectFile() {
        useMap("sea.png", {30, 20}, Qt::cyan);
        workspace.Frames().Add();
        workspace.clearTempPicture();
        const QString file = temporary.file("forecast.nvpf");
        workspace.Status.CurrentProject = host_files::toModel(file);
        EXPECT_TRUE(saveProject(editor(), false));
        return file;
    }
};

}  // namespace

TEST_F(StatusTest, StartsWithTheFirstFrameTheCursorAndNothingElse) {
    const cStatus status;
    EXPECT_EQ(status.CurrentMap, "");
    EXPECT_EQ(status.CurrentFrame, 1);
    EXPECT_EQ(status.CurrentShapeControlType, 0);
    EXPECT_EQ(status.CurrentShapeControlKey, "");
    EXPECT_EQ(status.CurrentTool, Tool::cursor);
    EXPECT_EQ(status.CurrentProject, "");
    EXPECT_EQ(status.Tag, "");
    EXPECT_EQ(status.SymbolsCollection().Count(), 0);
}

TEST_F(StatusTest, AfterNewProjectTheProjectIsEmptyAndTheMapStays) {
    saveProjectFile();
    const QString map = workspace.Status.CurrentMap;
    workspace.Status.CurrentFrame = 2;
    ASSERT_TRUE(newProject(editor()));
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_EQ(workspace.Status.CurrentMap, map);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
}

TEST_F(StatusTest, AfterAFailedOpenTheMapMayBeThatOfTheFile) {
    const QString file = saveProjectFile();
    QByteArray document = testing::readFile(file);
    const qsizetype size = document.indexOf(" Size=\"", document.lastIndexOf("<Frame "));
    ASSERT_GT(size, 0);
    document.insert(size + 7, "no number ");
    testing::writeFile(file, document);
    useMap("italy.png", {40, 30});
    try {
        open(file);
        ADD_FAILURE() << "the damage was not noticed";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), error_number::DamagedProject) << error.what();
    }
    EXPECT_EQ(workspace.Status.CurrentMap, workspace.folder.maps() + "\\sea.png");
}

TEST_F(StatusTest, TheListOfCollectionsStaysTheSameObject) {
    const QString file = saveProjectFile();
    const cSymbolsCollections* const before = &workspace.Status.SymbolsCollection();
    open(file);
    ASSERT_TRUE(newProject(editor()));
    EXPECT_EQ(&workspace.Status.SymbolsCollection(), before);
    EXPECT_EQ(before->Count(), 2);
}

}  // namespace nubivane
