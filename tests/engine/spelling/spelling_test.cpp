// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/spelling.h"

#include "engine/core/error.h"
#include "engine/spelling/spelling_fixture.h"

namespace nubivane::testing {

class SpellingOfTexts : public WorkspaceFixture {
  protected:
    Spelling::Places places() const {
        return {{dictionariesForTests()}, temporary.file("own/Words.txt")};
    }
};

TEST_F(SpellingOfTexts, TellsTheMisspeltWords) {
    settings.set(Setting::Spelling, "en_GB");
    Spelling spelling(settings, places());
    EXPECT_EQ(misspeltIn(spelling, "The rian in the wnd, 20kt NNW"), QStringList({"rian", "wnd"}));
    EXPECT_EQ(spelling.misspelt("The rian").front(), (WordPlace{4, 4}));
    EXPECT_TRUE(spelling.suggestions("raim").contains("rain"));
}

TEST_F(SpellingOfTexts, GoesByTheSettingThenByThePagesLanguage) {
    Spelling spelling(settings, places());
    EXPECT_EQ(spelling.languages(), QStringList({"en_GB", "it_IT"}));
    settings.set(Setting::PageLanguage, "it");
    EXPECT_EQ(spelling.language(), "it_IT");
    EXPECT_EQ(misspeltIn(spelling, "pioggia rain"), QStringList("rain"));
    spelling.setLanguage("en_GB");
    EXPECT_EQ(settings.text(Setting::Spelling), "en_GB");
    EXPECT_EQ(misspeltIn(spelling, "pioggia rain"), QStringList("pioggia"));
    spelling.setLanguage(Spelling::none());
    EXPECT_EQ(spelling.language(), "");
    EXPECT_EQ(misspeltIn(spelling, "pioggia rain"), QStringList());
}

TEST_F(SpellingOfTexts, WithoutADictionaryNothingIsMisspelt) {
    settings.set(Setting::Spelling, "de");
    Spelling lacking(settings, places());
    EXPECT_EQ(misspeltIn(lacking, "xyzzy"), QStringList());
    EXPECT_EQ(lacking.suggestions("xyzzy"), QStringList());
    Spelling none(settings, {{temporary.file("nowhere")}, temporary.file("Words.txt")});
    EXPECT_EQ(none.languages(), QStringList());
    EXPECT_EQ(misspeltIn(none, "xyzzy"), QStringList());
}

TEST_F(SpellingOfTexts, ADictionaryThatCannotBeUsedIsAsGoodAsNone) {
    const TemporaryFolder broken;
    writeFile(broken.file("en_GB.aff"), "SET UTF-8\n");
    writeFile(broken.file("en_GB.dic"), "no number\n");
    settings.set(Setting::Spelling, "en_GB");
    Spelling spelling(settings, {{broken.path()}, temporary.file("Words.txt")});
    EXPECT_EQ(misspeltIn(spelling, "xyzzy"), QStringList());
}

TEST_F(SpellingOfTexts, AWordThatWasAddedIsRightFromThenOn) {
    settings.set(Setting::Spelling, "en_GB");
    {
        Spelling spelling(settings, places());
        EXPECT_EQ(misspeltIn(spelling, "Bora"), QStringList("Bora"));
        spelling.add("Bora");
        EXPECT_EQ(misspeltIn(spelling, "Bora"), QStringList());
    }
    Spelling again(settings, places());
    EXPECT_EQ(misspeltIn(again, "Bora"), QStringList());
    again.setLanguage("it_IT");
    EXPECT_EQ(misspeltIn(again, "Bora"), QStringList());
}

}  // namespace nubivane::testing
