// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/history/version_store.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/replaced_file.h"
#include "support/fixtures.h"

#include <QDir>
#include <QFileInfo>

namespace nubivane::testing {

namespace {

/// Earlier states of one project, in a store of the test's own.
class VersionStores : public ::testing::Test {
  protected:
    VersionStores() { writePair("document 0", "pictures 0"); }

    void writePair(const QByteArray& document, const QByteArray& data) const {
        for (const QString& file : {project(), pictures()}) {
            QFile::remove(file);  // a save never writes into a file that somebody shares
        }
        writeFile(project(), document);
        writeFile(pictures(), data);
    }
    QString project() const { return temporary.file("week.nvpf"); }
    QString pictures() const { return temporary.file("week.nvpx"); }
    VersionStore store(const VersionLimits& limits = {}) const {
        return {temporary.file("state"), limits};
    }
    QList<KeptVersion> versions() const { return store().versionsOf(project(), pictures()); }
    QString folder() const {
        const QDir root(temporary.file("state/versions"));
        return root.filePath(root.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0));
    }
    /// A version as it would have been kept then.
    void leave(const QDateTime& time, const QByteArray& data = "x") const {
        const QString stem = folder() + u'/' + QString::number(time.toMSecsSinceEpoch());
        writeFile(stem + "-saved.nvpf", "old");
        writeFile(stem + "-saved.nvpx", data);
    }

    TemporaryFolder temporary;
};

}  // namespace

TEST_F(VersionStores, AFileThatIsReplacedIsLinkedAndCostsNothing) {
    const auto kept = store().keep(project(), pictures(), VersionCause::Saved, {true, true});
    ASSERT_TRUE(kept);
    EXPECT_EQ(fileStateOf(kept->document), fileStateOf(project()));
    EXPECT_EQ(fileStateOf(kept->data), fileStateOf(pictures()));
}

TEST_F(VersionStores, AFileThatStaysIsCopiedOnceAndThenShared) {
    const auto first = store().keep(project(), pictures(), VersionCause::Saved, {true, false});
    ASSERT_TRUE(first);
    EXPECT_NE(fileStateOf(first->data).inode, fileStateOf(pictures()).inode);
    EXPECT_EQ(readFile(first->data), "pictures 0");
    const auto second = store().keep(project(), pictures(), VersionCause::Saved, {true, false});
    ASSERT_TRUE(second);
    EXPECT_EQ(fileStateOf(second->data).inode, fileStateOf(first->data).inode);
}

TEST_F(VersionStores, TheLastTwentyStayHoweverOldAndBeyondThemOneOfEachDayOfThirty) {
    store().keep(project(), pictures(), VersionCause::Saved, {});
    const QDateTime noon(QDate::currentDate(), QTime(12, 0));
    for (int day = 1; day <= 60; ++day) {
        for (int hour = 0; hour < 3; ++hour) {
            leave(noon.addDays(-day).addSecs(hour * 3600));
        }
    }
    writePair("now", "now");
    store().prune();
    // The twenty are today's, three of each of six days and one of the seventh; the last of each of
    // the days 8 to 30 follow.
    const QList<KeptVersion> left = versions();
    ASSERT_EQ(left.size(), 20 + 23);
    EXPECT_EQ(left[1].time, noon.addDays(-1).addSecs(2 * 3600));
    EXPECT_EQ(left[18].time, noon.addDays(-6));
    for (qsizetype i = 19; i < left.size(); ++i) {
        EXPECT_EQ(left[i].time, noon.addDays(19 - 7 - i).addSecs(2 * 3600)) << "last of its day";
    }
}

TEST_F(VersionStores, OfOneDayTheNewestAloneStaysWhereNoMoreAreWanted) {
    store().keep(project(), pictures(), VersionCause::Saved, {});
    const QDateTime today(QDate::currentDate(), QTime(0, 0));
    for (int second = 0; second < 3; ++second) {
        leave(today.addMSecs(second));
    }
    writePair("now", "now");
    store({.last = 1}).prune();
    const QList<KeptVersion> left = versions();
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(readFile(left[0].data), "pictures 0");
}

TEST_F(VersionStores, BeyondTheRoomForAllProjectsTheOldestGo) {
    store().keep(project(), pictures(), VersionCause::Saved, {});
    const QDateTime now = QDateTime::currentDateTime();
    for (int i = 1; i <= 5; ++i) {
        leave(now.addSecs(-i), QByteArray(1000, 'x'));
    }
    writePair("now", "now");
    store({20, 30, 3200}).prune();
    const QList<KeptVersion> left = versions();
    ASSERT_EQ(left.size(), 4);
    EXPECT_EQ(readFile(left[0].data), "pictures 0");
}

TEST_F(VersionStores, WorkThatStandsNowhereIsAddedWithItsCause) {
    store().add(project(), VersionCause::ClosedWithoutSaving, [](ReplacedFile& data) {
        data.append("work's pictures");
        return QByteArray("work");
    });
    const QList<KeptVersion> list = versions();
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(causeText(list[0].cause), "closed without saving");
    EXPECT_EQ(readFile(list[0].document), "work");
    EXPECT_EQ(readFile(list[0].data), "work's pictures");
    store().add({}, VersionCause::BeforeOpening, [](ReplacedFile&) { return QByteArray("none"); });
    EXPECT_EQ(store().versionsOf({}, {}).size(), 1) << "of a project without a name";
    EXPECT_EQ(versions().size(), 1);
}

TEST_F(VersionStores, WorkThatCannotBeWrittenLeavesNothing) {
    EXPECT_THROW(store().add(project(), VersionCause::BeforeOpening,
                             [](ReplacedFile& data) -> QByteArray {
                                 data.append("part");
                                 throw Error(error_number::FileAccess, "test", "no", "why");
                             }),
                 Error);
    EXPECT_TRUE(versions().isEmpty());
    EXPECT_TRUE(QDir(folder()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(VersionStores, ALinkToAProjectLeadsToTheSameVersions) {
    store().keep(project(), pictures(), VersionCause::Saved, {});
    writePair("document 1", "pictures 1");
    QDir().mkpath(temporary.file("other"));
    ASSERT_TRUE(QFile::link(temporary.path(), temporary.file("other/way")));
    EXPECT_EQ(store().versionsOf(temporary.file("other/way/week.nvpf"), pictures()).size(), 1);
}

TEST_F(VersionStores, WhatIsNoVersionIsPassedOver) {
    store().keep(project(), pictures(), VersionCause::Saved, {});
    for (const char* name : {"x.nvpf", "1-other.nvpf", "12-saved.nvpf", "-saved.nvpf"}) {
        writeFile(folder() + '/' + name, "stray");
    }
    writePair("document 1", "pictures 1");
    EXPECT_EQ(versions().size(), 1);
}

}  // namespace nubivane::testing
