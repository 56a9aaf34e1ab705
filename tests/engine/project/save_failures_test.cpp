// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/folder_lock.h"
#include "engine/core/host_files.h"
#include "engine/core/temporary_name.h"
#include "engine/project/folder_snapshot.h"
#include "engine/project/interrupted_save.h"
#include "engine/project/save_project.h"
#include "support/fixtures.h"
#include "support/texts.h"

#include <QFileInfo>

#include <sys/stat.h>

namespace nubivane::testing {

namespace {

class SaveFailures : public WorkspaceFixture {
  protected:
    SaveFailures() { useMap("plain.png", {8, 6}); }

    bool saveTo(const QString& hostFile) {
        workspace.Status.CurrentProject = host_files::toModel(hostFile);
        return saveProject(editor(), false);
    }

    /// Expects the save to fail and everything to stay as it was.
    void expectNothingWritten(const QString& hostFile) {
        const Snapshot before = snapshotOf(temporary.path());
        shell.expectMessage(SaveFailed, Icon::Critical);
        EXPECT_FALSE(saveTo(hostFile));
        EXPECT_EQ(differences(before, snapshotOf(temporary.path())), QStringList());
    }
};

}  // namespace

TEST_F(SaveFailures, TheProjectFileIsAFolder) {
    QDir().mkpath(temporary.file("weather.nvpf/inside"));
    expectNothingWritten(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, TheProjectFileIsAnEmptyFolder) {
    QDir().mkpath(temporary.file("weather.nvpf"));
    writeFile(temporary.file("weather.nvpx"), "old pictures");
    expectNothingWritten(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, TheDataFileIsAFolder) {
    QDir().mkpath(temporary.file("weather.nvpx"));
    writeFile(temporary.file("weather.nvpf"), "old project");
    expectNothingWritten(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, TheProjectFileIsAPipe) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(temporary.file("weather.nvpf")).constData(), 0600), 0);
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveTo(temporary.file("weather.nvpf")));
    EXPECT_FALSE(QFileInfo::exists(temporary.file("weather.nvpx")));
}

TEST_F(SaveFailures, TheDataFileIsALinkToAPipe) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(temporary.file("pipe")).constData(), 0600), 0);
    QFile::link(temporary.file("pipe"), temporary.file("weather.nvpx"));
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveTo(temporary.file("weather.nvpf")));
    EXPECT_FALSE(QFileInfo::exists(temporary.file("weather.nvpf")));
    EXPECT_TRUE(QFileInfo(temporary.file("weather.nvpx")).isSymLink());
}

TEST_F(SaveFailures, TheFolderHasBeenLockedForTooLong) {
    // Half a minute is not waited for here: the lock is all that a save needs to be told.
    const FolderLock lock(temporary.path());
    EXPECT_EQ(FolderLock(temporary.path(), std::chrono::milliseconds(1)).state(),
              FolderLock::State::Busy);
    EXPECT_LE(LockPatience, std::chrono::seconds(30));
}

TEST_F(SaveFailures, TheFolderIsMissing) {
    expectNothingWritten(temporary.file("nowhere/weather.nvpf"));
}

TEST_F(SaveFailures, TheFolderIsAFile) {
    writeFile(temporary.file("file"), "content");
    expectNothingWritten(temporary.file("file/weather.nvpf"));
}

TEST_F(SaveFailures, TheMapIsMissing) {
    QFile::remove(host("Maps/plain.png"));
    expectNothingWritten(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, TheMapIsNoPicture) {
    writeFile(host("Maps/plain.png"), "no picture");
    expectNothingWritten(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, TheNameIsTooLongForTheSystem) {
    expectNothingWritten(temporary.file(QString(300, u'x') + ".nvpf"));
}

TEST_F(SaveFailures, AMessageTellsTheSystemsReasonBesidesItsText) {
    shell.expectMessage(SaveFailed, Icon::Critical);
    EXPECT_FALSE(saveTo(temporary.file("nowhere/weather.nvpf")));
    ASSERT_EQ(shell.causes.size(), 1);
    EXPECT_TRUE(shell.causes[0].contains("nowhere")) << shell.causes[0].toStdString();
}

TEST_F(SaveFailures, LinksAreFollowed) {
    writeFile(temporary.file("real/project.xml"), "old");
    writeFile(temporary.file("real/pictures.bin"), "old");
    QFile::link(temporary.file("real/project.xml"), temporary.file("weather.nvpf"));
    QFile::link(temporary.file("real/pictures.bin"), temporary.file("weather.nvpx"));
    ASSERT_TRUE(saveTo(temporary.file("weather.nvpf")));
    EXPECT_TRUE(QFileInfo(temporary.file("weather.nvpf")).isSymLink());
    EXPECT_TRUE(QFileInfo(temporary.file("weather.nvpx")).isSymLink());
    EXPECT_TRUE(readFile(temporary.file("real/project.xml")).startsWith("<FILE "));
    EXPECT_TRUE(
        readFile(temporary.file("real/pictures.bin")).startsWith(readFile(host("Maps/plain.png"))));
    EXPECT_EQ(QDir(temporary.file("real")).entryList(QDir::Files),
              QStringList({"pictures.bin", "project.xml"}));
    open(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, AnInterruptedSaveBehindALinkIsCompleted) {
    ASSERT_TRUE(saveTo(temporary.file("real.nvpf")));
    QFile::link(temporary.file("real.nvpf"), temporary.file("weather.nvpf"));
    QFile::link(temporary.file("real.nvpx"), temporary.file("weather.nvpx"));
    const QByteArray older("older");
    const QString waiting = temporary.file(
        temporary_name::prefixFor("real.nvpf") + "12345678-" +
        QString::fromLatin1(waitingNote(*fingerprintOf(temporary.file("real.nvpf"), 1 << 20),
                                        *fingerprintOf(temporary.file("real.nvpx"), 1 << 20),
                                        fingerprintOf(older))));
    QFile::rename(temporary.file("real.nvpf"), waiting);
    writeFile(temporary.file("real.nvpf"), older);
    open(temporary.file("weather.nvpf"));
    EXPECT_TRUE(readFile(temporary.file("real.nvpf")).startsWith("<FILE "));
    EXPECT_FALSE(QFileInfo::exists(waiting));
    EXPECT_TRUE(QFileInfo(temporary.file("weather.nvpf")).isSymLink());
}

TEST_F(SaveFailures, ANameAsLongAsFileSystemsTakeIsSaved) {
    const QString name = temporary.file(QString(250, u'x') + ".nvpf");
    ASSERT_TRUE(saveTo(name));
    open(name);
}

TEST_F(SaveFailures, APersonsOwnFilesBesideThePairAreLeftAlone) {
    for (const char* name : {"weather.nvpf.saving", "weather.nvpx.saving", "weather.nvpf.new",
                             "weather.nvpf.tmp", "weather.nvpx.part", "weather.nvpf.bak"}) {
        writeFile(temporary.file(name), "mine");
    }
    ASSERT_TRUE(saveTo(temporary.file("weather.nvpf")));
    open(temporary.file("weather.nvpf"));
    for (const char* name : {"weather.nvpf.saving", "weather.nvpx.saving", "weather.nvpf.new",
                             "weather.nvpf.tmp", "weather.nvpx.part", "weather.nvpf.bak"}) {
        EXPECT_EQ(readFile(temporary.file(name)), "mine") << name;
    }
}

TEST_F(SaveFailures, ATailLongerThanAnyProjectIsNotCopied) {
    writeFile(temporary.file("weather.nvpx"), {});
    ASSERT_TRUE(QFile::resize(temporary.file("weather.nvpx"), qint64{64} << 30));
    ASSERT_TRUE(saveTo(temporary.file("weather.nvpf")));
    EXPECT_LT(QFileInfo(temporary.file("weather.nvpx")).size(), 1 << 20);
    open(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, PermissionsAreKept) {
    using P = QFileDevice;
    ASSERT_TRUE(saveTo(temporary.file("weather.nvpf")));
    const auto forGroup = P::ReadOwner | P::WriteOwner | P::ReadGroup | P::WriteGroup;
    const auto forOwner = P::ReadOwner | P::WriteOwner;
    QFile::setPermissions(temporary.file("weather.nvpf"), forGroup);
    QFile::setPermissions(temporary.file("weather.nvpx"), forOwner);
    const auto permissions = [&](const char* name) {
        return QFile::permissions(temporary.file(name)) &
               (forGroup | P::ReadOther | P::WriteOther | P::ExeOwner | P::ExeGroup);
    };
    const auto project = permissions("weather.nvpf");
    const auto data = permissions("weather.nvpx");
    workspace.Frames().Item(1).Texts().Label = "changed";
    ASSERT_TRUE(saveTo(temporary.file("weather.nvpf")));
    EXPECT_TRUE(readFile(temporary.file("weather.nvpf")).contains("changed"));
    EXPECT_EQ(permissions("weather.nvpf"), project);
    EXPECT_EQ(permissions("weather.nvpx"), data);
}

}  // namespace nubivane::testing
