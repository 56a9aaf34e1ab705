// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/scan_collections.h"

#include "support/fixtures.h"

#include <QDir>

namespace nubivane {

namespace {

class ScanCollections : public testing::WorkspaceFixture {
  protected:
    QStringList names() const {
        QStringList result;
        for (const cSymbolsCollection& collection : list) {
            result += collection.Name;
        }
        return result;
    }
    void scan() { scanCollections(list, workspace.folder); }

    cSymbolsCollections list;
};

}  // namespace

TEST_F(ScanCollections, EveryFolderIsAnUncheckedCollection) {
    scan();
    EXPECT_EQ(names(), QStringList({"sea", "set-1"}));
    EXPECT_EQ(list.Item("sea").Path, workspace.folder.symbols() + "\\sea");
    EXPECT_EQ(list.Item("sea").Key, "sea");
    EXPECT_FALSE(list.Item("sea").Checked);
    EXPECT_FALSE(list.IsChanged);
}

TEST_F(ScanCollections, AFileBesideTheFoldersIsNoCollection) {
    testing::writeFile(host("Symbols/readme.txt"), "x");
    scan();
    EXPECT_FALSE(list.contains("readme.txt"));
}

TEST_F(ScanCollections, AnEmptyFolderIsACollection) {
    ASSERT_TRUE(QDir().mkpath(host("Symbols/newCollection1")));
    scan();
    EXPECT_TRUE(list.contains("newCollection1"));
}

TEST_F(ScanCollections, AFolderDeletedOutsideTheProgramVanishesAtTheNextScan) {
    scan();
    ASSERT_TRUE(QDir(host("Symbols/sea")).removeRecursively());
    scan();
    EXPECT_EQ(names(), QStringList("set-1"));
}

TEST_F(ScanCollections, AFolderAddedOutsideComesUpUncheckedAndKnownOnesKeepTheirMark) {
    scan();
    list.Item("set-1").Checked = true;
    ASSERT_TRUE(QDir().mkpath(host("Symbols/alps")));
    scan();
    EXPECT_EQ(names(), QStringList({"sea", "set-1", "alps"}));
    EXPECT_TRUE(list.Item("set-1").Checked);
    EXPECT_FALSE(list.Item("sea").Checked);
    EXPECT_FALSE(list.Item("alps").Checked);
}

TEST_F(ScanCollections, AFolderReplacedByAFileVanishes) {
    scan();
    ASSERT_TRUE(QDir(host("Symbols/sea")).removeRecursively());
    testing::writeFile(host("Symbols/sea"), "x");
    scan();
    EXPECT_EQ(names(), QStringList("set-1"));
}

TEST_F(ScanCollections, AFolderWhoseNameChangedInCaseOnlyStandsInTheListOnce) {
    scan();
    ASSERT_TRUE(QDir().rename(host("Symbols/sea"), host("Symbols/SEA")));
    scan();
    EXPECT_EQ(list.Count(), 2);
}

TEST_F(ScanCollections, WithoutASymbolsFolderTheListIsEmptied) {
    scan();
    ASSERT_TRUE(QDir(host("Symbols")).removeRecursively());
    scan();
    EXPECT_EQ(list.Count(), 0);
}

TEST_F(ScanCollections, ReloadingFillsTheListAnewWithoutMarks) {
    scan();
    list.Item("sea").Checked = true;
    list.Add("C:\\elsewhere", "elsewhere");
    reloadCollections(list, workspace.folder);
    EXPECT_EQ(names(), QStringList({"sea", "set-1"}));
    EXPECT_FALSE(list.Item("sea").Checked);
}

TEST_F(ScanCollections, TheCheckedNamesAreStoredInOrderWithoutGaps) {
    for (const char* name : {"d", "c", "b", "a"}) {
        list.Add("", name).Checked = name != std::string("c");
    }
    saveCheckedCollections(list, settings);
    EXPECT_EQ(settings.list(SettingList::CheckedCollections), QStringList({"d", "b", "a"}));
}

TEST_F(ScanCollections, ALongerOldListLeavesNothingBehind) {
    settings.setList(SettingList::CheckedCollections, {"x", "y", "z"});
    list.Add("", "a").Checked = true;
    saveCheckedCollections(list, settings);
    EXPECT_EQ(settings.list(SettingList::CheckedCollections), QStringList("a"));
    EXPECT_EQ(settings.GetSetting("Nubivane\\6.0.0\\Settings", "Symbols collection", "3", "none"),
              "none");
}

TEST_F(ScanCollections, WithNothingCheckedTheStoredListIsEmptied) {
    settings.setList(SettingList::CheckedCollections, {"x"});
    list.Add("", "a");
    saveCheckedCollections(list, settings);
    EXPECT_EQ(settings.list(SettingList::CheckedCollections), QStringList());
}

TEST_F(ScanCollections, SettingsThatCannotBeWrittenAreNoFailureHere) {
    testing::writeFile(temporary.file("no-folder"), "x");
    SettingsStore unwritable(temporary.file("no-folder/settings.ini"));
    list.Add("", "a").Checked = true;
    EXPECT_NO_THROW(saveCheckedCollections(list, unwritable));
}

}  // namespace nubivane
