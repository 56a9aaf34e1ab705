// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "support/editor_fixture.h"

#include <QDir>
#include <QFile>

namespace nubivane {

/// Making and showing the web page from the menus of the window.
class PageMenu : public testing::EditorFixture {
  protected:
    QStringList web() { return QDir(host("Web")).entryList(QDir::Files, QDir::Name); }
    void TearDown() override { workspace.ProjectChanged = false; }
};

TEST_F(PageMenu, CreateWritesPageScriptAndAPictureOfEachFrameAndShowsThePage) {
    start();
    placeSymbol({100, 100});
    trigger("mnuFrameInsert");
    trigger("mnuFrameInsert");
    trigger("mnuCrea");
    EXPECT_TRUE(QFile::exists(host("Forecast.htm")));
    EXPECT_TRUE(QFile::exists(host("Forecast.js")));
    EXPECT_EQ(web(), QStringList({"Forecast1.jpg", "Forecast2.jpg", "Forecast3.jpg"}));
    EXPECT_EQ(shell.opened, QStringList({host("Forecast.htm")}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(PageMenu, SaveSiteAsWritesAFolderOfItsOwnAndShowsThePage) {
    settings.set(Setting::PageType, "5");
    start();
    placeSymbol({100, 100});
    const QString folder = temporary.file("site");
    shell.expectFolderDialog("Save site as", host_files::toModel(folder));
    trigger("mnuSaveSite");
    EXPECT_TRUE(QFile::exists(folder + "/Forecast.htm"));
    EXPECT_TRUE(QFile::exists(folder + "/Web/Forecast1.webp"));
    EXPECT_FALSE(QFile::exists(host("Forecast.htm")));
    EXPECT_EQ(shell.opened, QStringList({folder + "/Forecast.htm"}));

    shell.expectFolderDialog("Save site as", {});
    trigger("mnuSaveSite");
    EXPECT_EQ(shell.lastFileRequest.folder, host_files::toModel(folder));
    EXPECT_EQ(shell.opened.size(), 1) << "Cancel does nothing";
}

TEST_F(PageMenu, AfterCreateTheFirstFrameIsShown) {
    start();
    placeSymbol({100, 100});
    trigger("mnuFrameInsert");
    ASSERT_EQ(workspace.Status.CurrentFrame, 2);
    trigger("mnuCrea");
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_EQ(window().tabs().selected(), 1);
    EXPECT_EQ(window().canvas().sprites().controls().size(), 1u);
}

TEST_F(PageMenu, FewerFramesLeaveNoOldPictures) {
    start();
    trigger("mnuFrameInsert");
    trigger("mnuCrea");
    trigger("mnuFrameRemove");
    trigger("mnuCrea");
    EXPECT_EQ(web(), QStringList({"Forecast1.jpg"}));
}

TEST_F(PageMenu, ThePictureHoldsTheMapAndNoSprites) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCrea");
    const QImage picture(host("Web/Forecast1.jpg"));
    EXPECT_EQ(picture.size(), QSize(500, 400));
    EXPECT_EQ(picture.pixelColor(100, 100), picture.pixelColor(300, 300));
}

TEST_F(PageMenu, CreateDoesNotMarkTheProject) {
    start();
    trigger("mnuCrea");
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(PageMenu, AFailureShowsItsTextAndLeavesTheWindowUsable) {
    testing::writeFile(host("Web"), "a file in the folder's place");
    start();
    shell.expectMessage("An error occurred while creating the page.", Icon::Critical);
    trigger("mnuCrea");
    EXPECT_TRUE(shell.opened.isEmpty());
    EXPECT_TRUE(window().acceptsInput());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(PageMenu, PreviewOpensThePageMadeLast) {
    start();
    trigger("mnuCrea");
    shell.opened.clear();
    trigger("mnuPreview");
    EXPECT_EQ(shell.opened, QStringList({host("Forecast.htm")}));
}

TEST_F(PageMenu, PreviewWithoutAPageDoesNothing) {
    start();
    trigger("mnuPreview");
    EXPECT_TRUE(shell.opened.isEmpty());
}

TEST_F(PageMenu, PreviewDoesNotFollowTheNameOfThePageSettings) {
    settings.set(Setting::PageFilename, "Weather");
    start();
    trigger("mnuCrea");
    EXPECT_TRUE(QFile::exists(host("Weather.htm")));
    shell.opened.clear();
    trigger("mnuPreview");
    EXPECT_TRUE(shell.opened.isEmpty());
}

}  // namespace nubivane
