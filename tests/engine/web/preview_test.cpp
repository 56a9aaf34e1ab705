// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_fixture.h"

namespace nubivane::testing {

namespace {

class Preview : public SiteTest {};

}  // namespace

TEST_F(Preview, OpensThePageByItsHostPath) {
    writeFile(host("Forecast.htm"), "page");
    mnuPreview(editor());
    EXPECT_EQ(shell.opened, QStringList({host("Forecast.htm")}));
}

TEST_F(Preview, LooksForForecastWhateverThePageSettingsSay) {
    settings.set(Setting::PageFilename, "Other");
    writeFile(host("Other.htm"), "page");
    mnuPreview(editor());
    EXPECT_EQ(shell.opened, QStringList());

    writeFile(host("Forecast.htm"), "page");
    mnuPreview(editor());
    EXPECT_EQ(shell.opened, QStringList({host("Forecast.htm")}));
}

TEST_F(Preview, DoesNothingWithoutThePage) {
    const QStringList before = filesUnder(temporary.path());
    mnuPreview(editor());
    EXPECT_EQ(shell.opened, QStringList());
    EXPECT_EQ(view.calls, QStringList());
    EXPECT_EQ(filesUnder(temporary.path()), before);
}

TEST_F(Preview, AFolderOfThatNameIsNoPage) {
    block("Forecast.htm");
    mnuPreview(editor());
    EXPECT_EQ(shell.opened, QStringList());
}

TEST_F(Preview, FollowsItsOwnEntryWhenSomebodyWroteOneByHand) {
    settings.SaveSetting("Nubivane\\6.0.0", "Html page", "Filename", "Other");
    writeFile(host("Other.htm"), "page");
    mnuPreview(editor());
    EXPECT_EQ(shell.opened, QStringList({host("Other.htm")}));
}

TEST_F(Preview, ANameThatLeavesTheProgramFolderOpensNothing) {
    writeFile(temporary.file("outside.htm"), "page");
    for (const char* name : {"..\\outside", "../outside"}) {
        settings.SaveSetting("Nubivane\\6.0.0", "Html page", "Filename", name);
        mnuPreview(editor());
    }
    EXPECT_EQ(shell.opened, QStringList());
}

TEST_F(Preview, OpensThePageThatWasJustMade) {
    useFrames(1);
    ASSERT_TRUE(createPage(editor()));
    mnuPreview(editor());
    EXPECT_EQ(shell.opened, QStringList({host("Forecast.htm"), host("Forecast.htm")}));
}

}  // namespace nubivane::testing
