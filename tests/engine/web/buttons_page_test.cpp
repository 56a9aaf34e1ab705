// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_fixture.h"

namespace nubivane::testing {

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class ButtonsPages : public PageTest {
  protected:
    std::string page() const { return PageTest::page(PageType::NavigationButtons); }
    std::string script() const { return PageTest::script(PageType::NavigationButtons); }

    static std::string button(const char* id, const char* caption, int top, int width,
                              const char* call) {
        return std::string("<INPUT id=\"") + id + "\" type=\"button\" value=\"" + caption +
               "\" style =\"VISIBILITY: hidden; FONT-FAMILY: Arial; FONT-SIZE: 7pt; POSITION: "
               "absolute;TOP: " +
               std::to_string(top) + "px;WIDTH: " + std::to_string(width) +
               "px;HEIGHT: 20px;\" onclick=\"" + call + "\">\r\n";
    }
};

}  // namespace

TEST_F(ButtonsPages, OneFrameHasNoButtonsAndShowsItselfThroughFrameZero) {
    addFrames(1);
    EXPECT_THAT(page(), HasSubstr("onload=\"javascript:_Render(0);\""));
    EXPECT_THAT(page(), Not(HasSubstr("<!-- BUTTON -->")));
    EXPECT_THAT(page(), Not(HasSubstr("<INPUT")));
    EXPECT_THAT(script(), Not(HasSubstr("button")));
    EXPECT_THAT(script(), Not(HasSubstr("_Init")));
}

TEST_F(ButtonsPages, TwoFramesOfWidth500HaveButtonsOf249) {
    map = {498, 300};
    addFrames(2);
    EXPECT_THAT(
        page(),
        HasSubstr("<!-- BUTTON -->\r\n" + button("btn_1", "A", 25 + 302 + 10, 249, "_Render(1);") +
                  button("btn_2", "B", 25 + 302 + 10, 249, "_Render(2);") + "\r\n\r\n</BODY>"));
    EXPECT_THAT(script(), HasSubstr("var space_btw = 2;\r\nvar num_buttons = 2;\r\n"
                                    "var width_buttons = 249;\r\n\r\nfunction _Init()"));
}

TEST_F(ButtonsPages, TheLastOfThreeButtonsTakesTheRest) {
    map = {500, 300};  // 498 for three buttons of 166
    addFrames(3);
    EXPECT_THAT(page(), HasSubstr(button("btn_3", "C", 337, 166, "_Render(3);")));
    map = {499, 300};  // 497: 165.67 is rounded up, the last one gives the pixel back
    EXPECT_THAT(page(), HasSubstr(button("btn_2", "B", 337, 166, "_Render(2);")));
    EXPECT_THAT(page(), HasSubstr(button("btn_3", "C", 337, 165, "_Render(3);")));
}

TEST_F(ButtonsPages, HalfAPixelGoesToTheEvenWidth) {
    map = {501, 300};  // 501 for two buttons: 250.5
    addFrames(2);
    EXPECT_THAT(page(), HasSubstr(button("btn_1", "A", 337, 250, "_Render(1);")));
    EXPECT_THAT(page(), HasSubstr(button("btn_2", "B", 337, 251, "_Render(2);")));
    map = {503, 300};  // 251.5
    EXPECT_THAT(page(), HasSubstr(button("btn_1", "A", 337, 252, "_Render(1);")));
    EXPECT_THAT(page(), HasSubstr(button("btn_2", "B", 337, 251, "_Render(2);")));
}

TEST_F(ButtonsPages, FourFramesScroll) {
    addFrames(4);  // outer width 402: (402 - 40) / 3 = 120.67
    EXPECT_THAT(page(),
                HasSubstr("<!-- BUTTON -->\r\n" + button("btnLeft", "<", 337, 16, "_MoveLeft()") +
                          button("btnRight", ">", 337, 402 - 3 * 121 - 8 - 16, "_MoveRight()") +
                          button("btn_1", "A", 337, 121, "_Render(1);")));
    EXPECT_THAT(page(), HasSubstr(button("btn_4", "D", 337, 121, "_Render(4);")));
    EXPECT_THAT(script(), HasSubstr("var position = 1;\r\nvar space_btw = 2;\r\n"
                                    "var num_buttons = 4;\r\nvar width_buttons = 121;\r\n"
                                    "var visible_buttons = 3;\r\nvar width_nav_buttons = 16;\r\n"
                                    "\r\nfunction _hide_Buttons()"));
}

TEST_F(ButtonsPages, ScrollingStopsAtBothEnds) {
    addFrames(4);
    EXPECT_THAT(script(), HasSubstr("if ((position + (visible_buttons-1)) < num_buttons)"));
    EXPECT_THAT(script(), HasSubstr("if (position > 1)"));
}

TEST_F(ButtonsPages, ThreeFramesDoNotScroll) {
    addFrames(3);
    EXPECT_THAT(page(), Not(HasSubstr("btnLeft")));
    EXPECT_THAT(script(), Not(HasSubstr("_MoveLeft")));
    EXPECT_THAT(script(), Not(HasSubstr("visible_buttons")));
}

TEST_F(ButtonsPages, TheFirstFrameIsShownByInit) {
    addFrames(2);
    EXPECT_THAT(page(), HasSubstr("onload=\"javascript:_Render(1); _Init();\""));
    EXPECT_THAT(script(), HasSubstr("   var j = 0;\r\n   _Show(idx_1,idx_2);\r\n"));
}

TEST_F(ButtonsPages, ButtonsStandBehindTheTexts) {
    addFrames(2);
    EXPECT_LT(page().find("<!-- TEXT -->"), page().find("<!-- BUTTON -->"));
    settings.showForecastText = false;
    EXPECT_THAT(page(), HasSubstr("<!-- BUTTON -->"));
}

TEST_F(ButtonsPages, TheTextReachesDownToTheButtons) {
    addFrames(1);
    EXPECT_THAT(page(), HasSubstr("WIDTH: 400px; HEIGHT: 325px;\">"));
}

TEST_F(ButtonsPages, TheStripMovesDownWithTheTitles) {
    addFrames(2);
    title(1).Text = "Morning";
    EXPECT_THAT(page(), HasSubstr("absolute;TOP: 452px;WIDTH:"));
}

}  // namespace nubivane::testing
