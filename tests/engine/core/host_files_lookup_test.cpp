// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "support/fixtures.h"

#include <QDir>

namespace nubivane {

namespace {

class HostFilesLookup : public ::testing::Test {
  protected:
    QString model(const QString& name) const { return host_files::toModel(folder.file(name)); }

    testing::TemporaryFolder folder;
};

}  // namespace

TEST_F(HostFilesLookup, TheModelsFormHasBackslashes) {
    EXPECT_EQ(host_files::toModel("/home/user/Maps/italy.jpg"), "\\home\\user\\Maps\\italy.jpg");
}

TEST_F(HostFilesLookup, APathThatExistsAsWrittenIsTakenAsWritten) {
    testing::writeFile(folder.file("Maps/italy.jpg"), "x");
    EXPECT_EQ(host_files::toHost(model("Maps/italy.jpg")), folder.file("Maps/italy.jpg"));
}

TEST_F(HostFilesLookup, EveryComponentIsFoundWithoutRegardToCase) {
    testing::writeFile(folder.file("Maps/Southern/Italy.JPG"), "x");
    EXPECT_EQ(host_files::toHost(model("mAPS\\sOUTHERN\\iTALY.jpg")),
              folder.file("Maps/Southern/Italy.JPG"));
    EXPECT_TRUE(host_files::fileExists(model("maps\\southern\\italy.jpg")));
    EXPECT_TRUE(host_files::folderExists(model("MAPS\\SOUTHERN")));
    EXPECT_EQ(host_files::read(model("MAPS\\SOUTHERN\\ITALY.JPG"), 10), "x");
}

TEST_F(HostFilesLookup, LettersBeyondAsciiAreFoldedToo) {
    testing::writeFile(folder.file(QString::fromUtf8("Città.gif")), "x");
    EXPECT_TRUE(host_files::fileExists(model(QString::fromUtf8("CITTÀ.GIF"))));
}

TEST_F(HostFilesLookup, TheExactNameWinsOverOneThatResemblesIt) {
    testing::writeFile(folder.file("SUN.gif"), "capitals");
    testing::writeFile(folder.file("sun.gif"), "small");
    EXPECT_EQ(host_files::read(model("sun.gif"), 10), "small");
    EXPECT_EQ(host_files::read(model("SUN.gif"), 10), "capitals");
}

TEST_F(HostFilesLookup, HiddenEntriesAreFound) {
    testing::writeFile(folder.file(".Hidden/File"), "x");
    EXPECT_TRUE(host_files::fileExists(model(".hidden\\file")));
}

TEST_F(HostFilesLookup, AComponentThatDoesNotExistStaysAsItIs) {
    testing::writeFile(folder.file("Maps/italy.jpg"), "x");
    EXPECT_EQ(host_files::toHost(model("maps\\New.jpg")), folder.file("Maps/New.jpg"));
    EXPECT_EQ(host_files::toHost(model("none\\New.jpg")), folder.file("none/New.jpg"));
    EXPECT_EQ(host_files::toHost(model("none\\")), folder.file("none/"));
    EXPECT_FALSE(host_files::fileExists(model("maps\\New.jpg")));
}

TEST_F(HostFilesLookup, ARelativePathStaysRelative) {
    EXPECT_EQ(host_files::toHost("italy.jpg"), "italy.jpg");
    EXPECT_EQ(host_files::toHost("no\\such\\file"), "no/such/file");
}

TEST_F(HostFilesLookup, AFolderIsNoFileAndAFileNoFolder) {
    testing::writeFile(folder.file("Maps/italy.jpg"), "x");
    EXPECT_FALSE(host_files::fileExists(model("Maps")));
    EXPECT_FALSE(host_files::folderExists(model("Maps\\italy.jpg")));
}

TEST_F(HostFilesLookup, AnEmptyPathIsNothing) {
    EXPECT_FALSE(host_files::fileExists(""));
    EXPECT_FALSE(host_files::folderExists(""));
}

TEST_F(HostFilesLookup, NamesComeSortedAndByKind) {
    testing::writeFile(folder.file("set-2/x"), "");
    testing::writeFile(folder.file("set-1/x"), "");
    testing::writeFile(folder.file("b.gif"), "");
    testing::writeFile(folder.file("a.gif"), "");
    testing::writeFile(folder.file(".hidden"), "");
    EXPECT_EQ(host_files::folderNames(model("")), QStringList({"set-1", "set-2"}));
    EXPECT_EQ(host_files::fileNames(model("")), QStringList({".hidden", "a.gif", "b.gif"}));
}

TEST_F(HostFilesLookup, AFolderThatIsNotThereHasNoNames) {
    EXPECT_EQ(host_files::folderNames(model("none")), QStringList());
    EXPECT_EQ(host_files::fileNames(model("none")), QStringList());
}

}  // namespace nubivane
