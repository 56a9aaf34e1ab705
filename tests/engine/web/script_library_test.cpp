// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/script_library.h"

#include "support/fixtures.h"

#include <string>

namespace nubivane {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr FrameScript Plain{.frameCount = 5,
                            .hasTitles = false,
                            .timed = false,
                            .effects = false,
                            .showForecastText = false};

std::string written(const FrameScript& options) {
    TextLines out;
    writeFrameScript(out, options);
    return out.text().toStdString();
}

}  // namespace

TEST(ScriptLibrary, EverythingOffIsTheBareFunctions) {
    EXPECT_EQ(written(Plain),
              "\r\n"
              "function _showSprite(idx_start, idx_end, show)\r\n"
              "{\r\n"
              "   var i;\r\n"
              "\r\n"
              "   for (i=idx_start; i<=idx_end-1; i++)\r\n"
              "   {\r\n"
              "      eval('sprite_' + i.toString() + '.style.visibility = (show == true) ? "
              "\"visible\" : \"hidden\";');\r\n"
              "   }\r\n"
              "}\r\n"
              "\r\n"
              "function _Hide(idx_start, idx_end)\r\n"
              "{\r\n"
              "   _showSprite(idx_start, idx_end, false);\r\n"
              "\r\n"
              "   eval('map_' + currFrame.toString() + '.style.visibility=\"hidden\";');\r\n"
              "}\r\n"
              "\r\n"
              "function _Show(idx_start, idx_end)\r\n"
              "{\r\n"
              "   eval('map_' + currFrame.toString() + '.style.visibility=\"visible\";');\r\n"
              "\r\n"
              "   _showSprite(idx_start, idx_end, true);\r\n"
              "}\r\n"
              "\r\n"
              "function _Render(newFrame)\r\n"
              "{\r\n"
              "    if (currFrame != newFrame || newFrame == 0) \r\n"
              "    {\r\n"
              "       if (newFrame == 0) newFrame = 1;\r\n"
              "\r\n"
              "       _Hide(eval('idx_' + currFrame.toString()), eval('idx_' + (currFrame + "
              "1).toString()));\r\n"
              "       currFrame=newFrame;\r\n"
              "\r\n"
              "          _Show(eval('idx_' + currFrame.toString()), eval('idx_' + (currFrame + "
              "1).toString()));\r\n"
              "    }\r\n"
              "}\r\n");
}

TEST(ScriptLibrary, TitlesAreSwitchedOnlyWhenTheyExist) {
    FrameScript options = Plain;
    EXPECT_THAT(written(options), Not(HasSubstr("title_")));
    options.hasTitles = true;
    EXPECT_THAT(
        written(options),
        HasSubstr("   var i;\r\n"
                  "\r\n"
                  "   eval('title_' + currFrame.toString() + '.style.visibility = (show == true) ? "
                  "\"visible\" : \"hidden\";');\r\n"
                  "   eval('subtitle_' + currFrame.toString() + '.style.visibility = (show == "
                  "true) ? \"visible\" : \"hidden\";');\r\n"
                  "   for (i=idx_start;"));
}

TEST(ScriptLibrary, TheForecastTextIsSwitchedOnlyWhenItIsShown) {
    FrameScript options = Plain;
    EXPECT_THAT(written(options), Not(HasSubstr("textForecast_")));
    options.showForecastText = true;
    EXPECT_THAT(written(options),
                HasSubstr("   eval('textForecast_' + currFrame.toString() + '.style.visibility = "
                          "(show == true) ? \"visible\" : \"hidden\";');\r\n"
                          "\r\n"
                          "   for (i=idx_start;"));
}

TEST(ScriptLibrary, ATimedPageMovesOnByItself) {
    FrameScript options = Plain;
    options.timed = true;
    const std::string script = written(options);
    EXPECT_THAT(script,
                HasSubstr("       currFrame = currFrame < 5? currFrame + 1:1;\r\n\r\n          "));
    EXPECT_THAT(script, Not(HasSubstr("currFrame=newFrame")));
}

TEST(ScriptLibrary, EffectsWriteTheBrowserTestThreeTimes) {
    FrameScript options = Plain;
    options.effects = true;
    const QString script = QString::fromStdString(written(options));
    EXPECT_EQ(script.count(QLatin1String(TransitionTest)), 3);
    EXPECT_EQ(QString::fromStdString(written(Plain)).count("navigator"), 0);
}

TEST(ScriptLibrary, WithEffectsTheOldMapFadesOut) {
    FrameScript options = Plain;
    options.effects = true;
    EXPECT_THAT(
        written(options),
        HasSubstr("   _showSprite(idx_start, idx_end, false);\r\n"
                  "\r\n"
                  "   if ((navigator.appName.indexOf('Microsoft') >= 0) && "
                  "(navigator.appVersion.indexOf('4.') >= 0))\r\n"
                  "   {\r\n"
                  "      eval('map_' + currFrame.toString() + "
                  "'.style.filter=\"blendTrans(duration=1)\";');\r\n"
                  "      eval('map_' + currFrame.toString() + '.filters.blendTrans.stop();');\r\n"
                  "      eval('map_' + currFrame.toString() + '.filters.blendTrans.apply();');\r\n"
                  "      eval('map_' + currFrame.toString() + '.style.visibility=\"hidden\";');\r\n"
                  "      eval('map_' + currFrame.toString() + '.filters.blendTrans.play();');\r\n"
                  "   }\r\n"
                  "   else\r\n"
                  "      eval('map_' + currFrame.toString() + '.style.visibility=\"hidden\";');\r\n"
                  "\r\n"
                  "}\r\n"));
}

TEST(ScriptLibrary, WithEffectsTheSpritesFollowTheNewMapAfterAWhile) {
    FrameScript options = Plain;
    options.effects = true;
    EXPECT_THAT(
        written(options),
        HasSubstr(
            "      eval('map_' + currFrame.toString() + '.style.visibility=\"visible\";');\r\n"
            "      eval('map_' + currFrame.toString() + '.filters.blendTrans.play();');\r\n"
            "      setTimeout(function(){_showSprite(idx_start, idx_end, true)}, 1500);\r\n"
            "   }\r\n"
            "   else\r\n"
            "   {\r\n"
            "      eval('map_' + currFrame.toString() + '.style.visibility=\"visible\";');\r\n"
            "\r\n"
            "      _showSprite(idx_start, idx_end, true);\r\n"
            "   }\r\n"
            "}\r\n"));
}

TEST(ScriptLibrary, WithEffectsTheNewFrameShowsAfterAWhile) {
    FrameScript options = Plain;
    options.effects = true;
    EXPECT_THAT(
        written(options),
        EndsWith("       currFrame=newFrame;\r\n"
                 "\r\n"
                 "       if ((navigator.appName.indexOf('Microsoft') >= 0) && "
                 "(navigator.appVersion.indexOf('4.') >= 0))\r\n"
                 "          setTimeout(function(){_Show(eval('idx_' + currFrame.toString()), "
                 "eval('idx_' + (currFrame + 1).toString()));}, 700);\r\n"
                 "       else\r\n"
                 "          _Show(eval('idx_' + currFrame.toString()), eval('idx_' + (currFrame "
                 "+ 1).toString()));\r\n"
                 "    }\r\n"
                 "}\r\n"));
}

TEST(ScriptLibrary, TheOutputIsAppended) {
    TextLines out;
    out << "var currFrame = 1;";
    writeFrameScript(out, Plain);
    EXPECT_THAT(out.text().toStdString(),
                StartsWith("var currFrame = 1;\r\n\r\nfunction _showSprite"));
}

}  // namespace nubivane
