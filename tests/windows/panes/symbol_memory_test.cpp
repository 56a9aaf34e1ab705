// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/symbol_memory.h"

#include "windows/canvas/canvas_fixture.h"

namespace nubivane {

class SymbolsRemembered : public testing::WorkspaceFixture {
  protected:
    QStringList stored() { return settings.list(SettingList::RecentSymbols); }
};

TEST_F(SymbolsRemembered, ThePlacedLastComeFirst) {
    SymbolMemory memory(settings);
    memory.placed({"a", "b"});
    memory.placed({"c"});
    memory.placed({"a"});
    EXPECT_EQ(memory.recent(), QStringList({"a", "c", "b"}));
}

TEST_F(SymbolsRemembered, AreWrittenOnceAndNotAtEachPlacing) {
    {
        SymbolMemory memory(settings);
        memory.placed({"a"});
        memory.placed({"b"});
        EXPECT_EQ(stored(), QStringList());
    }
    EXPECT_EQ(stored(), QStringList({"b", "a"}));
}

TEST_F(SymbolsRemembered, AreWrittenWhenNoMoreArePlacedForAWhile) {
    SymbolMemory memory(settings);
    memory.placed({"a"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return stored() == QStringList("a"); }, 20000));
}

TEST_F(SymbolsRemembered, ThoseOfAnotherEditorStay) {
    SymbolMemory memory(settings);
    memory.placed({"here"});
    settings.setList(SettingList::RecentSymbols, {"there"});
    EXPECT_EQ(memory.recent(), QStringList({"here", "there"}));
}

TEST_F(SymbolsRemembered, AreSomeAndNotAll) {
    SymbolMemory memory(settings);
    for (int i = 0; i < 40; ++i) {
        memory.placed({QString::number(i)});
    }
    EXPECT_EQ(memory.recent().size(), 24);
    EXPECT_EQ(memory.recent().first(), "39");
    EXPECT_EQ(memory.recent().last(), "16");
}

TEST_F(SymbolsRemembered, AFavoriteIsOneUntilItIsToggledAgain) {
    SymbolMemory memory(settings);
    memory.toggleFavourite("a");
    memory.toggleFavourite("b");
    EXPECT_TRUE(memory.isFavourite("a"));
    memory.toggleFavourite("a");
    EXPECT_EQ(memory.favourites(), QStringList("b"));
    EXPECT_EQ(settings.list(SettingList::FavouriteSymbols), QStringList("b"));
}

}  // namespace nubivane
