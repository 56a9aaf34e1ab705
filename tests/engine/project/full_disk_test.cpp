// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/handmade_project.h"
#include "engine/project/limited_process.h"
#include "support/texts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace nubivane::testing {

namespace {

/// A disk that is full after a number of bytes, by the limit on the size of a file.
class FullDisk : public ::testing::Test {
  protected:
    FullDisk() {
        copyFolder(testFile("fixtures/program"), temporary.file("program"));
        HandmadeProject oldProject;
        oldProject.mapBytes += QByteArray(3000, 'x');  // longer than the new one: it leaves a tail
        oldProject.write(target);
        HandmadeProject newProject;
        newProject.map = "new.png";
        newProject.blocks = QList<QByteArray>(4, newProject.blocks[0]);
        newProject.write(source);
        // Opening then has nothing to write but the settings.
        writeFile(temporary.file("program/Maps/new.png"), newProject.mapBytes);
        dataSize = readFile(data).size();
    }

    ProcessResult save(qint64 bytes) {
        return runLimited({"--program-folder", temporary.file("program"), "--settings",
                           temporary.file("settings.ini"), "save", source, target},
                          {{RLIMIT_FSIZE, static_cast<rlim_t>(bytes)}});
    }

    /// Opening may not make up for the failed save with what it left.
    void expectOldProject() {
        const ProcessResult shown =
            runProgram(cliProgram(), {"--program-folder", temporary.file("program"), "--settings",
                                      temporary.file("settings.ini"), "show", target});
        EXPECT_EQ(shown.exitCode, 0) << shown.err.toStdString();
        EXPECT_TRUE(shown.out.contains("plain.png"));
    }

    QStringList leftovers() const {
        return QDir(temporary.path()).entryList({".nubivane-*"}, QDir::Files | QDir::Hidden);
    }

    TemporaryFolder temporary;
    QString target = temporary.file("target.nvpf");
    QString data = temporary.file("target.nvpx");
    QString source = temporary.file("source.nvpf");
    qint64 dataSize = 0;
};

}  // namespace

TEST_F(FullDisk, AtAnyByteLeavesBothFilesAsTheyWere) {
    const QByteArray oldXml = readFile(target);
    const QByteArray oldData = readFile(data);
    const qint64 largest = std::max<qint64>(dataSize, readFile(source).size());
    QList<qint64> limits{0, 1, 2, 3, 10, 100};
    for (qint64 bytes = 200; bytes < largest; bytes += 211) {
        limits << bytes;
    }
    limits << dataSize - 1 << dataSize;
    for (const qint64 bytes : limits) {
        const ProcessResult result = save(bytes);
        if (result.exitCode == 0) {
            EXPECT_GE(bytes, std::min(dataSize, largest)) << bytes;
            continue;
        }
        EXPECT_EQ(result.exitCode, 1) << bytes;
        EXPECT_EQ(result.err.left(result.err.indexOf('\n')), QByteArray(SaveFailed)) << bytes;
        EXPECT_TRUE(readFile(target) == oldXml) << bytes;
        EXPECT_TRUE(readFile(data) == oldData) << bytes;
        EXPECT_EQ(leftovers(), QStringList()) << bytes;
        expectOldProject();
    }
}

TEST_F(FullDisk, WithRoomForAllSaves) {
    const ProcessResult result = save(1 << 20);
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(readFile(target).contains("new.png"));
    EXPECT_EQ(readFile(data).size(), dataSize) << "the tail of the older file stays";
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(FullDisk, UnderANewNameLeavesNothing) {
    QFile::remove(target);
    QFile::remove(data);
    for (const qint64 bytes : {0, 1, 500}) {
        EXPECT_EQ(save(bytes).exitCode, 1) << bytes;
        EXPECT_FALSE(QFileInfo::exists(target)) << bytes;
        EXPECT_FALSE(QFileInfo::exists(data)) << bytes;
        EXPECT_EQ(leftovers(), QStringList()) << bytes;
    }
}

}  // namespace nubivane::testing
