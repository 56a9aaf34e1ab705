// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_fixture.h"

namespace nubivane::testing {

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class IntervalPages : public PageTest {
  protected:
    std::string page() const { return PageTest::page(PageType::TimeInterval); }
    std::string script() const { return PageTest::script(PageType::TimeInterval); }
};

}  // namespace

TEST_F(IntervalPages, OneFrameSetsNoInterval) {
    addFrames(1);
    EXPECT_THAT(page(), HasSubstr("onload=\"javascript:_Render();\""));
    EXPECT_THAT(page(), Not(HasSubstr("setInterval")));
    EXPECT_THAT(script(), HasSubstr("var currFrame = 1;"));
    EXPECT_THAT(script(), HasSubstr("currFrame = currFrame < 1? currFrame + 1:1;"));
}

TEST_F(IntervalPages, ATimerOfTenGivesTenThousandMilliseconds) {
    addFrames(2);
    settings.timer = 10;
    EXPECT_THAT(page(),
                HasSubstr("onload=\"javascript:_Render(); setInterval('_Render()', 10000);\""));
}

TEST_F(IntervalPages, TheCycleStartsOnTheLastFrame) {
    addFrames(3);
    EXPECT_THAT(script(), HasSubstr("var currFrame = 3;\r\n\r\nfunction _showSprite"));
    EXPECT_THAT(script(), HasSubstr("currFrame = currFrame < 3? currFrame + 1:1;"));
}

TEST_F(IntervalPages, TheTextIsAsHighAsTheMapAndNothingStandsBelow) {
    addFrames(2);
    EXPECT_THAT(page(), HasSubstr("WIDTH: 400px; HEIGHT: 300px;\">"));
    EXPECT_THAT(page(), Not(HasSubstr("<!-- BUTTON -->")));
    EXPECT_THAT(page(), Not(HasSubstr("<!-- SLIDER -->")));
}

}  // namespace nubivane::testing
