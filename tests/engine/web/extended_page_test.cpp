// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_fixture.h"

namespace nubivane::testing {

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class ExtendedPages : public PageTest {
  protected:
    std::string page() const { return PageTest::page(PageType::ExtendedView); }
    std::string script() const { return PageTest::script(PageType::ExtendedView); }
};

}  // namespace

TEST_F(ExtendedPages, MapsOfOuterHeight400StandAt140And680And1220) {
    map = {400, 398};
    addFrames(3);
    title(1).Text = "Morning";
    for (const char* top : {"TOP: 140px", "TOP: 680px", "TOP: 1220px"}) {
        EXPECT_THAT(page(), HasSubstr(std::string("LEFT: 20px; ") + top + "; WIDTH: 400px;"));
    }
    EXPECT_THAT(page(), HasSubstr("<DIV id=\"title_3\" noWrap style=\"Z-INDEX: 1; POSITION: "
                                  "absolute; VISIBILITY: hidden; LEFT: 20px; TOP: 1100px;"));
    EXPECT_THAT(page(), HasSubstr("<DIV id=\"subtitle_2\" noWrap style=\"Z-INDEX: 1; POSITION: "
                                  "absolute; VISIBILITY: hidden; LEFT: 20px; TOP: 620px;"));
}

TEST_F(ExtendedPages, WithoutTitlesTheMapsBeginAt140AllTheSame) {
    addFrames(1);
    addSymbol(1);
    EXPECT_THAT(page(), HasSubstr("LEFT: 20px; TOP: 140px; WIDTH: 400px;"));
    EXPECT_THAT(page(), HasSubstr("TOP: 190px; LEFT: 120px;"));
    EXPECT_THAT(script(), Not(HasSubstr("title_")));
}

TEST_F(ExtendedPages, WithoutSpritesTheirLoopsRunNoRound) {
    addFrames(2);
    EXPECT_EQ(count(script(), "for (i=1; i<=0; i++)"), 3);
    EXPECT_EQ(count(script(), "for (i=1; i<=2; i++)"), 3);
}

TEST_F(ExtendedPages, TheSpriteLoopsCountAllSpritesOfAllFrames) {
    addFrames(3);
    addSymbol(1);
    addLabel(1);
    addSymbol(3);
    addLabel(3);
    EXPECT_EQ(count(script(), "for (i=1; i<=4; i++)"), 3);
}

TEST_F(ExtendedPages, WithEffectsOffOnlyThePlainLoopsStand) {
    addFrames(2);
    settings.effects = false;
    EXPECT_EQ(count(script(), "for (i=1;"), 2);
    EXPECT_THAT(script(), Not(HasSubstr("navigator")));
    EXPECT_THAT(script(), Not(HasSubstr("blendTrans")));
}

TEST_F(ExtendedPages, AllTransitionsAreArmedBeforeAnyIsPlayed) {
    addFrames(2);
    addSymbol(1);
    EXPECT_LT(script().rfind("apply()"), script().find("play()"));
}

TEST_F(ExtendedPages, ThePageLoadsTheSameWithOneFrameOrMany) {
    addFrames(1);
    EXPECT_THAT(page(), HasSubstr("<BODY onload=\"javascript:_Show();\""));
    addFrames(1);
    EXPECT_THAT(page(), HasSubstr("<BODY onload=\"javascript:_Show();\""));
}

TEST_F(ExtendedPages, TheScriptHasNoFrameVariables) {
    addFrames(2);
    EXPECT_THAT(script(), Not(HasSubstr("idx_")));
    EXPECT_THAT(script(), Not(HasSubstr("currFrame")));
}

TEST_F(ExtendedPages, TheBlanksOfTheTitleStandBeforeItsEnd) {
    addFrames(1);
    settings.title = "Bay";
    settings.poweredLabel = "Harbour";
    EXPECT_THAT(page(), HasSubstr("\r\n<TITLE>Bay - Harbour   </TITLE>\r\n"));
    EXPECT_THAT(PageTest::page(PageType::TimeInterval),
                HasSubstr("\r\n   <TITLE>Bay - Harbour</TITLE>\r\n"));
}

}  // namespace nubivane::testing
