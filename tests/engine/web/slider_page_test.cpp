// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/web/page_fixture.h"

namespace nubivane::testing {

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class SliderPages : public PageTest {
  protected:
    std::string page() const { return PageTest::page(PageType::Slider); }
    std::string script() const { return PageTest::script(PageType::Slider); }
};

}  // namespace

TEST_F(SliderPages, OneFrameHasNoSlider) {
    addFrames(1);
    EXPECT_THAT(page(), HasSubstr("<BODY onload=\"javascript:_Render(1);\" bgcolor="));
    EXPECT_THAT(page(), Not(HasSubstr("<!-- SLIDER -->")));
    EXPECT_THAT(script(), Not(HasSubstr("posX")));
    EXPECT_THAT(script(), Not(HasSubstr("doDown")));
    EXPECT_THAT(script(), HasSubstr("function _Render(newFrame)"));
}

TEST_F(SliderPages, TwoFramesHaveASliderThatFollowsTheMouse) {
    addFrames(2);
    EXPECT_THAT(page(), HasSubstr("<BODY onload=\"javascript:_Render(1);\" "
                                  "onmouseup=\"javascript:doUp();\" "
                                  "onmousemove=\"javascript:doMove();\" bgcolor="));
    EXPECT_THAT(page(), HasSubstr("<!-- SLIDER -->\r\n<DIV id=\"tracker\""));
    EXPECT_THAT(page(), HasSubstr("TOP: 337px; WIDTH: 402px; HEIGHT: 5px;"));
}

TEST_F(SliderPages, TheSliderStandsBetweenMapsAndSprites) {
    addFrames(2);
    EXPECT_LT(page().find("id=\"map_2\""), page().find("<!-- SLIDER -->"));
    EXPECT_LT(page().find("id=\"tracker\""), page().find("<!-- SPRITE -->"));
}

TEST_F(SliderPages, WithoutTooltipNothingNamesTheLabel) {
    addFrames(3);
    settings.sliderTooltip = false;
    EXPECT_THAT(page(), Not(HasSubstr("lblTick")));
    EXPECT_THAT(script(), Not(HasSubstr("lblTick")));
}

TEST_F(SliderPages, TicksAreWrittenOnlyWhenSet) {
    addFrames(3);
    EXPECT_EQ(count(page(), "WIDTH: 4px; HEIGHT: 6px;"), 3);
    settings.sliderTicks = false;
    EXPECT_EQ(count(page(), "WIDTH: 4px; HEIGHT: 6px;"), 0);
}

TEST_F(SliderPages, TicksLieTwoPixelsTakenOffApartAndTheScriptCountsTheWholeWidth) {
    map = {401, 300};
    addFrames(3);  // 399 / 2 rounds up to 200, 401 / 2 down to 200
    EXPECT_THAT(page(), HasSubstr("LEFT: 420px; TOP: 337px; WIDTH: 4px;"));
    EXPECT_THAT(script(), HasSubstr("var tick_len = 200;"));
    map = {403, 300};  // 401 / 2 rounds down to 200, 403 / 2 up to 202
    EXPECT_THAT(page(), HasSubstr("LEFT: 420px; TOP: 337px; WIDTH: 4px;"));
    EXPECT_THAT(script(), HasSubstr("var tick_len = 202;"));
}

TEST_F(SliderPages, TheLabelIsAsWideAsTheLongestCaption) {
    addFrames(3);
    frames.Item(2).Texts().Label = "Tomorrow";
    EXPECT_THAT(page(), HasSubstr("WIDTH: 72px; HEIGHT: 18px;"));
    EXPECT_THAT(script(), HasSubstr("var labelTick = ['A','Tomorrow','C'];"));
}

TEST_F(SliderPages, WithoutAnyCaptionTheLabelHasTheWidthOfOneCharacter) {
    addFrames(2);
    frames.Item(1).Texts().Label.clear();
    frames.Item(2).Texts().Label.clear();
    EXPECT_THAT(page(), HasSubstr("WIDTH: 9px; HEIGHT: 18px;"));
}

TEST_F(SliderPages, TheCursorHasAColourOnlyWhenSet) {
    addFrames(2);
    EXPECT_THAT(page(), HasSubstr("WIDTH: 12px; HEIGHT: 16px; \" alt=\"\" src=\"\">"));
    settings.sliderColor = 255;
    EXPECT_THAT(page(), HasSubstr("HEIGHT: 16px; BACKGROUND-COLOR: #FF0000;\" alt=\"\" src=\"\">"));
    settings.sliderColor = 123;
    EXPECT_THROW(page(), Error);
}

TEST_F(SliderPages, TitlesAreNarrowerAndSubtitlesAreNot) {
    addFrames(1);
    title(1).Text = "Morning";
    EXPECT_THAT(page(), HasSubstr("TOP: 10px; WIDTH: 90%;"));
    EXPECT_THAT(page(), HasSubstr("TOP: 70px; WIDTH: 100%;"));
}

TEST_F(SliderPages, TheTextReachesDownToTheSlider) {
    addFrames(1);
    EXPECT_THAT(page(), HasSubstr("WIDTH: 400px; HEIGHT: 325px;\">"));
}

}  // namespace nubivane::testing
