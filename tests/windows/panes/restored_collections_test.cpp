// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QDir>

namespace nubivane {

/// Starts with the symbol collections that were checked before.
class RestoredCollections : public testing::EditorFixture {
  protected:
    RestoredCollections() { testing::copyFolder(host("Symbols/sea"), host("Symbols/wind")); }

    void check(const QStringList& names) {
        settings.setList(SettingList::CheckedCollections, names);
    }
    QStringList tabs() {
        QStringList texts;
        const QTabBar& bar = *window().palette().tabSymbols();
        for (int i = 0; i < bar.count(); ++i) {
            texts << bar.tabText(i);
        }
        return texts;
    }
    QStringList checkedOnes() {
        QStringList names;
        for (const cSymbolsCollection& collection : workspace.Status.SymbolsCollection()) {
            if (collection.Checked) {
                names << collection.Name;
            }
        }
        return names;
    }
};

TEST_F(RestoredCollections, EachFolderIsACollectionUnderItsPath) {
    start();
    cSymbolsCollections& collections = workspace.Status.SymbolsCollection();
    ASSERT_EQ(collections.Count(), 3);
    EXPECT_EQ(collections.Item("sea").Path, workspace.folder.path() + "\\Symbols\\sea");
    EXPECT_EQ(collections.Item("set-1").Path, workspace.folder.path() + "\\Symbols\\set-1");
    EXPECT_EQ(collections.Item("wind").Path, workspace.folder.path() + "\\Symbols\\wind");
}

TEST_F(RestoredCollections, TheCheckedOnesGetATabAndTheFirstIsShown) {
    check({"sea", "wind"});
    start();
    EXPECT_EQ(tabs(), QStringList({"sea", "wind"}));
    EXPECT_EQ(checkedOnes(), QStringList({"sea", "wind"}));
    EXPECT_EQ(window().palette().tabSymbols()->currentIndex(), 0);
    ASSERT_TRUE(window().palette().currentList());
    EXPECT_EQ(window().palette().currentList()->symbols().rowCount(), 1);
}

TEST_F(RestoredCollections, TheTabsStandInTheOrderOfTheSettings) {
    check({"wind", "sea"});
    start();
    EXPECT_EQ(tabs(), QStringList({"wind", "sea"}));
}

TEST_F(RestoredCollections, OneThatHasVanishedIsSkippedAndTheRestAreStillRead) {
    check({"gone", "sea", "gone too", "wind"});
    start();
    EXPECT_EQ(tabs(), QStringList({"sea", "wind"}));
    EXPECT_EQ(settings.list(SettingList::CheckedCollections).size(), 4);
}

TEST_F(RestoredCollections, AGapEndsTheList) {
    check({"sea", " ", "wind"});
    start();
    EXPECT_EQ(tabs(), QStringList({"sea"}));
}

TEST_F(RestoredCollections, WhenAllHaveVanishedTheFirstCollectionIsCheckedAndStored) {
    check({"gone", "gone too"});
    start();
    EXPECT_EQ(tabs(), QStringList({"set-1"}));
    EXPECT_EQ(settings.list(SettingList::CheckedCollections).first(), "set-1");
}

TEST_F(RestoredCollections, WithoutTheFirstCollectionNoneIsCheckedAndNothingStored) {
    ASSERT_TRUE(QDir(host("Symbols/set-1")).removeRecursively());
    start();
    EXPECT_EQ(tabs(), QStringList());
    EXPECT_FALSE(window().palette().currentList());
    EXPECT_TRUE(settings.list(SettingList::CheckedCollections).isEmpty());
}

TEST_F(RestoredCollections, ARestoredCollectionKeepsTheFirstOneUnchecked) {
    check({"sea"});
    start();
    EXPECT_EQ(checkedOnes(), QStringList({"sea"}));
}

TEST_F(RestoredCollections, AnAmpersandInANameIsShown) {
    testing::copyFolder(host("Symbols/sea"), host("Symbols/sun & sea"));
    check({"sun & sea"});
    start();
    EXPECT_EQ(tabs(), QStringList({"sun && sea"}));
}

}  // namespace nubivane
