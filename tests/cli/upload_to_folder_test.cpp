// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <sys/resource.h>

#include <csignal>

namespace nubivane::testing {

namespace {

/// Uploads into a folder of this machine.
class UploadToFolder : public CliTest {
  protected:
    UploadToFolder() {
        QDir().mkpath(target());
        run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Ftp", "nubivane folder", "nVane"});
        project = useSoundProject();
        EXPECT_EQ(run({"page", project}).exitCode, 0);
        writeFile(host("Maps/europe.jpg"), QByteArray(3000000, 'x'));
    }

    QString target() const { return beside("www"); }
    ProcessResult upload(const RunOptions& options = {}) const {
        return run({"upload", project, "--initialize", "--host", "file:" + target()}, options);
    }
    QStringList sent() const {
        QStringList names;
        QDirIterator entries(target(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            names += QDir(target()).relativeFilePath(entries.next());
        }
        return names;
    }

    /// No file may grow beyond this, as on a disk that is full.
    static void limitFiles() {
        constexpr rlimit size{1000000, 1000000};
        ::setrlimit(RLIMIT_FSIZE, &size);
        std::signal(SIGXFSZ, SIG_IGN);
    }

    QString project;
};

}  // namespace

TEST_F(UploadToFolder, AFileForWhichThereIsNoRoomIsToldAndLeavesNothingBehind) {
    const ProcessResult result = upload({.inChild = &limitFiles});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith("Cannot upload " + host("Maps/europe.jpg").toUtf8() +
                                      " file\n  File too large"))
        << result.err.toStdString();
    EXPECT_EQ(sent().filter("europe"), QStringList());
    EXPECT_EQ(sent().filter(".part"), QStringList());
    EXPECT_EQ(upload().exitCode, 0);
    EXPECT_EQ(readFile(target() + "/nVane/Maps/europe.jpg"), QByteArray(3000000, 'x'));
}

TEST_F(UploadToFolder, WhatCannotBeRememberedIsToldAndSentAgain) {
    writeFile(beside("no-folder"), "a file");
    const RunOptions forgetful{.environment = {"XDG_STATE_HOME=" + beside("no-folder")}};
    for (int i = 0; i < 2; ++i) {
        const ProcessResult result = upload(forgetful);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_TRUE(result.err.startsWith(
            "What was sent cannot be remembered: the next upload sends more than has changed.\n"
            "  "))
            << result.err.toStdString();
        EXPECT_EQ(readFile(target() + "/nVane/Maps/europe.jpg"), QByteArray(3000000, 'x'));
    }
}

}  // namespace nubivane::testing
