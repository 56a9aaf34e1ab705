// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_fixture.h"

namespace nubivane::testing {

namespace {

constexpr char ImagesFailed[] = "An error occurred while creating the page.";
constexpr char PageFailed[] = "An error occurred while creating the page: ";

/// Every failure is told in one critical message, leaves the pointer as it was, selects nothing and
/// opens nothing.
class PageFailures : public SiteTest {
  protected:
    PageFailures() { useFrames(2); }

    void expectFailure(const QString& text, std::optional<PageType> type = std::nullopt) {
        shell.expectMessage(text, Icon::Critical);
        EXPECT_EQ(createPage(editor(), type), std::nullopt);
        EXPECT_EQ(shell.pointer, Pointer::Default);
        EXPECT_EQ(shell.opened, QStringList());
        EXPECT_FALSE(view.calls.contains("selectFirstFrame"));
        EXPECT_EQ(view.calls.count("disable"), view.calls.count("enable"));
        if (text == ImagesFailed) {  // the text alone tells nobody what to mend
            ASSERT_FALSE(shell.causes.isEmpty());
            EXPECT_NE(shell.causes.last(), "");
        }
    }

    bool pageExists() const { return QFile::exists(host("Forecast.htm")); }
};

}  // namespace

TEST_F(PageFailures, WebIsAFile) {
    writeFile(host("Web"), "no folder");
    expectFailure(ImagesFailed);
    EXPECT_FALSE(pageExists());
    EXPECT_EQ(readFile(host("Web")), "no folder");
}

TEST_F(PageFailures, AFolderHasTheNameOfAnImage) {
    block("Web/Forecast2.jpg");
    expectFailure(ImagesFailed);
    EXPECT_FALSE(pageExists());
}

TEST_F(PageFailures, TheMapIsMissingForAFrameNeverVisited) {
    QFile::remove(host("Maps/blue.jpg"));
    expectFailure(ImagesFailed);
    EXPECT_FALSE(pageExists());
}

TEST_F(PageFailures, TheMapIsNoPicture) {
    writeFile(host("Maps/blue.jpg"), "no picture");
    expectFailure(ImagesFailed);
    EXPECT_FALSE(pageExists());
}

TEST_F(PageFailures, APictureIsDamagedBehindItsHeader) {
    useMap("cut.png", {60, 40});
    QByteArray png = readFile(host("Maps/cut.png"));
    const qsizetype data = png.indexOf("IDAT") + 8;
    png[data] = static_cast<char>(png[data] ^ 0x55);
    workspace.pctMap.setPicture(Picture::fromEncoded(png));
    workspace.clearTempPicture();
    expectFailure(ImagesFailed);
    EXPECT_FALSE(pageExists());
}

TEST_F(PageFailures, AFailureWithTheImagesLeavesTheOldPage) {
    ASSERT_TRUE(createPage(editor()));
    const QByteArray oldPage = readFile(host("Forecast.htm"));
    shell.opened.clear();
    view.calls.clear();
    block("Web/Forecast3.jpg");
    useFrames(3);
    expectFailure(ImagesFailed);
    EXPECT_EQ(readFile(host("Forecast.htm")), oldPage);
}

TEST_F(PageFailures, AnOlderPagesImagesDoNotSurviveAFailure) {
    ASSERT_TRUE(createPage(editor()));
    ASSERT_EQ(webFiles().size(), 2);
    shell.opened.clear();
    view.calls.clear();
    writeFile(host("Maps/blue.jpg"), "no picture");
    workspace.clearTempPicture();
    expectFailure(ImagesFailed);
    EXPECT_EQ(webFiles(), QStringList());
}

TEST_F(PageFailures, OnlyImagesOfThisPageRemainAfterAFailureInTheMidst) {
    useFrames(3);
    ASSERT_TRUE(createPage(editor()));
    shell.opened.clear();
    view.calls.clear();
    useMap("cut.png", {60, 40});
    QByteArray png = readFile(host("Maps/cut.png"));
    const qsizetype data = png.indexOf("IDAT") + 8;
    png[data] = static_cast<char>(png[data] ^ 0x55);
    workspace.pctPanel.setPicture(2, Picture::fromEncoded(png));
    expectFailure(ImagesFailed);
    EXPECT_FALSE(webFiles().contains("Forecast2.jpg"));
}

TEST_F(PageFailures, AHostileFileNameWritesNothing) {
    const QStringList before = filesUnder(temporary.path());
    for (const char* name : {"", ".", "..", "a/b", "a\\b", "..\\a", "../a", "/tmp/a", "c:a"}) {
        settings.set(Setting::PageFilename, name);
        expectFailure(ImagesFailed);
        QStringList after = filesUnder(temporary.path());
        after.removeOne("settings.ini");
        EXPECT_EQ(after, before) << name;
    }
}

TEST_F(PageFailures, AFolderHasTheNameOfThePage) {
    block("Forecast.htm");
    expectFailure(QString(PageFailed) + "Cannot write the file.");
    EXPECT_EQ(webFiles().size(), 2);  // files already written remain
    EXPECT_FALSE(QFile::exists(host("Forecast.js")));
}

TEST_F(PageFailures, AFolderHasTheNameOfTheScript) {
    block("Forecast.js");
    expectFailure(QString(PageFailed) + "Cannot write the file.");
    EXPECT_TRUE(pageExists());
}

TEST_F(PageFailures, AColourThatPagesCannotShow) {
    workspace.Frames().Item(2).Texts().Forecast().Title().Text = "Evening";
    workspace.Frames().Item(2).Texts().Forecast().Title().Font.Color = 123;
    expectFailure(QString(PageFailed) + "Unknown colour.");
    EXPECT_FALSE(pageExists());
    EXPECT_FALSE(QFile::exists(host("Forecast.js")));
    EXPECT_EQ(webFiles().size(), 2);
}

TEST_F(PageFailures, ABackgroundColourThatIsForeignOrNoNumber) {
    settings.set(Setting::PageBackcolor, "123");
    expectFailure(QString(PageFailed) + "Unknown colour.");
    settings.set(Setting::PageBackcolor, "blue");
    expectFailure(QString(PageFailed) + "The setting \"Backcolor\" is no colour: \"blue\".");
    EXPECT_FALSE(pageExists());
}

TEST_F(PageFailures, ASliderColourOfNoNumberStopsTheSliderPage) {
    settings.set(Setting::SliderColor, "blue");
    expectFailure(QString(PageFailed) + "The colour of the slider is no number.", PageType::Slider);
}

TEST_F(PageFailures, AHeaderWithoutItsBodyItem) {
    workspace.Frames().Item(1).Texts().Forecast().Header().add(
        {.IndexFontSize = 1, .Text = "North"});
    expectFailure(QString(PageFailed) + "Position outside the list.");
    EXPECT_FALSE(pageExists());
}

TEST_F(PageFailures, AFailureWithThePageLeavesTheOldPageWhole) {
    ASSERT_TRUE(createPage(editor()));
    const QByteArray oldPage = readFile(host("Forecast.htm"));
    shell.opened.clear();
    view.calls.clear();
    settings.set(Setting::PageBackcolor, "123");
    expectFailure(QString(PageFailed) + "Unknown colour.");
    EXPECT_EQ(readFile(host("Forecast.htm")), oldPage);
}

}  // namespace nubivane::testing
