// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/startup.h"

#include "engine/core/error.h"
#include "support/editor_fixture.h"

#include <QDir>
#include <QFile>

namespace nubivane {

using Startup = testing::EditorFixture;
using ::testing::ElementsAre;

TEST_F(Startup, WithoutSettingsTheFirstCollectionTheDefaultMapAndAnEmptyProjectAreThere) {
    start();
    EXPECT_EQ(window().palette().tabSymbols()->count(), 1);
    EXPECT_EQ(window().palette().tabSymbols()->tabText(0), "set-1");
    EXPECT_THAT(settings.list(SettingList::CheckedCollections), ElementsAre("set-1"));
    EXPECT_TRUE(workspace.Status.CurrentMap.endsWith("\\maps\\europe.jpg"));
    EXPECT_EQ(settings.text(Setting::CurrentMap), workspace.Status.CurrentMap);
    EXPECT_EQ(canvas().size(), QSize(502, 402));
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(frame().Texts().Label, "Map1");
    EXPECT_EQ(window().tabs().caption(1), "Map1");
    EXPECT_EQ(window().tabs().txtDay()->text(), "Map1");
}

TEST_F(Startup, TheStateIsThatOfAnUntouchedEditor) {
    start();
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_EQ(workspace.Status.CurrentShapeControlType, 0);
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, "");
    EXPECT_EQ(workspace.Status.CurrentTool, Tool::cursor);
    EXPECT_EQ(workspace.Status.CurrentProject, "");
    EXPECT_FALSE(workspace.ProjectChanged);
    EXPECT_TRUE(workspace.TabEventsEnabled);
    EXPECT_TRUE(canvas().isEnabled());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(Startup, WhenBothFoldersAreMissingTheFirstStartMakesMapsAndTheNextMakesSymbols) {
    ASSERT_TRUE(QDir(host("Maps")).removeRecursively());
    ASSERT_TRUE(QDir(host("Symbols")).removeRecursively());
    prepareFolders(workspace.folder);
    EXPECT_TRUE(QFileInfo(host("Maps")).isDir());
    EXPECT_FALSE(QFileInfo::exists(host("Symbols")));
    prepareFolders(workspace.folder);
    EXPECT_TRUE(QFileInfo(host("Symbols")).isDir());
}

TEST_F(Startup, MissingSymbolsAreMadeWhereMapsAreThere) {
    ASSERT_TRUE(QDir(host("Symbols")).removeRecursively());
    start();
    EXPECT_TRUE(QFileInfo(host("Symbols")).isDir());
    EXPECT_EQ(window().palette().tabSymbols()->count(), 0);
    EXPECT_TRUE(settings.list(SettingList::CheckedCollections).isEmpty());
}

TEST_F(Startup, FoldersInAnotherCaseAreFoundAndNotMadeAgain) {
    ASSERT_TRUE(QDir(host(".")).rename("Maps", "maps"));
    ASSERT_TRUE(QDir(host(".")).rename("Symbols", "SYMBOLS"));
    start();
    EXPECT_FALSE(QDir(host(".")).entryList(QDir::Dirs).contains("Maps"));
    EXPECT_FALSE(QDir(host(".")).entryList(QDir::Dirs).contains("Symbols"));
    EXPECT_EQ(window().palette().tabSymbols()->tabText(0), "set-1");
}

TEST_F(Startup, TheWorkingFolderOfACrashIsRemoved) {
    testing::writeFile(host("~temp/1.jpg"), "left behind");
    start();
    EXPECT_FALSE(QFileInfo::exists(host("~temp")));
}

TEST_F(Startup, AWorkingFolderThatCannotBeRemovedIsNoFailure) {
    testing::writeFile(host("~temp/1.jpg"), "left behind");
    testing::writeFile(host("~temp/deeper/2.jpg"), "not ours");
    start();
    EXPECT_FALSE(QFileInfo::exists(host("~temp/1.jpg")));
    EXPECT_TRUE(QFileInfo::exists(host("~temp/deeper/2.jpg")));
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
}

TEST_F(Startup, TheMapOfTheLastRunComesBack) {
    useMap("italy.png", {300, 200});
    settings.set(Setting::CurrentMap, model("Maps/italy.png"));
    start();
    EXPECT_EQ(workspace.Status.CurrentMap, model("Maps/italy.png"));
    EXPECT_EQ(canvas().size(), QSize(302, 202));
}

TEST_F(Startup, AMapKeptByItsBareNameIsNotFoundAndTheDefaultTakesOver) {
    useMap("italy.jpg", {300, 200});
    settings.set(Setting::CurrentMap, "italy.jpg");
    start();
    EXPECT_EQ(workspace.Status.CurrentMap, model("maps/europe.jpg"));
    EXPECT_EQ(settings.text(Setting::CurrentMap), model("maps/europe.jpg"));
}

TEST_F(Startup, AMapThatHasGoneGivesTheDefault) {
    settings.set(Setting::CurrentMap, model("Maps/gone.jpg"));
    start();
    EXPECT_EQ(workspace.Status.CurrentMap, model("maps/europe.jpg"));
}

TEST_F(Startup, AMapThatIsNoPictureAnyMoreGivesTheDefault) {
    testing::writeFile(host("Maps/broken.jpg"), "no picture");
    settings.set(Setting::CurrentMap, model("Maps/broken.jpg"));
    start();
    EXPECT_EQ(workspace.Status.CurrentMap, model("maps/europe.jpg"));
    EXPECT_EQ(canvas().size(), QSize(502, 402));
}

TEST_F(Startup, WithoutAnyMapTheEditorCannotStart) {
    ASSERT_TRUE(QFile::remove(host("Maps/europe.jpg")));
    frmMap editorWindow(workspace, shell);
    EXPECT_THROW(editorWindow.Init({}), Error);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(Startup, TheFooterOfPagesIsStoredOnce) {
    start();
    EXPECT_EQ(settings.text(Setting::PagePoweredLabel), "Powered by nVane 6.0.0");
}

TEST_F(Startup, AFooterOfOnesOwnStays) {
    settings.set(Setting::PagePoweredLabel, "My station");
    start();
    EXPECT_EQ(settings.text(Setting::PagePoweredLabel), "My station");
}

TEST_F(Startup, AnUnreadableDrawColourRaisesNoError) {
    settings.set(Setting::DrawColor, "blue");
    start();
    EXPECT_EQ(window().windowTitle(), "New project - Nubivane");
}

TEST_F(Startup, TheLockComesBack) {
    settings.set(Setting::Locked, "1");
    start();
    EXPECT_TRUE(window().locked());
}

TEST_F(Startup, WithoutALockSettingOrWithOneThatIsNoNumberNothingIsLocked) {
    start();
    EXPECT_FALSE(window().locked());
    settings.set(Setting::Locked, "yes");
    start();
    EXPECT_FALSE(window().locked());
}

}  // namespace nubivane
