// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"
#include "support/texts.h"

namespace nubivane::testing {

namespace {

class UploadCommandsTest : public UploadTest {
  protected:
    QStringList flags() const {
        return {settings.text(Setting::UploadInitialized), settings.text(Setting::UploadMaps),
                settings.text(Setting::UploadSymbols), settings.text(Setting::UploadHtmlPage)};
    }

    void both(const std::function<void()>& expect) {
        expect();
        commands.mnuInvia();
        expect();
        commands.mnuInitialize();
    }
};

}  // namespace

TEST_F(UploadCommandsTest, WithoutANetworkNothingElseIsLookedAt) {
    shell.network = false;
    settings.set(Setting::FtpUrl, "");
    both([&] {
        shell.expectMessage("No connection to the internet is currently available", Icon::Critical);
    });
    EXPECT_EQ(window.tabs, QList<FtpTab>());
    EXPECT_EQ(view.calls, QStringList());
}

TEST_F(UploadCommandsTest, ThisMachineNeedsNoNetwork) {
    shell.network = false;
    settings.set(Setting::FtpUrl, "127.0.0.1");
    settings.set(Setting::FtpNubivaneFolder, "");
    both([&] { shell.expectMessage("Enter a valid Nubivane folder", Icon::Exclamation); });
}

TEST_F(UploadCommandsTest, AMissingAddressOpensTheFirstTab) {
    settings.set(Setting::FtpUrl, " ");
    both([&] { shell.expectMessage("Enter a valid ftp address", Icon::Exclamation); });
    EXPECT_EQ(window.tabs, QList<FtpTab>({FtpTab::Server, FtpTab::Server}));
}

TEST_F(UploadCommandsTest, AMissingNameOpensTheFirstTab) {
    settings.set(Setting::FtpUserName, "");
    both([&] { shell.expectMessage("Enter a valid ftp username", Icon::Exclamation); });
    EXPECT_EQ(window.tabs, QList<FtpTab>({FtpTab::Server, FtpTab::Server}));
}

TEST_F(UploadCommandsTest, AMissingFolderOpensTheSecondTab) {
    settings.set(Setting::FtpNubivaneFolder, "");
    both([&] { shell.expectMessage("Enter a valid Nubivane folder", Icon::Exclamation); });
    EXPECT_EQ(window.tabs, QList<FtpTab>({FtpTab::Folders, FtpTab::Folders}));
}

TEST_F(UploadCommandsTest, AnInitialisationSendsAllAndLeavesItsMarks) {
    OwnFtpServer server;
    UploadCommands own(editor(), window, limitsFor(server));
    choose(false, true, false);
    shell.expectMessage("Initialition completed successfully", Icon::Information);
    own.mnuInitialize();
    EXPECT_EQ(server.tree(), wholeSite());
    EXPECT_EQ(flags(), QStringList({"1", "2", "2", "2"}));
}

TEST_F(UploadCommandsTest, AnUploadSendsWhatIsChosenAndLeavesNoMarks) {
    OwnFtpServer server;
    UploadCommands own(editor(), window, limitsFor(server));
    choose(false, true, false);
    own.mnuInvia();
    EXPECT_EQ(server.tree().keys(), QStringList({"nVane/Maps/europe.jpg"}));
    EXPECT_EQ(flags(), QStringList({"0", "1", "0", "0"}));
}

TEST_F(UploadCommandsTest, ACancelledInitialisationLeavesTheSettings) {
    OwnFtpServer server;
    UploadCommands own(editor(), window, limitsFor(server));
    choose(false, true, false);
    window.atInfo = [&] { own.run().cancel(); };
    shell.expectMessage("Operation stopped by the user.", Icon::Exclamation);
    own.mnuInitialize();
    EXPECT_EQ(flags(), QStringList({"0", "1", "0", "0"}));
}

TEST_F(UploadCommandsTest, AFailedInitialisationLeavesTheSettings) {
    settings.set(Setting::FtpUrl, "no host");
    choose(true, false, true);
    const QStringList before = flags();
    shell.expectMessage(NoConnection, Icon::Critical);
    commands.mnuInitialize();
    EXPECT_EQ(flags(), before);
}

TEST_F(UploadCommandsTest, ASecondInitialisationAsksFirst) {
    settings.set(Setting::FtpUrl, "no host");
    settings.set(Setting::UploadInitialized, "1");
    const QString question =
        "Initialization has already been successfully completed. \r\n"
        "Do you want to proceed anyway ?";
    shell.expectMessage(question, Icon::Question, Buttons::YesNo, Answer::No);
    commands.mnuInitialize();
    EXPECT_EQ(view.calls, QStringList());
    shell.expectMessage(question, Icon::Question, Buttons::YesNo, Answer::Yes);
    shell.expectMessage(NoConnection, Icon::Critical);
    commands.mnuInitialize();
    EXPECT_EQ(view.calls.first(), "open Initializing...");
}

TEST_F(UploadCommandsTest, OnlyTheValueOneCountsAsInitialised) {
    settings.set(Setting::FtpUrl, "no host");
    for (const char* value : {"0", "2", ""}) {
        settings.set(Setting::UploadInitialized, value);
        shell.expectMessage(NoConnection, Icon::Critical);
        commands.mnuInitialize();
    }
}

TEST_F(UploadCommandsTest, AnUploadAsksNothingAndSendsTheChosenGroups) {
    settings.set(Setting::FtpUrl, "no host");
    settings.set(Setting::UploadInitialized, "1");
    choose(false, true, false);
    shell.expectMessage(NoConnection, Icon::Critical);
    commands.mnuInvia();
    EXPECT_EQ(view.calls.first(), "open Uploading files...");
}

TEST_F(UploadCommandsTest, AfterAnInitialisationNothingIsChosenAnyMore) {
    choose(true, true, true);
    rememberInitialized(settings);
    EXPECT_EQ(flags(), QStringList({"1", "2", "2", "2"}));
    EXPECT_FALSE(FtpSettings::read(settings).groups.any());
    shell.expectMessage("There is no file to upload. Change upload settings and retry",
                        Icon::Exclamation);
    commands.mnuInvia();
    EXPECT_EQ(window.tabs, QList<FtpTab>{FtpTab::UploadList});
}

}  // namespace nubivane::testing
