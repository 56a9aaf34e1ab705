// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_fixture.h"

namespace nubivane::testing {

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class CreatePage : public SiteTest {
  protected:
    CreatePage() { useFrames(2); }

    std::string page() const { return readFile(host("Forecast.htm")).toStdString(); }
};

// What only one type of page writes.
constexpr char ButtonsCall[] = "javascript:_Render(1); _Init();";
constexpr char ExtendedCall[] = "javascript:_Show();";
constexpr char IntervalCall[] = "setInterval(";
constexpr char SliderBlock[] = "<!-- SLIDER -->";

}  // namespace

TEST_F(CreatePage, WritesPageScriptAndOneImageForEachFrame) {
    const QStringList before = filesUnder(host(""));
    ASSERT_TRUE(createPage(editor()));
    QStringList written = filesUnder(host(""));
    for (const QString& file : before) {
        written.removeOne(file);
    }
    EXPECT_EQ(written, QStringList({"Forecast.htm", "Forecast.js", "Web/Forecast1.jpg",
                                    "Web/Forecast2.jpg"}));
}

TEST_F(CreatePage, ReturnsTheFilesWrittenThePicturesFirst) {
    EXPECT_EQ(createPage(editor()),
              QStringList({host("Web/Forecast1.jpg"), host("Web/Forecast2.jpg"),
                           host("Forecast.htm"), host("Forecast.js")}));
}

TEST_F(CreatePage, TheNameOfTheSettingsNamesEveryFile) {
    settings.set(Setting::PageFilename, "two words.v2");
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(webFiles(), QStringList({"two words.v21.jpg", "two words.v22.jpg"}));
    const std::string text = readFile(host("two words.v2.htm")).toStdString();
    EXPECT_THAT(text, HasSubstr("src=\"two words.v2.js\""));
    EXPECT_THAT(text, HasSubstr("src=\"Web/two words.v22.jpg\""));
    EXPECT_TRUE(QFile::exists(host("two words.v2.js")));
}

TEST_F(CreatePage, AMissingWebFolderIsMade) {
    ASSERT_FALSE(QDir(host("Web")).exists());
    EXPECT_TRUE(createPage(editor()));
    EXPECT_EQ(webFiles().size(), 2);
}

TEST_F(CreatePage, WithFewerFramesTheOldImagesAreGone) {
    useFrames(5);
    ASSERT_TRUE(createPage(editor()));
    ASSERT_EQ(webFiles().size(), 5);
    useFrames(2);
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(webFiles(), QStringList({"Forecast1.jpg", "Forecast2.jpg"}));
}

TEST_F(CreatePage, TheWebFolderHoldsNothingElseAfterwards) {
    writeFile(host("Web/Other1.jpg"), "old");
    writeFile(host("Web/notes.txt"), "old");
    writeFile(host("Web/no-extension"), "old");
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(webFiles(), QStringList({"Forecast1.jpg", "Forecast2.jpg"}));
}

TEST_F(CreatePage, FoldersInTheWebFolderStay) {
    writeFile(host("Web/archive/2001.jpg"), "kept");
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(readFile(host("Web/archive/2001.jpg")), "kept");
}

TEST_F(CreatePage, OldPagesUnderAnotherNameStay) {
    ASSERT_TRUE(createPage(editor()));
    const QByteArray oldPage = readFile(host("Forecast.htm"));
    settings.set(Setting::PageFilename, "Other");
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(readFile(host("Forecast.htm")), oldPage);
    EXPECT_TRUE(QFile::exists(host("Forecast.js")));
    EXPECT_EQ(webFiles(), QStringList({"Other1.jpg", "Other2.jpg"}));
}

TEST_F(CreatePage, AnOlderLongerPageLeavesNothingBehind) {
    writeFile(host("Forecast.htm"), QByteArray(100000, 'x'));
    writeFile(host("Forecast.js"), QByteArray(100000, 'x'));
    ASSERT_TRUE(createPage(editor()));
    EXPECT_TRUE(readFile(host("Forecast.htm")).endsWith("</HTML>\r\n"));
    EXPECT_FALSE(readFile(host("Forecast.js")).contains("xx"));
}

TEST_F(CreatePage, AnEmptyStoreGivesANavigationButtonsPage) {
    ASSERT_TRUE(createPage(editor()));
    EXPECT_THAT(page(), HasSubstr(ButtonsCall));
}

TEST_F(CreatePage, TheSettingChoosesTheType) {
    settings.set(Setting::PageType, "2");
    ASSERT_TRUE(createPage(editor()));
    EXPECT_THAT(page(), HasSubstr(ExtendedCall));
    settings.set(Setting::PageType, "3");
    ASSERT_TRUE(createPage(editor()));
    EXPECT_THAT(page(), HasSubstr(IntervalCall));
}

TEST_F(CreatePage, EveryOtherTypeInTheStoreGivesNavigationButtons) {
    for (const char* type : {"1", "4", "7", "0", "-1", "abc", ""}) {
        settings.set(Setting::PageType, type);
        ASSERT_TRUE(createPage(editor())) << type;
        EXPECT_THAT(page(), HasSubstr(ButtonsCall)) << type;
        EXPECT_THAT(page(), Not(HasSubstr(SliderBlock))) << type;
    }
}

TEST_F(CreatePage, ATypeThatIsAskedForGoesBeforeTheSetting) {
    settings.set(Setting::PageType, "2");
    ASSERT_TRUE(createPage(editor(), PageType::Slider));
    EXPECT_THAT(page(), HasSubstr(SliderBlock));
}

TEST_F(CreatePage, MakingAPageStoresNoSetting) {
    ASSERT_TRUE(createPage(editor()));
    EXPECT_FALSE(QFile::exists(temporary.file("settings.ini")));
}

TEST_F(CreatePage, AChangedProjectStaysChanged) {
    workspace.ProjectChanged = true;
    ASSERT_TRUE(createPage(editor()));
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(CreatePage, TheFirstFrameIsSelectedAtTheEnd) {
    workspace.Status.CurrentFrame = 2;
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(view.calls, QStringList({"disable", "enable", "selectFirstFrame"}));
}

TEST_F(CreatePage, TheBrowserIsGivenTheHostPathOfThePage) {
    ASSERT_TRUE(createPage(editor()));
    EXPECT_EQ(shell.opened, QStringList({host("Forecast.htm")}));
    EXPECT_FALSE(shell.opened.first().contains(u'\\'));
}

TEST_F(CreatePage, TheBrowserOpensAFinishedPageUnderTheHourglass) {
    WatchingShell watching;
    bool seen = false;
    watching.atOpening = [&] {
        seen = true;
        EXPECT_TRUE(QFile::exists(host("Forecast.htm")));
        EXPECT_TRUE(QFile::exists(host("Forecast.js")));
        EXPECT_EQ(webFiles().size(), 2);
        EXPECT_EQ(view.calls, QStringList({"disable", "enable", "selectFirstFrame"}));
        EXPECT_EQ(watching.pointer, Pointer::Hourglass);
    };
    ASSERT_TRUE(createPage({workspace, watching, view}));
    EXPECT_TRUE(seen);
    EXPECT_EQ(watching.pointer, Pointer::Default);
}

TEST_F(CreatePage, PendingEventsRunBetweenTheSteps) {
    ASSERT_TRUE(createPage(editor()));
    EXPECT_GE(shell.eventRounds, 4);
}

TEST_F(CreatePage, AnUnusableSliderColourStopsNoOtherTypeOfPage) {
    settings.set(Setting::SliderColor, "blue");
    EXPECT_TRUE(createPage(editor(), PageType::NavigationButtons));
    EXPECT_TRUE(createPage(editor(), PageType::TimeInterval));
}

}  // namespace nubivane::testing
