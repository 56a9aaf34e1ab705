// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/shipped_content.h"

#include "support/fixtures.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace nubivane::testing {

namespace {

class ShippedContent : public ::testing::Test {
  protected:
    ShippedContent() {
        ship("Maps/europe.jpg", "europe");
        ship("Symbols/set-1/sun.gif", "sun");
        ship("Symbols/set-1/rain.gif", "rain");
        ship("Help/Nubivane.chm", "help");
        ship("Media/fileCopy.gif", "copy");
    }

    void ship(const QString& name, const QByteArray& bytes) const { put(shipped(name), bytes); }
    QString shipped(const QString& name) const { return temporary.file("shipped/" + name); }
    QString own(const QString& name) const { return temporary.file("own/" + name); }
    void deliver() const { deliverContent(temporary.file("shipped"), temporary.file("own")); }

    static void put(const QString& file, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(file).path());
        writeFile(file, bytes);
    }

    TemporaryFolder temporary;
};

}  // namespace

TEST_F(ShippedContent, TheFirstStartBringsEverything) {
    deliver();
    EXPECT_EQ(readFile(own("Maps/europe.jpg")), "europe");
    EXPECT_EQ(readFile(own("Symbols/set-1/sun.gif")), "sun");
    EXPECT_EQ(readFile(own("Symbols/set-1/rain.gif")), "rain");
    EXPECT_EQ(readFile(own("Help/Nubivane.chm")), "help");
    EXPECT_EQ(readFile(own("Media/fileCopy.gif")), "copy");
    EXPECT_TRUE(QFileInfo(own("Web")).isDir());
}

TEST_F(ShippedContent, CopiesOfReadOnlyFilesCanBeWrittenByTheirOwner) {
    QFile::setPermissions(shipped("Maps/europe.jpg"),
                          QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    deliver();
    EXPECT_TRUE(QFile::permissions(own("Maps/europe.jpg")).testFlag(QFileDevice::WriteOwner));
}

TEST_F(ShippedContent, WhatTheUserChangedStays) {
    deliver();
    writeFile(own("Symbols/set-1/sun.gif"), "a better sun");
    ship("Symbols/set-1/sun.gif", "a newer sun");
    deliver();
    EXPECT_EQ(readFile(own("Symbols/set-1/sun.gif")), "a better sun");
}

TEST_F(ShippedContent, WhatTheUserThrewAwayStaysAway) {
    deliver();
    QFile::remove(own("Maps/europe.jpg"));
    QDir(own("Symbols/set-1")).removeRecursively();
    deliver();
    EXPECT_FALSE(QFileInfo::exists(own("Maps/europe.jpg")));
    EXPECT_FALSE(QFileInfo::exists(own("Symbols/set-1")));
}

TEST_F(ShippedContent, ANewerVersionAddsWhatItIsTheFirstToShip) {
    deliver();
    QFile::remove(own("Maps/europe.jpg"));
    ship("Maps/italy.jpg", "italy");
    ship("Symbols/night/moon.gif", "moon");
    deliver();
    EXPECT_EQ(readFile(own("Maps/italy.jpg")), "italy");
    EXPECT_EQ(readFile(own("Symbols/night/moon.gif")), "moon");
    EXPECT_FALSE(QFileInfo::exists(own("Maps/europe.jpg")));
}

TEST_F(ShippedContent, WhatTheUserHadUnderTheSameNameStays) {
    put(own("Maps/europe.jpg"), "my own europe");
    deliver();
    EXPECT_EQ(readFile(own("Maps/europe.jpg")), "my own europe");
    QFile::remove(own("Maps/europe.jpg"));
    deliver();
    EXPECT_FALSE(QFileInfo::exists(own("Maps/europe.jpg")));
}

TEST_F(ShippedContent, FilesOfTheUserAreLeftAlone) {
    deliver();
    put(own("Symbols/mine/star.gif"), "star");
    put(own("Forecast.htm"), "page");
    deliver();
    EXPECT_EQ(readFile(own("Symbols/mine/star.gif")), "star");
    EXPECT_EQ(readFile(own("Forecast.htm")), "page");
}

TEST_F(ShippedContent, HelpAndAnimationsFollowThoseShipped) {
    deliver();
    ship("Help/Nubivane.chm", "newer help");
    deliver();
    EXPECT_EQ(readFile(own("Help/Nubivane.chm")), "newer help");
    QFile::remove(own("Media/fileCopy.gif"));
    deliver();
    EXPECT_EQ(readFile(own("Media/fileCopy.gif")), "copy");
}

/// A newer package may well be older than the day on which the user's copy was made.
TEST_F(ShippedContent, HelpOfTheSameSizeIsToldByItsTime) {
    deliver();
    ship("Help/Nubivane.chm", "HELP");
    QFile help(shipped("Help/Nubivane.chm"));
    ASSERT_TRUE(help.open(QIODevice::ReadWrite));
    help.setFileTime(QDateTime::currentDateTime().addDays(-9), QFileDevice::FileModificationTime);
    help.close();
    deliver();
    EXPECT_EQ(readFile(own("Help/Nubivane.chm")), "HELP");
}

TEST_F(ShippedContent, AnInterruptedDeliveryIsCompletedAtTheNextStart) {
    put(own("Maps/europe.jpg"), "europe");
    deliver();
    EXPECT_EQ(readFile(own("Symbols/set-1/sun.gif")), "sun");
}

TEST_F(ShippedContent, FoldersOfAnotherCaseAreTheSame) {
    put(own("maps/mine.jpg"), "mine");
    deliver();
    EXPECT_EQ(readFile(own("maps/europe.jpg")), "europe");
    EXPECT_FALSE(QFileInfo::exists(own("Maps")));
}

TEST_F(ShippedContent, AListOfNonsenseCostsNothing) {
    put(own(".delivered"), QByteArray("../../etc/passwd\n\xff\xfe\n\0\n", 22));
    deliver();
    EXPECT_EQ(readFile(own("Maps/europe.jpg")), "europe");
}

TEST_F(ShippedContent, AFileInPlaceOfTheFolderRaisesNothing) {
    writeFile(temporary.file("own"), "a file");
    deliver();
    EXPECT_EQ(readFile(temporary.file("own")), "a file");
}

TEST_F(ShippedContent, NothingShippedMakesEmptyFolders) {
    deliverContent(temporary.file("nowhere"), temporary.file("own"));
    EXPECT_EQ(folderNames(temporary.file("own")),
              QStringList({"Help", "Maps", "Media", "Symbols", "Web"}));
}

}  // namespace nubivane::testing
