// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/symbols_collection.h"

#include "support/fixtures.h"

namespace nubivane {

namespace {

QStringList namesOf(const cSymbolsCollections& list) {
    QStringList names;
    for (const cSymbolsCollection& collection : list) {
        names += collection.Name;
    }
    return names;
}

}  // namespace

TEST(SymbolsCollection, AddTakesTheNameAsKeyAndLeavesItUnchecked) {
    cSymbolsCollections list;
    const cSymbolsCollection& added = list.Add("C:\\Symbols\\sea", "sea");
    EXPECT_EQ(added.Path, "C:\\Symbols\\sea");
    EXPECT_EQ(added.Name, "sea");
    EXPECT_EQ(added.Key, "sea");
    EXPECT_FALSE(added.Checked);
    EXPECT_FALSE(list.IsChanged);
}

TEST(SymbolsCollection, Add2TakesAKeyApartFromTheName) {
    cSymbolsCollections list;
    const cSymbolsCollection& added = list.Add2("Sea", "K1", "C:\\Symbols\\sea");
    EXPECT_EQ(added.Name, "Sea");
    EXPECT_EQ(added.Key, "K1");
    EXPECT_EQ(added.Path, "C:\\Symbols\\sea");
    EXPECT_EQ(&list.Item("K1"), &added);
    EXPECT_FALSE(list.contains("Sea"));
}

TEST(SymbolsCollection, ASecondElementWithTheSameKeyFailsWithoutHarm) {
    cSymbolsCollections list;
    list.Add("C:\\a", "sea").Checked = true;
    EXPECT_THROW(list.Add("C:\\b", "sea"), Error);
    EXPECT_THROW(list.Add2("other", "sea", "C:\\b"), Error);
    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Item("sea").Path, "C:\\a");
    EXPECT_TRUE(list.Item("sea").Checked);
}

TEST(SymbolsCollection, RemoveTakesAKeyOrAPosition) {
    cSymbolsCollections list;
    list.Add("", "a");
    list.Add("", "b");
    list.Add("", "c");
    list.Remove("b");
    list.Remove(1);
    EXPECT_EQ(namesOf(list), QStringList("c"));
    EXPECT_THROW(list.Remove("b"), Error);
    list.Add("", "b");
    EXPECT_EQ(namesOf(list), QStringList({"c", "b"}));
}

TEST(SymbolsCollection, ClearRemovesAllElementsAndTheKeysAreFreeAgain) {
    cSymbolsCollections list;
    list.Add("", "a");
    list.Add("", "b");
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    list.Clear();
    EXPECT_EQ(list.Add("", "a").Key, "a");
}

TEST(SortCollections, ZetaStandsBeforeAlpha) {
    cSymbolsCollections list;
    for (const char* name : {"alpha", "Zeta", "beta", "_x", "10", "9"}) {
        list.Add("", name);
    }
    EXPECT_EQ(namesOf(sortCollections(list)),
              QStringList({"10", "9", "Zeta", "_x", "alpha", "beta"}));
}

TEST(SortCollections, LettersBeyondAsciiGoByTheirCode) {
    cSymbolsCollections list;
    list.Add("", QString::fromUtf8("è"));
    list.Add("", "z");
    EXPECT_EQ(namesOf(sortCollections(list)), QStringList({"z", QString::fromUtf8("è")}));
}

TEST(SortCollections, TheNewListHasTheFourValuesOfEachEntry) {
    cSymbolsCollections list;
    list.Add2("b", "key of b", "C:\\b").Checked = true;
    list.Add2("a", "key of a", "C:\\a");
    const cSymbolsCollections sorted = sortCollections(list);
    ASSERT_EQ(sorted.Count(), 2);
    EXPECT_EQ(sorted.Item(2).Name, "b");
    EXPECT_EQ(sorted.Item(2).Key, "key of b");
    EXPECT_EQ(sorted.Item(2).Path, "C:\\b");
    EXPECT_TRUE(sorted.Item(2).Checked);
    EXPECT_FALSE(sorted.Item("key of a").Checked);
}

TEST(SortCollections, TheListGivenStaysAsItIs) {
    cSymbolsCollections list;
    list.Add("", "b");
    list.Add("", "a");
    sortCollections(list).Item(1).Checked = true;
    EXPECT_EQ(namesOf(list), QStringList({"b", "a"}));
    EXPECT_FALSE(list.Item("a").Checked);
}

TEST(SortCollections, AnEmptyListGivesAnEmptyList) {
    EXPECT_EQ(sortCollections(cSymbolsCollections()).Count(), 0);
}

}  // namespace nubivane
