// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"
#include "support/fixtures.h"
#include "support/processes.h"
#include "support/texts.h"

#include <QDir>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdlib>

namespace nubivane {

namespace {

constexpr char damagedText[] = "[half a section\nno equals sign here\n\x00\xFF\xFE";
const QByteArray damaged(damagedText, sizeof damagedText - 1);

class SettingsDamage : public ::testing::Test {
  protected:
    /// In a process that can write no file longer than `limit` bytes: ends with 0 when a write that
    /// needs more was told to have failed.
    [[noreturn]] void writeUpTo(rlim_t limit) const {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limits{limit, limit};
        setrlimit(RLIMIT_FSIZE, &limits);
        SettingsStore store(file);
        const bool told = !store.set(Setting::FtpUrl, QString(4000, u'x'));
        std::_Exit(told ? 0 : 1);
    }

    testing::TemporaryFolder folder;
    const QString file = folder.file("settings.ini");
};

}  // namespace

TEST_F(SettingsDamage, ADamagedFileIsSetAsideWithAllThatIsInIt) {
    testing::writeFile(file, damaged);
    const SettingsStore store(file);
    ASSERT_FALSE(store.setAside().isEmpty());
    EXPECT_EQ(testing::readFile(store.setAside()), damaged);
    EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(SettingsDamage, TheStoreStartsEmptyAndWritesAgain) {
    testing::writeFile(file, damaged);
    SettingsStore store(file);
    EXPECT_EQ(store.text(Setting::FtpPort), "21");
    EXPECT_TRUE(store.set(Setting::FtpPort, "2121"));
    EXPECT_EQ(SettingsStore(file).text(Setting::FtpPort), "2121");
    EXPECT_EQ(testing::readFile(store.setAside()), damaged);
}

TEST_F(SettingsDamage, ASecondDamagedFileDoesNotReplaceTheFirst) {
    testing::writeFile(file, damaged);
    const QString first = SettingsStore(file).setAside();
    testing::writeFile(file, damaged + "again");
    const QString second = SettingsStore(file).setAside();
    EXPECT_NE(first, second);
    EXPECT_EQ(testing::readFile(first), damaged);
    EXPECT_EQ(testing::readFile(second), damaged + "again");
}

TEST_F(SettingsDamage, AFileFarTooLargeIsSetAsideUnread) {
    testing::writeFile(file, {});
    ASSERT_TRUE(QFile::resize(file, qint64{16} * 1024 * 1024 + 1));
    EXPECT_FALSE(SettingsStore(file).setAside().isEmpty());
}

TEST_F(SettingsDamage, ASoundFileStaysWhereItIs) {
    SettingsStore(file).set(Setting::FtpUrl, "ftp.example.org");
    const SettingsStore store(file);
    EXPECT_EQ(store.setAside(), "");
    EXPECT_EQ(store.text(Setting::FtpUrl), "ftp.example.org");
}

TEST_F(SettingsDamage, AnEmptyFileIsSound) {
    testing::writeFile(file, {});
    SettingsStore store(file);
    EXPECT_EQ(store.setAside(), "");
    EXPECT_TRUE(store.set(Setting::FtpUrl, "x"));
}

TEST_F(SettingsDamage, TheCommandLineTellsThatTheFileWasDamaged) {
    testing::writeFile(file, damaged);
    const auto result = testing::runProgram(
        testing::cliProgram(),
        {"--settings", file, "settings", "get", testing::SettingsSection, "Ftp", "port", "21"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "21\n");
    EXPECT_TRUE(result.err.contains("settings.ini.damaged-1")) << result.err.toStdString();
}

TEST_F(SettingsDamage, ADamagedFileThatCannotBeSetAsideIsNotOverwritten) {
    // The name leaves no room for a suffix.
    const QString longName = folder.file(QString(247, u's'));
    testing::writeFile(longName, damaged);
    SettingsStore store(longName);
    ASSERT_EQ(store.setAside(), "");
    EXPECT_FALSE(store.set(Setting::FtpUrl, "x"));
    EXPECT_EQ(testing::readFile(longName), damaged);
}

TEST_F(SettingsDamage, AFolderInPlaceOfTheFileIsLeftAlone) {
    testing::writeFile(file + "/inside.txt", "kept");
    SettingsStore store(file);
    EXPECT_FALSE(store.set(Setting::FtpUrl, "x"));
    EXPECT_EQ(testing::readFile(file + "/inside.txt"), "kept");
    EXPECT_EQ(store.text(Setting::FtpPort), "21");
}

TEST_F(SettingsDamage, ADeviceOrPipeInPlaceOfTheFileIsLeftAlone) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    const SettingsStore store(file);
    EXPECT_EQ(store.text(Setting::FtpPort), "21");
    EXPECT_TRUE(QFileInfo::exists(file));
    EXPECT_EQ(store.setAside(), "");
}

TEST_F(SettingsDamage, AFileThatCannotBeWrittenTells) {
    testing::writeFile(folder.file("no-folder"), "x");
    SettingsStore store(folder.file("no-folder/settings.ini"));
    EXPECT_FALSE(store.set(Setting::FtpUrl, "x"));
    EXPECT_FALSE(store.setList(SettingList::RecentFiles, {"a"}));
}

TEST_F(SettingsDamage, TheCommandLineFailsWhenTheFileCannotBeWritten) {
    testing::writeFile(folder.file("no-folder"), "x");
    const auto result = testing::runProgram(
        testing::cliProgram(), {"--settings", folder.file("no-folder/settings.ini"), "settings",
                                "set", testing::SettingsSection, "Ftp", "url", "x"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_FALSE(result.err.isEmpty());
}

TEST_F(SettingsDamage, WithoutSpaceOnTheDiskTheOldFileStaysWhole) {
    SettingsStore(file).set(Setting::FtpUrl, "ftp.example.org");
    const QByteArray before = testing::readFile(file);
    // Room for nothing, for a lock alone, and for all but the last bytes.
    for (const rlim_t limit : {16, 1000, 4000}) {
        EXPECT_EXIT(writeUpTo(limit), ::testing::ExitedWithCode(0), "") << limit;
        EXPECT_EQ(testing::readFile(file), before) << limit;
    }
}

TEST_F(SettingsDamage, OnceTheFileCanBeWrittenAgainAWriteIsDoneAndSaysSo) {
    const QString blocked = folder.file("blocked");
    testing::writeFile(blocked, "x");
    SettingsStore store(blocked + "/settings.ini");
    ASSERT_FALSE(store.set(Setting::FtpUrl, "first"));
    ASSERT_TRUE(QFile::remove(blocked));
    EXPECT_TRUE(store.set(Setting::FtpUrl, "second"));
    EXPECT_TRUE(testing::readFile(blocked + "/settings.ini").contains("second"));
}

TEST_F(SettingsDamage, ALineWhoseLastCharacterWasCutIsPassedOverAndKept) {
    for (const QByteArray& cut :
         {QByteArray("a/b/c=caf\xC3"), QByteArray("a/caf\xC3=x"), QByteArray("\xE3=%00"),
          QByteArray("a/b/c=x\xF0\x9F"), QByteArray("a/b/c=caf%C3"), QByteArray("caf\xC3")}) {
        SettingsStore(file).set(Setting::FtpUrl, "ftp.example.org");
        testing::writeFile(file, cut + '\n' + testing::readFile(file));
        SettingsStore store(file);
        EXPECT_EQ(store.setAside(), "") << cut.toStdString();
        EXPECT_EQ(store.text(Setting::FtpUrl), "ftp.example.org") << cut.toStdString();
        EXPECT_TRUE(store.set(Setting::FtpPort, "2121"));
        EXPECT_EQ(SettingsStore(file).text(Setting::FtpPort), "2121");
        EXPECT_EQ(SettingsStore(file).text(Setting::FtpUrl), "ftp.example.org");
        EXPECT_TRUE(testing::readFile(file).contains(cut)) << cut.toStdString();
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
                  QStringList("settings.ini"));
    }
}

TEST_F(SettingsDamage, NobodyElseMayReadTheFileOnceItIsWritten) {
    const auto mode = [this] {
        struct stat about {};
        ::stat(QFile::encodeName(file).constData(), &about);
        return about.st_mode & 07777;
    };
    SettingsStore(file).set(Setting::FtpPassword, "secret");
    EXPECT_EQ(mode(), 0600U);
    ASSERT_EQ(::chmod(QFile::encodeName(file).constData(), 0644), 0);
    SettingsStore(file).set(Setting::FtpPort, "2121");
    EXPECT_EQ(mode(), 0600U);
}

TEST_F(SettingsDamage, ALinkIsFollowedAndStays) {
    testing::writeFile(folder.file("real.ini"), {});
    ASSERT_TRUE(QFile::link(folder.file("real.ini"), file));
    EXPECT_TRUE(SettingsStore(file).set(Setting::FtpUrl, "x"));
    EXPECT_TRUE(QFileInfo(file).isSymLink());
    EXPECT_TRUE(testing::readFile(folder.file("real.ini")).contains("=x"));
}

}  // namespace nubivane
