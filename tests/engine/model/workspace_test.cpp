// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/workspace.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

#include <QFile>
#include <QPainter>

namespace nubivane {

namespace {

class WorkspaceTest : public testing::WorkspaceFixture {
  protected:
    void addFrames(int count) {
        for (int i = 0; i < count; ++i) {
            workspace.Frames().Add();
        }
        workspace.clearTempPicture();
    }
    void drawOnCanvas(const QColor& color) {
        QPainter(&workspace.pctMap.persistentLayer()).fillRect(0, 0, 10, 10, color);
    }
};

}  // namespace

TEST_F(WorkspaceTest, StartsWithOneEmptyFrameAndItsPanel) {
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(workspace.Frames().NumSprite(), 0);
    EXPECT_EQ(workspace.pctPanel.Count(), 1);
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_FALSE(workspace.TabEventsEnabled);
}

TEST_F(WorkspaceTest, ResettingTheProjectReplacesTheWholeTree) {
    const cWrapper* const before = workspace.Project.get();
    addFrames(2);
    workspace.Frames().Item(1).Texts().Label = "old";
    workspace.resetProject();
    EXPECT_NE(workspace.Project.get(), before);
    ASSERT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "");
}

TEST_F(WorkspaceTest, ClearTempPictureMakesOneEmptyPanelForEachFrame) {
    useMap("italy.png", {40, 30});
    workspace.storeCurrentFrame();
    addFrames(2);
    EXPECT_EQ(workspace.pctPanel.Count(), 3);
    for (qint32 i = 1; i <= 3; ++i) {
        EXPECT_TRUE(workspace.pctPanel.picture(i).isEmpty()) << i;
    }
    workspace.resetProject();
    workspace.clearTempPicture();
    EXPECT_EQ(workspace.pctPanel.Count(), 1);
}

TEST_F(WorkspaceTest, TheCanvasIsStoredInThePanelOfTheCurrentFrame) {
    useMap("italy.png", {40, 30});
    addFrames(2);
    workspace.Status.CurrentFrame = 2;
    drawOnCanvas(Qt::red);
    workspace.storeCurrentFrame();
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    EXPECT_EQ(workspace.pctPanel.picture(2).image().pixelColor(5, 5), QColor(Qt::red));
    EXPECT_TRUE(workspace.pctPanel.picture(3).isEmpty());
}

TEST_F(WorkspaceTest, AnEmptyCanvasLeavesThePanelAsItIs) {
    const Picture picture(testing::plainImage({4, 4}, Qt::red));
    workspace.pctPanel.setPicture(1, picture);
    workspace.storeCurrentFrame();
    EXPECT_TRUE(workspace.pctPanel.picture(1).sharesContentWith(picture));
}

TEST_F(WorkspaceTest, ShowingAFrameAndLeavingItAgainNeitherDecodesNorEncodes) {
    useMap("italy.jpg", {40, 30});
    const Picture shown = workspace.pctMap.image();
    workspace.storeCurrentFrame();
    EXPECT_TRUE(workspace.pctPanel.picture(1).sharesContentWith(shown));
    EXPECT_FALSE(workspace.pctPanel.picture(1).originalBytes().isEmpty());
}

TEST_F(WorkspaceTest, AFrameThatWasNeverVisitedShowsTheBareMap) {
    useMap("italy.png", {40, 30}, Qt::blue);
    addFrames(1);
    drawOnCanvas(Qt::red);
    workspace.storeCurrentFrame();
    workspace.fillPanels();
    EXPECT_EQ(workspace.pctPanel.picture(1).image().pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(workspace.pctPanel.picture(2).image().pixelColor(5, 5), QColor(Qt::blue));
    EXPECT_EQ(workspace.pctPanel.picture(2).originalBytes(),
              testing::readFile(host("Maps/italy.png")));
}

TEST_F(WorkspaceTest, FramesWithTheBareMapHoldItOnce) {
    useMap("italy.png", {40, 30});
    addFrames(3);
    workspace.fillPanels();
    for (qint32 i = 2; i <= 4; ++i) {
        EXPECT_TRUE(workspace.pctPanel.picture(i).sharesContentWith(workspace.pctPanel.picture(1)))
            << i;
    }
}

TEST_F(WorkspaceTest, FilledPanelsNeedNoMap) {
    useMap("italy.png", {40, 30});
    workspace.fillPanels();
    ASSERT_TRUE(QFile::remove(host("Maps/italy.png")));
    workspace.fillPanels();
    EXPECT_FALSE(workspace.pctPanel.picture(1).isEmpty());
}

TEST_F(WorkspaceTest, AMapThatCannotBeReadIsAnErrorAndLeavesThePanelsEmpty) {
    useMap("italy.png", {40, 30});
    ASSERT_TRUE(QFile::remove(host("Maps/italy.png")));
    EXPECT_THROW(workspace.fillPanels(), Error);
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    testing::writeFile(host("Maps/italy.png"), "no picture");
    EXPECT_THROW(workspace.fillPanels(), Error);
}

TEST_F(WorkspaceTest, TheMapIsReadAnewEachTime) {
    useMap("italy.png", {40, 30});
    useMap("italy.png", {50, 20});
    EXPECT_EQ(workspace.loadCurrentMap().size(), QSize(50, 20));
}

TEST_F(WorkspaceTest, TheMapIsFoundWithoutRegardToCase) {
    useMap("Italy.PNG", {40, 30});
    workspace.Status.CurrentMap = workspace.folder.path() + "\\maps\\italy.png";
    EXPECT_EQ(workspace.loadCurrentMap().size(), QSize(40, 30));
}

}  // namespace nubivane
