// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/map_files.h"

#include "engine/picture/image_codec.h"
#include "support/fixtures.h"

#include <QDir>
#include <QFile>

namespace nubivane {

namespace {

class MapFiles : public testing::WorkspaceFixture {
  protected:
    MapFiles() {
        for (const char* name : {"europe.jpg", "italy.jpg", "spain.png"}) {
            testing::writeFile(host(QString("Maps/") + name), name);
        }
        workspace.Status.CurrentMap = model("maps/europe.jpg");
    }
    bool exists(const QString& name) const { return QFile::exists(host("Maps/" + name)); }
};

}  // namespace

TEST_F(MapFiles, PicturesOfTheFolderAreMapsInNameOrderWithoutCase) {
    for (const char* name : {"B.GIF", "a.Jpeg", "notes.txt", "noext", "x.bmp"}) {
        testing::writeFile(host(QString("Maps/") + name), "x");
    }
    ASSERT_TRUE(QDir().mkpath(host("Maps/folder.png")));
    EXPECT_EQ(mapNames(workspace.folder),
              QStringList({"a.Jpeg", "B.GIF", "europe.jpg", "italy.jpg", "spain.png"}));
}

TEST_F(MapFiles, AFileWhoseNameNoPathCanHoldIsLeftOut) {
    testing::writeFile(host("Maps/a\\b.jpg"), "x");
    EXPECT_EQ(mapNames(workspace.folder).size(), 3);
}

TEST_F(MapFiles, WithoutTheFolderThereAreNoMaps) {
    ASSERT_TRUE(QDir(host("Maps")).removeRecursively());
    EXPECT_EQ(mapNames(workspace.folder), QStringList());
}

TEST_F(MapFiles, AMapIsInUseHoweverItsFolderIsWritten) {
    EXPECT_EQ(mapPath(workspace.folder, "europe.jpg"),
              workspace.folder.path() + "\\maps\\europe.jpg");
    EXPECT_TRUE(isCurrentMap(workspace, workspace.folder.path() + "\\maps\\europe.jpg"));
    EXPECT_TRUE(isCurrentMap(workspace, workspace.folder.path() + "\\Maps\\Europe.JPG"));
    EXPECT_FALSE(isCurrentMap(workspace, workspace.folder.path() + "\\maps\\italy.jpg"));
}

TEST_F(MapFiles, TheDefaultMapIsTheSettingsFileNameWhetherPathOrName) {
    EXPECT_EQ(defaultMapName(workspace), "europe.jpg");
    EXPECT_EQ(firstMapName(settings), "italy.jpg");
    settings.set(Setting::CurrentMap, " Spain.PNG ");
    EXPECT_EQ(defaultMapName(workspace), "spain.png");
    EXPECT_EQ(firstMapName(settings), "spain.png");
    settings.set(Setting::CurrentMap, "C:\\x\\maps\\Italy.jpg");
    EXPECT_EQ(defaultMapName(workspace), "italy.jpg");
    setDefaultMap(settings, "spain.png");
    EXPECT_EQ(settings.text(Setting::CurrentMap), "spain.png");
}

TEST_F(MapFiles, AMapGetsAnotherNameAndKeepsItsExtension) {
    EXPECT_EQ(renameMap(workspace, "spain.png", "Iberia v.2"), "");
    EXPECT_FALSE(exists("spain.png"));
    EXPECT_EQ(testing::readFile(host("Maps/Iberia v.2.png")), "spain.png");
}

TEST_F(MapFiles, AChangeOfCaseAloneDoesNothing) {
    EXPECT_EQ(renameMap(workspace, "europe.jpg", "EUROPE"), "");
    EXPECT_TRUE(exists("europe.jpg"));
    EXPECT_FALSE(exists("EUROPE.jpg"));
}

TEST_F(MapFiles, ANameThatIsNotValidIsRefused) {
    for (const char* name : {"", "a\"b", "a?", "a*", "a:b", "a/b", "a\\b", "<a", "a>", "a|b", "..",
                             "..\\x", "nul", "a.", "a ", " a"}) {
        EXPECT_EQ(renameMap(workspace, "spain.png", name), "Name not valid") << name;
    }
    EXPECT_EQ(renameMap(workspace, "spain.png", QString(252, u'a')), "Name not valid");
    EXPECT_TRUE(exists("spain.png"));
}

TEST_F(MapFiles, TheNameOfAnotherMapIsRefusedUnlessTheExtensionsDiffer) {
    EXPECT_EQ(renameMap(workspace, "italy.jpg", "Europe"),
              "A map with the same name already exists.");
    EXPECT_EQ(renameMap(workspace, "spain.png", "italy"), "");
    EXPECT_TRUE(exists("italy.jpg"));
    EXPECT_TRUE(exists("italy.png"));
}

TEST_F(MapFiles, AFolderOfThatNameIsInTheWayToo) {
    ASSERT_TRUE(QDir().mkpath(host("Maps/greece.jpg")));
    EXPECT_EQ(renameMap(workspace, "italy.jpg", "greece"),
              "A map with the same name already exists.");
}

TEST_F(MapFiles, TheMapInUseIsNeitherRenamedNorDeleted) {
    EXPECT_EQ(renameMap(workspace, "europe.jpg", "other"),
              "Cannot rename: the map is currently used into the project.");
    EXPECT_EQ(deletingMapRefusal(workspace, "europe.jpg"),
              "Cannot delete: the map is in use by the project");
    EXPECT_EQ(deletingMapRefusal(workspace, "italy.jpg"), "");
    EXPECT_TRUE(exists("europe.jpg"));
}

TEST_F(MapFiles, TheChecksStandInTheirOrder) {
    EXPECT_EQ(renameMap(workspace, "europe.jpg", "a?"), "Name not valid");
    EXPECT_EQ(renameMap(workspace, "europe.jpg", "italy"),
              "A map with the same name already exists.");
}

}  // namespace nubivane
