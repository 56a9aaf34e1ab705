// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"
#include "support/fixtures.h"
#include "support/texts.h"

namespace nubivane {

namespace {

constexpr char SG[] = "Nubivane\\6.0.0\\Settings\\General";

class SettingsList : public ::testing::Test {
  protected:
    testing::TemporaryFolder folder;
    SettingsStore store{folder.file("settings.ini")};
};

}  // namespace

TEST_F(SettingsList, AnEmptyStoreHasEmptyLists) {
    EXPECT_EQ(store.list(SettingList::CheckedCollections), QStringList());
    EXPECT_EQ(store.list(SettingList::RecentFiles), QStringList());
}

TEST_F(SettingsList, TheOrderIsThatOfTheKeys) {
    QStringList names;
    for (int i = 1; i <= 12; ++i) {
        names += "set-" + QString::number(13 - i);
    }
    ASSERT_TRUE(store.setList(SettingList::CheckedCollections, names));
    EXPECT_EQ(store.list(SettingList::CheckedCollections), names);
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Symbols collection", "12"), "set-1");
}

TEST_F(SettingsList, ARecentFileListWithKey2DeletedByHandShowsOnlyEntry1) {
    store.setList(SettingList::RecentFiles, {"a.nvpf", "b.nvpf", "c.nvpf"});
    store.DeleteSetting(SG, "Recent Files", "2");
    EXPECT_EQ(store.list(SettingList::RecentFiles), QStringList("a.nvpf"));
}

TEST_F(SettingsList, AValueOfBlanksEndsAList) {
    store.setList(SettingList::RecentFiles, {"a.nvpf", "   ", "c.nvpf"});
    EXPECT_EQ(store.list(SettingList::RecentFiles), QStringList("a.nvpf"));
}

TEST_F(SettingsList, ValuesKeepTheirOuterBlanks) {
    store.setList(SettingList::RecentFiles, {" a.nvpf "});
    EXPECT_EQ(store.list(SettingList::RecentFiles), QStringList(" a.nvpf "));
}

TEST_F(SettingsList, AShorterListLeavesNoOldKeysBehind) {
    store.setList(SettingList::CheckedCollections, {"a", "b", "c"});
    store.setList(SettingList::CheckedCollections, {"d"});
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Symbols collection", "1"), "d");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Symbols collection", "2", "none"),
              "none");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Symbols collection", "3", "none"),
              "none");
}

TEST_F(SettingsList, AnEmptyListDeletesAllKeys) {
    store.setList(SettingList::CheckedCollections, {"a", "b"});
    store.setList(SettingList::CheckedCollections, {});
    EXPECT_EQ(store.list(SettingList::CheckedCollections), QStringList());
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Symbols collection", "1", "none"),
              "none");
}

TEST_F(SettingsList, TheTwoListsAreApart) {
    store.setList(SettingList::CheckedCollections, {"a"});
    store.setList(SettingList::RecentFiles, {"b"});
    EXPECT_EQ(store.list(SettingList::CheckedCollections), QStringList("a"));
    EXPECT_EQ(store.list(SettingList::RecentFiles), QStringList("b"));
}

}  // namespace nubivane
