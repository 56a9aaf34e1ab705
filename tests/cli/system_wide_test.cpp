// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace nubivane::testing {

namespace {

/// The program as a package puts it there: executables in "bin", content in "share/nubivane".
class SystemWide : public CliTest {
  protected:
    SystemWide() {
        QDir().mkpath(beside("usr/bin"));
        QFile::copy(cliProgram(), installed());
        QDir().mkpath(beside("usr/share"));
        copyFolder(programFolder(), beside("usr/share/nubivane"));
        QDir().mkpath(beside("usr/share/nubivane/Maps"));
    }

    QString installed() const { return beside("usr/bin/nubivane-cli"); }
    /// Where the library lies of which videos are made, seen from the programs.
    static QString videoLibrary() { return "../lib/nubivane/modules/nubivane-video.so"; }
    QString own(const QString& name) const { return beside("data/Nubivane/" + name); }

    ProcessResult runInstalled(const QStringList& words) const {
        return runProgram(
            "env", QStringList{"-i", "HOME=" + temporary.path(), "XDG_DATA_HOME=" + beside("data"),
                               "XDG_CONFIG_HOME=" + beside("config"), installed()} +
                       words);
    }

    QStringList entries(const QString& folder) const {
        QStringList names;
        QDirIterator found(beside(folder), QDir::AllEntries | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (found.hasNext()) {
            names += found.next();
        }
        names.sort();
        return names;
    }
};

}  // namespace

TEST_F(SystemWide, PagesAreMadeInTheUsersOwnFolder) {
    const QStringList before = entries("usr");
    const ProcessResult result = runInstalled({"page", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.err, "");
    EXPECT_TRUE(QFile::exists(own("Forecast.htm")));
    EXPECT_TRUE(QFile::exists(own("Web/Forecast1.jpg")));
    EXPECT_EQ(QDir(own("Symbols")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              QDir(host("Symbols")).entryList(QDir::Dirs | QDir::NoDotAndDotDot));
    EXPECT_EQ(entries("usr"), before);
}

TEST_F(SystemWide, AnUpgradeLeavesTheUsersChoicesAlone) {
    const QString project = useSoundProject();
    ASSERT_EQ(runInstalled({"page", project}).exitCode, 0);
    QDir(own("Symbols/set-1")).removeRecursively();
    writeFile(own("Maps/mine.jpg"), "mine");
    writeFile(beside("usr/share/nubivane/Maps/new.jpg"), "new");
    ASSERT_EQ(runInstalled({"show", project}).exitCode, 0);
    EXPECT_FALSE(QFile::exists(own("Symbols/set-1")));
    EXPECT_EQ(readFile(own("Maps/mine.jpg")), "mine");
    EXPECT_EQ(readFile(own("Maps/new.jpg")), "new");
}

TEST_F(SystemWide, AFolderWithItsContentBesideItIsAPortableOne) {
    QFile::copy(cliProgram(), host("nubivane-cli"));
    QDir().mkpath(host("Maps"));
    copyFolder(programFolder(), beside("share/nubivane"));
    const ProcessResult result = runProgram(
        "env", {"-i", "HOME=" + temporary.path(), host("nubivane-cli"), "page", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(QFile::exists(host("Forecast.htm")));
    EXPECT_FALSE(QFile::exists(beside(".local/share/Nubivane")));
}

TEST_F(SystemWide, VideosAreMadeByTheLibraryOfTheInstallation) {
    QDir().mkpath(beside("usr/lib/nubivane/modules"));
    ASSERT_TRUE(QFile::copy(QFileInfo(cliProgram()).absoluteDir().filePath(videoLibrary()),
                            QFileInfo(installed()).absoluteDir().filePath(videoLibrary())));
    const ProcessResult result = runInstalled({"avi", useSoundProject(), "1", beside("a.avi")});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(readFile(beside("a.avi")).startsWith("RIFF"));
}

TEST_F(SystemWide, WithoutThatLibraryAVideoIsRefusedAndAllElseIsMade) {
    const QString project = useSoundProject();
    for (const char* command : {"avi", "mp4"}) {
        const QString video = beside(QString("a.") + command);
        const ProcessResult result = runInstalled({command, project, "1", video});
        EXPECT_EQ(result.exitCode, 1) << command;
        EXPECT_TRUE(result.err.contains("Cannot encode the video.")) << result.err.toStdString();
        EXPECT_TRUE(result.err.contains("nubivane-video.so")) << result.err.toStdString();
        EXPECT_FALSE(QFile::exists(video)) << command;
    }
    EXPECT_EQ(runInstalled({"anigif", project, "1", beside("a.gif")}).exitCode, 0);
}

TEST_F(SystemWide, AUserWithoutAFolderToWriteIsToldSoAndNotThatTheProjectIsDamaged) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root becomes another user";
    }
    const QString project = useSoundProject();
    // The temporary folder is its owner's alone: what it holds is seen by everybody from here on.
    ASSERT_EQ(::chmod(QFile::encodeName(temporary.path()).constData(), 0755), 0);
    for (const QString& home : {QStringLiteral("HOME=/nonexistent"), QStringLiteral("LANG=C")}) {
        for (const QStringList& words :
             {QStringList{"show", project}, QStringList{"page", project},
              QStringList{"save", project}, QStringList{"settings", "set", "S", "G", "K", "V"}}) {
            const ProcessResult result = runProgram(
                "setpriv", QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", "env",
                                       "-i", home, installed()} +
                               words);
            EXPECT_EQ(result.exitCode, 1) << words[0].toStdString();
            EXPECT_TRUE(
                result.err.startsWith("There is no folder that the program may write: "
                                      "neither its own nor yours.\n"))
                << words[0].toStdString() << ": " << result.err.toStdString();
        }
    }
}

}  // namespace nubivane::testing
