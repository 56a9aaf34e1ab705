// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"
#include "support/upload_texts.h"

namespace nubivane::testing {

namespace {

class UploadFaults : public UploadTest {
  protected:
    QString textAfter(const QStringList& lines, int failing, bool lost = false) const {
        return testing::textAfter(buildUploadPlan(workspace, true, true, true), lines, failing,
                                  lost);
    }

    /// Runs an initialisation against a server with a fault; its message is the only one.
    void expectFailure(const QString& fault, const QString& text) {
        OwnFtpServer server({"--fault", fault});
        view.calls.clear();
        if (!text.isEmpty()) {
            shell.expectMessage(text, Icon::Critical);
        }
        EXPECT_EQ(run.runUpload(true, server.address()), text.isEmpty()) << fault.toStdString();
        EXPECT_EQ(view.calls, QStringList({"open Initializing...", "disable", "close", "enable"}))
            << fault.toStdString();
        expectAllClosed();
        EXPECT_LE(server.connections(), 1) << "a lost connection was replaced";
        EXPECT_FALSE(QFileInfo::exists(server.file("Forecast.htm"))) << fault.toStdString();
    }

    QStringList conversation() {
        OwnFtpServer server;
        EXPECT_TRUE(run.runUpload(true, server.address()));
        return server.commands();
    }
};

}  // namespace

TEST_F(UploadFaults, TheTextsBelongToTheSteps) {
    const QStringList lines = conversation();
    const auto after = [&](const char* line) {
        return textAfter(lines, static_cast<int>(lines.indexOf(QLatin1String(line))));
    };
    EXPECT_EQ(after("PASS secret"), "Unable to establish a connection to the remote server");
    EXPECT_EQ(after("MKD nVane"), "Cannot find nVane folder");
    EXPECT_EQ(after("CWD nVane"), "Cannot find nVane folder");
    EXPECT_EQ(after("MKD set-1"), "Cannot find set-1 folder");
    EXPECT_EQ(after("CWD ..\\"), "Cannot find ..\\ folder");
    EXPECT_EQ(after("STOR set-1\\rain.gif"),
              "Cannot upload " + host("Symbols/set-1/rain.gif") + " file");
    EXPECT_EQ(after("STOR Forecast.js"), "Cannot upload " + host("Forecast.js") + " file");
    EXPECT_EQ(after("STOR Web/Forecast1.jpg"), "");
    EXPECT_EQ(textAfter(lines, static_cast<int>(lines.indexOf("STOR Web/Forecast1.jpg")), true),
              "Cannot upload " + host("Web/Forecast1.jpg") + " file");
}

TEST_F(UploadFaults, AConnectionDroppedAtAnyCommandIsToldByItsStep) {
    const QStringList lines = conversation();
    for (int i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(lines[i].toStdString());
        expectFailure(QStringLiteral("#%1=drop").arg(i + 1), textAfter(lines, i, true));
    }
}

TEST_F(UploadFaults, ASilentServerIsGivenUp) {
    const QString unable = "Unable to establish a connection to the remote server";
    expectFailure("USER=silent", unable);
    expectFailure("MKD:2=silent", "Cannot find Web folder");
    expectFailure("CWD:1=silent", "Cannot find nVane folder");
    expectFailure("STOR:1=silent", "Cannot upload " + host("Symbols/sea/wave.png") + " file");
    expectFailure("EPSV:2=silent", "Cannot upload " + host("Symbols/set-1/rain.gif") + " file");
    expectFailure("QUIT=silent", "");
}

TEST_F(UploadFaults, ARefusalOfEachKindIsToldByItsStep) {
    expectFailure("USER=550 no", "Unable to establish a connection to the remote server");
    expectFailure("PASS=550 no", "Unable to establish a connection to the remote server");
    expectFailure("MKD=550 no", "Cannot find nVane folder");
    expectFailure("CWD=550 no", "Cannot find nVane folder");
    expectFailure("EPSV=550 no", "");  // PASV is older
    expectFailure("TYPE=550 no", "Cannot upload " + host("Symbols/sea/wave.png") + " file");
    expectFailure("STOR=550 no", "Cannot upload " + host("Symbols/sea/wave.png") + " file");
    expectFailure("AUTH=550 no", "");
    expectFailure("QUIT=550 no", "");
}

TEST_F(UploadFaults, AFullDiskIsToldByTheFile) {
    expectFailure("STOR:6=452", "Cannot upload " + host("Forecast.htm") + " file");
    expectFailure("STOR:6=552 full", "Cannot upload " + host("Forecast.htm") + " file");
}

TEST_F(UploadFaults, AServerThatTakesNoMoreOfAFileIsGivenUp) {
    writeFile(host("Maps/europe.jpg"), QByteArray(50000000, 'x'));
    expectFailure("STOR:5=stall", "Cannot upload " + host("Maps/europe.jpg") + " file");
    expectFailure("STOR:5=cut", "Cannot upload " + host("Maps/europe.jpg") + " file");
}

TEST_F(UploadFaults, AReplyOfAMegabyteEndsItsStep) {
    for (const char* form : {"megabyte", "longline"}) {
        SCOPED_TRACE(form);
        const QString what = QStringLiteral("=") + form;
        expectFailure("PASS" + what, "Unable to establish a connection to the remote server");
        expectFailure("MKD:1" + what, "Cannot find nVane folder");
        expectFailure("CWD:3" + what, "Cannot find ..\\ folder");
        EXPECT_LT(shell.causes.last().size(), 1000);
        expectFailure("STOR:2" + what, "Cannot upload " + host("Symbols/set-1/rain.gif") + " file");
        expectFailure("QUIT" + what, "");
    }
}

TEST_F(UploadFaults, AReplyWithoutEndIsGivenUp) {
    expectFailure("PASS=endless", "Unable to establish a connection to the remote server");
    expectFailure("CWD:3=endless", "Cannot find ..\\ folder");
}

TEST_F(UploadFaults, ALocalFileThatVanishedIsToldByItsStep) {
    OwnFtpServer server;
    window.atInfo = [&] { QFile::remove(host("Forecast.js")); };
    shell.expectMessage("Cannot upload " + host("Forecast.js") + " file", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.address()));
    expectAllClosed();
}

TEST_F(UploadFaults, ASettingWithALineEndSendsNoSecondCommand) {
    OwnFtpServer server;
    settings.set(Setting::FtpRemoteFolder, "x\r\nDELE y");
    shell.expectMessage("Cannot find x\r\nDELE y folder", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.commands().filter("DELE"), QStringList());
}

}  // namespace nubivane::testing
