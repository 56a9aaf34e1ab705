// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/folder_snapshot.h"
#include "engine/project/save_project.h"
#include "support/fixtures.h"

#include <QFileInfo>

namespace nubivane::testing {

namespace {

constexpr char SaveFailed[] = "An error occurred while saving the project.";

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

TEST_F(SaveFailures, TheNeighbourInWhichTheDataIsWrittenIsAFolder) {
    QDir().mkpath(temporary.file("weather.nvpx.saving"));
    expectNothingWritten(temporary.file("weather.nvpf"));
}

TEST_F(SaveFailures, TheNeighbourInWhichTheProjectIsWrittenIsAFolder) {
    QDir().mkpath(temporary.file("weather.nvpf.saving"));
    expectNothingWritten(temporary.file("weather.nvpf"));
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
    QFile::rename(temporary.file("real.nvpf"), temporary.file("real.nvpf.saving"));
    writeFile(temporary.file("real.nvpf"), "older");
    open(temporary.file("weather.nvpf"));
    EXPECT_TRUE(readFile(temporary.file("real.nvpf")).startsWith("<FILE "));
    EXPECT_FALSE(QFileInfo::exists(temporary.file("real.nvpf.saving")));
    EXPECT_TRUE(QFileInfo(temporary.file("weather.nvpf")).isSymLink());
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
