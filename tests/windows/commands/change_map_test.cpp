// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/picture/image_codec.h"
#include "support/editor_fixture.h"

namespace nubivane {

/// Another map under the whole project.
class ChangingTheMap : public testing::EditorFixture {
  protected:
    void SetUp() override {
        testing::writeFile(
            host("Maps/italy.png"),
            encodePicture(testing::plainImage({300, 200}, Qt::green), PictureFormat::Png));
        start();
        placeSymbol({100, 100});
        placeLabel({200, 100});
        trigger("mnuFrameInsert");
        placeSymbol({150, 100});
        workspace.pctPanel.setPicture(1, Picture(testing::plainImage({500, 400}, Qt::red)));
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    void change() { window().findChild<FrameCommands*>()->changeMap(model("Maps/italy.png")); }
};

TEST_F(ChangingTheMap, ShowsTheMapAndKeepsItForTheNextStart) {
    change();
    EXPECT_EQ(workspace.Status.CurrentMap, model("Maps/italy.png"));
    EXPECT_EQ(settings.text(Setting::CurrentMap), model("Maps/italy.png"));
    EXPECT_EQ(canvas().size(), QSize(302, 202));
    EXPECT_EQ(workspace.pctMap.image().image().pixelColor(9, 9), QColor(Qt::green));
}

TEST_F(ChangingTheMap, DiscardsTheSpritesOfEveryFrameWithoutAPrompt) {
    change();
    for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
        EXPECT_EQ(frame(i).Sprites().Symbols().Count(), 0);
        EXPECT_EQ(frame(i).Sprites().Labels().Count(), 0);
    }
    EXPECT_TRUE(window().canvas().sprites().controls().empty());
    EXPECT_TRUE(window().canvas().selection().isEmpty());
}

TEST_F(ChangingTheMap, DiscardsTheDrawingsOfEveryFrame) {
    change();
    EXPECT_TRUE(workspace.pctPanel.picture(1).isEmpty());
    EXPECT_TRUE(workspace.pctPanel.picture(2).isEmpty());
    // And the Frame that was left unseen shows the new map too.
    window().tabs().select(2);
    window().findChild<FrameCommands*>()->changeFrame();
    EXPECT_EQ(workspace.pctMap.image().image().pixelColor(9, 9), QColor(Qt::green));
}

TEST_F(ChangingTheMap, SelectsTheFirstTab) {
    ASSERT_EQ(workspace.Status.CurrentFrame, 2);
    change();
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_EQ(window().tabs().selected(), 1);
}

TEST_F(ChangingTheMap, EveryTabStillHasItsFrame) {
    change();
    EXPECT_EQ(window().tabs().count(), workspace.Frames().Count());
    EXPECT_EQ(workspace.pctPanel.Count(), workspace.Frames().Count());
    for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
        EXPECT_EQ(frame(i).Texts().Label, window().tabs().caption(i));
    }
}

TEST_F(ChangingTheMap, AMapThatCannotBeReadLeavesTheProjectAlone) {
    testing::writeFile(host("Maps/broken.jpg"), "no picture");
    EXPECT_THROW(window().findChild<FrameCommands*>()->changeMap(model("Maps/broken.jpg")), Error);
    EXPECT_TRUE(workspace.Status.CurrentMap.endsWith("europe.jpg"));
    EXPECT_EQ(frame(1).Sprites().Symbols().Count(), 1);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

}  // namespace nubivane
