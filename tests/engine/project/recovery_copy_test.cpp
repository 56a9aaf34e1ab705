// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recovery_copy.h"

#include "engine/core/host_files.h"
#include "support/fixtures.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <atomic>
#include <ctime>
#include <memory>
#include <thread>

namespace nubivane::testing {

namespace {

/// Copies of a project of one Frame, written and read in one folder.
class RecoveryCopies : public ::testing::Test {
  protected:
    RecoveryCopies() {
        writeFile(temporary.file("map.png"),
                  encodePicture(plainImage({20, 10}, Qt::blue), PictureFormat::Png));
    }

    QString root() const { return temporary.file("recovery"); }
    WorkSnapshot snapshot(const QString& label) const {
        FrameRecords records;
        records.label = label;
        return {.project = "C:\\week.nvpf",
                .opened = {},
                .mapFile = host_files::toModel(temporary.file("map.png")),
                .time = QDateTime::currentDateTimeUtc(),
                .head = {"map.png", {}},
                .frames = {{std::make_shared<const FrameRecords>(records), Picture()}}};
    }
    /// What an editor left that was killed before its first state stood.
    void leaveUnfinished(const QString& name, int secondsAgo) const {
        writeFile(root() + u'/' + name + "/text-1", "<Item/>");
        const timespec past[] = {{::time(nullptr) - secondsAgo, 0},
                                 {::time(nullptr) - secondsAgo, 0}};
        const QByteArray folder = QFile::encodeName(root() + u'/' + name);
        ASSERT_EQ(::utimensat(AT_FDCWD, folder.constData(), past, 0), 0);
    }
    QStringList folders() const { return folderNames(root()); }

    TemporaryFolder temporary;
    SettingsStore settings{temporary.file("settings.ini")};
};

}  // namespace

TEST_F(RecoveryCopies, AreNeverMetHalfWrittenOrHalfTakenAway) {
    std::atomic<bool> ended = false;
    QStringList faults;
    int met = 0;
    std::thread reader([&] {
        while (!ended) {
            met += static_cast<int>(recoveryEntries(root(), faults).size());
        }
    });
    for (int round = 0; round < 15; ++round) {
        RecoveryCopy copy(root());
        for (int edit = 0; edit < 4; ++edit) {
            copy.write(snapshot(QString::number(edit)));
        }
        copy.clear();
    }
    ended = true;
    reader.join();
    EXPECT_TRUE(faults.isEmpty()) << faults.join('\n').toStdString();
    EXPECT_GT(met, 0);
    EXPECT_EQ(folders(), QStringList());
}

TEST_F(RecoveryCopies, AreWrittenAsAProjectWithTheTextsOfEachFrameInTheirOrder) {
    WorkSnapshot work = snapshot("Monday");
    work.frames.push_back(snapshot("Tuesday").frames.front());
    RecoveryCopy copy(root());
    copy.write(work);
    QStringList faults;
    const QList<RecoveryEntry> entries = recoveryEntries(root(), faults);
    ASSERT_EQ(entries.size(), 1);
    const QString target = temporary.file("recovered.nvpf");
    writeRecovered(entries[0], host_files::toModel(target), settings);
    const QByteArray document = readFile(target);
    const qsizetype monday = document.indexOf("Monday");
    EXPECT_GT(monday, 0) << document.toStdString();
    EXPECT_GT(document.indexOf("Tuesday"), monday) << document.toStdString();
    EXPECT_EQ(document.count("</Frame>"), 2);
}

TEST_F(RecoveryCopies, WhatAKilledEditorLeftUnfinishedGoesWithTheNext) {
    leaveUnfinished("dead", 120);
    leaveUnfinished("beginning", 5);
    leaveUnfinished("held", 120);
    const FolderLock lock(root() + "/held");
    RecoveryCopy copy(root());
    copy.write(snapshot("Map1"));
    const QStringList left = folders();
    EXPECT_EQ(left.size(), 3) << left.join(' ').toStdString();
    EXPECT_FALSE(left.contains("dead"));
    QStringList faults;
    EXPECT_EQ(recoveryEntries(root(), faults).size(), 1);
    EXPECT_TRUE(faults.isEmpty());
}

}  // namespace nubivane::testing
