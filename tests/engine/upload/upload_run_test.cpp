// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"

#include <QElapsedTimer>
#include <QTimer>

namespace nubivane::testing {

using UploadRunTest = UploadTest;

TEST_F(UploadRunTest, AnInitialisationTellsEveryStep) {
    OwnFtpServer server;
    ASSERT_TRUE(run.runUpload(true, server.address()));
    const QString folder = host("");
    EXPECT_EQ(window.infos, QStringList({"Connecting to the server...",
                                         "Creating folder nVane",
                                         "Changing folder to nVane",
                                         "Creating folder Web",
                                         "Changing folder to Web",
                                         "Changing folder to ..\\",
                                         "Creating folder Symbols",
                                         "Changing folder to Symbols",
                                         "Creating folder sea",
                                         "Changing folder to sea",
                                         "Changing folder to ..\\",
                                         "Creating folder set-1",
                                         "Changing folder to set-1",
                                         "Changing folder to ..\\",
                                         "Changing folder to ..\\",
                                         "Creating folder Maps",
                                         "Changing folder to Maps",
                                         "Changing folder to ..\\",
                                         "Uploading file " + folder + "Symbols/sea/wave.png",
                                         "Uploading file " + folder + "Symbols/set-1/rain.gif",
                                         "Uploading file " + folder + "Symbols/set-1/snow.gif",
                                         "Uploading file " + folder + "Symbols/set-1/sun.gif",
                                         "Uploading file " + folder + "Maps/europe.jpg",
                                         "Uploading file " + folder + "Web/Forecast1.jpg",
                                         "Uploading file " + folder + "Web/Forecast2.jpg",
                                         "Uploading file " + folder + "Forecast.js",
                                         "Uploading file " + folder + "Forecast.htm"}));
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(UploadRunTest, AnUploadSpeaksOfTheFoldersAsOne) {
    OwnFtpServer server;
    choose(false, true, false);
    ASSERT_TRUE(run.runUpload(false, server.address()));
    QStringList expected{"Connecting to the server..."};
    for (int i = 0; i < 17; ++i) {
        expected << "Checking folders structure...";
    }
    expected << "Uploading file " + host("Maps/europe.jpg");
    EXPECT_EQ(window.infos, expected);
}

TEST_F(UploadRunTest, TheWindowsOpenAndCloseInTheirOrder) {
    OwnFtpServer server;
    choose(false, true, false);
    shell.pointer = Pointer::Hourglass;
    ASSERT_TRUE(run.runUpload(false, server.address()));
    EXPECT_EQ(view.calls, QStringList({"open Uploading files...", "disable", "close", "enable"}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
    view.calls.clear();
    ASSERT_TRUE(run.runUpload(true, server.address()));
    EXPECT_EQ(view.calls, QStringList({"open Initializing...", "disable", "close", "enable"}));
}

TEST_F(UploadRunTest, CaptionsAreGivenTimeButNoMoreThanASecondInAll) {
    OwnFtpServer server;
    choose(false, true, false);
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(run.runUpload(false, server.address(), {.captions = true}));
    EXPECT_GE(timer.elapsed(), 900);
    EXPECT_EQ(shell.waits, QList<int>({500}));
}

TEST_F(UploadRunTest, ProgressIsTheStepsShareRoundedDown) {
    OwnFtpServer server;
    choose(false, true, false);
    ASSERT_TRUE(run.runUpload(false, server.address()));
    EXPECT_EQ(window.percents,
              QList<int>({5, 11, 16, 22, 27, 33, 38, 44, 50, 55, 61, 66, 72, 77, 83, 88, 94, 100}));
}

TEST_F(UploadRunTest, OnlyTheChosenGroupsAreSent) {
    const QMap<QString, QByteArray> site = wholeSite();
    OwnFtpServer server;
    for (int chosen = 1; chosen < 8; ++chosen) {
        server.empty();
        forgetServers();
        choose(chosen & 1, chosen & 2, chosen & 4);
        ASSERT_TRUE(run.runUpload(false, server.address()));
        for (auto file = site.cbegin(); file != site.cend(); ++file) {
            const int group = file.key().contains("Symbols") ? 1
                              : file.key().contains("Maps")  ? 2
                                                             : 4;
            EXPECT_EQ(server.tree().contains(file.key()), (chosen & group) != 0)
                << file.key().toStdString() << " of " << chosen;
        }
    }
}

TEST_F(UploadRunTest, WithNothingChosenTheSettingsOpenAtTheirList) {
    choose(false, false, false);
    for (const char* sent : {"0", "2"}) {
        settings.set(Setting::UploadMaps, sent);
        shell.expectMessage("There is no file to upload. Change upload settings and retry",
                            Icon::Exclamation);
        EXPECT_FALSE(run.runUpload(false));
        EXPECT_EQ(window.tabs, QList<FtpTab>{FtpTab::UploadList});
        EXPECT_EQ(view.calls, QStringList());
        window.tabs.clear();
    }
}

TEST_F(UploadRunTest, FoldersThatAreThereAlreadyAreNoFailure) {
    OwnFtpServer server;
    ASSERT_TRUE(run.runUpload(true, server.address()));
    writeFile(host("Forecast.htm"), "another page");
    ASSERT_TRUE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(UploadRunTest, ARemoteFolderIsEnteredFirst) {
    OwnFtpServer server;
    QDir().mkpath(server.file("htdocs"));
    settings.set(Setting::FtpRemoteFolder, "htdocs");
    ASSERT_TRUE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.tree().value("htdocs/nVane/Forecast.htm"), readFile(host("Forecast.htm")));
    for (const QString& file : server.tree().keys()) {
        EXPECT_TRUE(file.startsWith("htdocs/nVane/")) << file.toStdString();
    }
}

TEST_F(UploadRunTest, OneConnectionAndNoCommandBeyondThePlan) {
    OwnFtpServer server;
    ASSERT_TRUE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.connections(), 1);
    const QStringList lines = server.commands();
    EXPECT_EQ(lines.mid(0, 3), QStringList({"AUTH TLS", "USER user", "PASS secret"}));
    EXPECT_EQ(lines.last(), "QUIT");
    QMap<QString, int> counts;
    for (const QString& line : lines.mid(3)) {
        ++counts[line.section(u' ', 0, 0)];
    }
    EXPECT_EQ(counts, (QMap<QString, int>{{"MKD", 6},
                                          {"CWD", 11},
                                          {"TYPE", 1},
                                          {"EPSV", 10},
                                          {"STOR", 10},
                                          {"SIZE", 10},
                                          {"RNFR", 10},
                                          {"RNTO", 10},
                                          {"QUIT", 1}}));
}

TEST_F(UploadRunTest, AMissingImageOnTheServerSideIsPassedOver) {
    OwnFtpServer server({"--fault", "STOR:6=553 no images today"});
    EXPECT_TRUE(run.runUpload(true, server.address()));
    QMap<QString, QByteArray> expected = wholeSite();
    expected.remove("nVane/Web/Forecast1.jpg");
    EXPECT_EQ(server.tree(), expected);
}

TEST_F(UploadRunTest, AConnectionLostAmongTheImagesIsToldByTheImage) {
    OwnFtpServer server;
    UploadRun hasty(editor(), window, shortLimits());
    for (const char* what : {"drop", "421 closing", "silent"}) {
        QStringList faults;
        for (int i = 6; i < 12; ++i) {
            faults << QStringLiteral("STOR:%1=%2").arg(i).arg(what);
        }
        server.beginAnew(faults);
        server.empty();
        forgetServers();
        shell.expectMessage("Cannot upload " + host("Web/Forecast1.jpg") + " file", Icon::Critical);
        EXPECT_FALSE(hasty.runUpload(true, server.address())) << what;
        EXPECT_FALSE(server.tree().contains("nVane/Forecast.htm")) << what;
        expectAllClosed();
    }
}

TEST_F(UploadRunTest, WhatAServerSaysIsShownWithoutControlCharacters) {
    OwnFtpServer server({"--fault",
                         "CWD:2=550 \x1b[31mred\x07 \x7f \xc2\x9b"
                         "2Jno"});
    shell.expectMessage("Cannot find Web folder", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.address()));
    EXPECT_EQ(shell.causes.last(), "550 [31mred 2Jno");
}

TEST_F(UploadRunTest, AServerThatIsNotThereIsToldAfterTheWindowHasClosed) {
    int port = 0;
    {
        const OwnFtpServer gone;
        port = gone.port();
    }
    shell.expectMessage("Unable to establish a connection to the remote server", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, {"127.0.0.1", port, FtpUser, FtpPassword}));
    EXPECT_EQ(view.calls, QStringList({"open Initializing...", "disable", "close", "enable"}));
    EXPECT_EQ(window.infos, QStringList({"Connecting to the server..."}));
    EXPECT_NE(shell.causes.last(), "");
    expectAllClosed();
}

TEST_F(UploadRunTest, AHostThatCannotExistIsToldInTheSameWords) {
    for (const char* name : {"no host", "host/path", "a@b"}) {
        useServer(name);
        shell.expectMessage("Unable to establish a connection to the remote server",
                            Icon::Critical);
        EXPECT_FALSE(run.runUpload(true));
        expectAllClosed();
    }
}

TEST_F(UploadRunTest, AWrongPasswordIsToldInTheSameWords) {
    OwnFtpServer server;
    FtpServer address = server.address();
    address.password = "wrong";
    shell.expectMessage("Unable to establish a connection to the remote server", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, address));
    EXPECT_TRUE(shell.causes.last().contains("530")) << shell.causes.last().toStdString();
    expectAllClosed();
}

TEST_F(UploadRunTest, ANextRunStartsAnewAfterAFailure) {
    OwnFtpServer server({"--fault", "CWD:2=550 no"});
    shell.expectMessage("Cannot find Web folder", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.address()));
    EXPECT_TRUE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(UploadRunTest, ARunWithinARunDoesNothing) {
    OwnFtpServer server;
    bool nested = true;
    window.atInfo = [&] { nested = nested && run.runUpload(true, server.address()); };
    EXPECT_TRUE(run.runUpload(true, server.address()));
    EXPECT_FALSE(nested);
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(UploadRunTest, CancelAtEveryStepIsToldOnceAndEndsTheRun) {
    const int steps = 27;
    OwnFtpServer server;
    for (int step = 0; step < steps; ++step) {
        server.beginAnew({});
        server.empty();
        forgetServers();
        int count = 0;
        window.infos.clear();
        window.atInfo = [&] {
            if (count++ == step) {
                run.cancel();
            }
        };
        view.calls.clear();
        shell.expectMessage("Operation stopped by the user.", Icon::Exclamation);
        EXPECT_FALSE(run.runUpload(true, server.address())) << step;
        EXPECT_EQ(view.calls, QStringList({"open Initializing...", "disable", "disableCancel",
                                           "close", "enable", "close", "enable"}))
            << step;
        EXPECT_EQ(window.infos.size(), step + 2) << step;  // the step's own and the farewell
        EXPECT_EQ(window.infos.last(), "Disconnecting...");
        expectNoHalfFile(server.tree());
        expectAllClosed();
    }
    window.atInfo = nullptr;
    EXPECT_TRUE(run.runUpload(true, server.address()));
}

TEST_F(UploadRunTest, CancelAfterTheLastStepIsStillACancel) {
    OwnFtpServer server;
    choose(false, true, false);
    window.atPercent = [&](int percent) {
        if (percent == 100) {
            run.cancel();
        }
    };
    shell.expectMessage("Operation stopped by the user.", Icon::Exclamation);
    EXPECT_FALSE(run.runUpload(false, server.address()));
    EXPECT_EQ(server.tree().keys(), QStringList({"nVane/Maps/europe.jpg"}));
    expectAllClosed();
}

TEST_F(UploadRunTest, CancelWorksWhileAFileIsOnItsWay) {
    writeFile(host("Maps/europe.jpg"), QByteArray(50000000, 'x'));
    OwnFtpServer server({"--fault", "STOR=stall"});
    FtpOptions patient = testLimits();
    patient.stall = std::chrono::hours(1);
    patient.response = std::chrono::hours(1);
    UploadRun patientRun(editor(), window, patient);
    choose(false, true, false);
    int events = 0;
    QTimer often;
    QObject::connect(&often, &QTimer::timeout, [&] {
        if (!server.commands().filter("STOR ").isEmpty() && ++events == 10) {
            patientRun.cancel();
        }
    });
    often.start(10);
    shell.expectMessage("Operation stopped by the user.", Icon::Exclamation);
    EXPECT_FALSE(patientRun.runUpload(false, server.address()));
    EXPECT_GE(events, 10);
    expectAllClosed();
}

TEST_F(UploadRunTest, CancelWorksWhileTheServerIsBeingReached) {
    OwnFtpServer server({"--fault", "USER=silent"});
    FtpOptions patient = testLimits();
    patient.response = std::chrono::hours(1);
    UploadRun patientRun(editor(), window, patient);
    QTimer::singleShot(200, [&] { patientRun.cancel(); });
    shell.expectMessage("Operation stopped by the user.", Icon::Exclamation);
    EXPECT_FALSE(patientRun.runUpload(true, server.address()));
    expectAllClosed();
}

TEST_F(UploadRunTest, CancelWithoutARunDoesNothing) {
    run.cancel();
    EXPECT_EQ(view.calls, QStringList());
    OwnFtpServer server;
    EXPECT_TRUE(run.runUpload(true, server.address()));
}

}  // namespace nubivane::testing
