// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "support/fixtures.h"

#include <QDir>
#include <QFile>

namespace nubivane {

namespace {

/// A folder with the file "sun.gif" and the folder "set".
class RenamingAndRemoving : public ::testing::Test {
  protected:
    RenamingAndRemoving() {
        testing::writeFile(temporary.file("sun.gif"), "sun");
        testing::writeFile(temporary.file("set/rain.gif"), "rain");
    }
    QString model(const QString& name) const { return host_files::toModel(temporary.file(name)); }
    bool exists(const QString& name) const { return QFile::exists(temporary.file(name)); }

    testing::TemporaryFolder temporary;
};

}  // namespace

TEST_F(RenamingAndRemoving, AFileGetsAnotherName) {
    EXPECT_TRUE(host_files::rename(model("sun.gif"), "star.gif"));
    EXPECT_FALSE(exists("sun.gif"));
    EXPECT_EQ(testing::readFile(temporary.file("star.gif")), "sun");
}

TEST_F(RenamingAndRemoving, AFolderGetsAnotherNameWithAllThatIsInIt) {
    EXPECT_TRUE(host_files::rename(model("set"), "set two"));
    EXPECT_EQ(testing::readFile(temporary.file("set two/rain.gif")), "rain");
}

TEST_F(RenamingAndRemoving, TheOldNameIsFoundWithoutRegardToCase) {
    EXPECT_TRUE(host_files::rename(model("SUN.GIF"), "star.gif"));
    EXPECT_TRUE(exists("star.gif"));
}

TEST_F(RenamingAndRemoving, WhatBearsTheNewNameIsNeverReplaced) {
    testing::writeFile(temporary.file("Star.gif"), "star");
    EXPECT_FALSE(host_files::rename(model("sun.gif"), "star.GIF"));
    EXPECT_EQ(testing::readFile(temporary.file("Star.gif")), "star");
    ASSERT_TRUE(QDir().mkpath(temporary.file("empty")));
    EXPECT_FALSE(host_files::rename(model("set"), "empty"));
    EXPECT_TRUE(exists("set/rain.gif"));
}

TEST_F(RenamingAndRemoving, ANameThatLeavesTheFolderIsRefused) {
    for (const char* name : {"", ".", "..", "../sun.gif", "..\\sun.gif", "set/sun.gif", "c:sun"}) {
        EXPECT_FALSE(host_files::rename(model("sun.gif"), name)) << name;
    }
    EXPECT_TRUE(exists("sun.gif"));
}

TEST_F(RenamingAndRemoving, WhatIsNotThereCannotBeRenamed) {
    EXPECT_FALSE(host_files::rename(model("moon.gif"), "star.gif"));
}

TEST_F(RenamingAndRemoving, AFileIsRemovedAFolderIsNot) {
    EXPECT_TRUE(host_files::removeFile(model("Sun.gif")));
    EXPECT_FALSE(exists("sun.gif"));
    EXPECT_FALSE(host_files::removeFile(model("sun.gif")));
    EXPECT_FALSE(host_files::removeFile(model("set")));
    EXPECT_TRUE(exists("set"));
}

TEST_F(RenamingAndRemoving, OnlyAnEmptyFolderIsRemoved) {
    EXPECT_FALSE(host_files::removeFolder(model("set")));
    EXPECT_TRUE(exists("set/rain.gif"));
    ASSERT_TRUE(host_files::removeFiles(model("set")));
    EXPECT_TRUE(host_files::removeFolder(model("set")));
    EXPECT_FALSE(exists("set"));
}

TEST_F(RenamingAndRemoving, OfALinkToAFolderTheLinkAloneGoes) {
    ASSERT_TRUE(QFile::link(temporary.file("set"), temporary.file("link")));
    EXPECT_TRUE(host_files::removeFolder(model("link")));
    EXPECT_FALSE(exists("link"));
    EXPECT_TRUE(exists("set/rain.gif"));
}

}  // namespace nubivane
