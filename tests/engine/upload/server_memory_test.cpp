// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/server_memory.h"

#include "support/fixtures.h"

#include <QDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace nubivane {

namespace {

/// Each test with a state folder of its own.
class ServerMemories : public ::testing::Test {
  protected:
    ServerMemories() { qputenv("XDG_STATE_HOME", folder_.path().toUtf8()); }
    ~ServerMemories() override { qputenv("XDG_STATE_HOME", before_); }

    static void rememberOne() {
        ServerMemory memory("ftp.example.org/web");
        memory.folders.insert("Web");
        memory.manifestSize = 7;
        memory.save();
    }
    QString file() const {
        const QDir uploads(folder_.file("Nubivane/uploads"));
        return uploads.filePath(uploads.entryList(QDir::Files).value(0));
    }

    const QByteArray before_ = qgetenv("XDG_STATE_HOME");
    const testing::TemporaryFolder folder_;
};

}  // namespace

TEST_F(ServerMemories, ComeBackForTheSamePlaceAlone) {
    rememberOne();
    const ServerMemory again("ftp.example.org/web");
    EXPECT_TRUE(again.known);
    EXPECT_EQ(again.folders, QSet<QString>{"Web"});
    EXPECT_EQ(again.manifestSize, 7);
    EXPECT_FALSE(ServerMemory("ftp.example.org/other").known);
}

TEST_F(ServerMemories, APipeInTheirPlaceIsNeitherWaitedForNorRead) {
    rememberOne();
    const QByteArray pipe = file().toUtf8();
    ASSERT_TRUE(QFile::remove(file()));
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    ServerMemory memory("ftp.example.org/web");
    EXPECT_FALSE(memory.known);
    memory.save();
    struct stat status {};
    ASSERT_EQ(::lstat(pipe.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(ServerMemories, ARelativeFolderInTheEnvironmentCountsAsNone) {
    qputenv("XDG_STATE_HOME", "somewhere");
    EXPECT_EQ(ServerMemory::folder(), QDir::homePath() + "/.local/state/Nubivane");
}

}  // namespace nubivane
