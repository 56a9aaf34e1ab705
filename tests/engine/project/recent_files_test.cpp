// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recent_files.h"

#include "support/fixtures.h"

namespace nubivane::testing {

namespace {

class RecentFiles : public ::testing::Test {
  protected:
    void add(const QString& path) { addRecentFile(settings, view, path); }
    QStringList list() const { return settings.list(SettingList::RecentFiles); }

    TemporaryFolder temporary;
    SettingsStore settings{temporary.file("settings.ini")};
    RecordingView view;
};

}  // namespace

TEST_F(RecentFiles, StandUnderTheKeys1To4MostRecentFirst) {
    add("C:\\a.nvpf");
    add("C:\\b.nvpf");
    const SettingListRow& row = rowOf(SettingList::RecentFiles);
    EXPECT_EQ(settings.GetSetting(row.section, row.group, "1"), "C:\\b.nvpf");
    EXPECT_EQ(settings.GetSetting(row.section, row.group, "2"), "C:\\a.nvpf");
    EXPECT_EQ(view.calls, QStringList({"refreshRecentFiles", "refreshRecentFiles"}));
}

TEST_F(RecentFiles, AFifthPushesOutTheOldest) {
    for (const char* name : {"a", "b", "c", "d", "e"}) {
        add(name);
    }
    EXPECT_EQ(list(), QStringList({"e", "d", "c", "b"}));
}

TEST_F(RecentFiles, ReopeningTheSecondMovesItToTheTopAndKeepsFour) {
    for (const char* name : {"a", "b", "c", "d"}) {
        add(name);
    }
    add("c");
    EXPECT_EQ(list(), QStringList({"c", "d", "b", "a"}));
}

TEST_F(RecentFiles, ReopeningTheFirstChangesNothing) {
    for (const char* name : {"a", "b", "c"}) {
        add(name);
    }
    add("c");
    EXPECT_EQ(list(), QStringList({"c", "b", "a"}));
}

TEST_F(RecentFiles, AnotherCaseIsAnotherEntry) {
    add("C:\\a.nvpf");
    add("c:\\A.nvpf");
    EXPECT_EQ(list(), QStringList({"c:\\A.nvpf", "C:\\a.nvpf"}));
}

TEST_F(RecentFiles, BlanksAreNoPath) {
    add("a");
    add("");
    add("   ");
    EXPECT_EQ(list(), QStringList{"a"});
    EXPECT_EQ(view.calls.size(), 1);
}

TEST_F(RecentFiles, ALongerListInTheStoreIsCutToFourWithoutGaps) {
    settings.setList(SettingList::RecentFiles, {"a", "b", "c", "d", "e", "f"});
    add("x");
    EXPECT_EQ(list(), QStringList({"x", "a", "b", "c"}));
}

TEST_F(RecentFiles, WhatStandsBehindAGapIsLeftAlone) {
    const SettingListRow& row = rowOf(SettingList::RecentFiles);
    settings.SaveSetting(row.section, row.group, "1", "a");
    settings.SaveSetting(row.section, row.group, "4", "d");
    add("x");
    EXPECT_EQ(list(), QStringList({"x", "a"}));
    EXPECT_EQ(settings.GetSetting(row.section, row.group, "4"), "d");
}

}  // namespace nubivane::testing
