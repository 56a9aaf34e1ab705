// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"
#include "support/tree_watcher.h"

namespace nubivane::testing {

namespace {

class UploadFaults : public UploadTest {
  protected:
    /// Runs an initialisation against a server with faults; its message is the only one.
    void expectFailure(const QStringList& faults, const QString& text) {
        expectFailureOf(run, faults, text);
    }
    void expectFailureOf(UploadRun& tried, const QStringList& faults, const QString& text) {
        server.beginAnew(faults);
        server.empty();
        forgetServers();
        view.calls.clear();
        const std::string trace = faults.join(u' ').toStdString();
        if (!text.isEmpty()) {
            shell.expectMessage(text, Icon::Critical);
        }
        EXPECT_EQ(tried.runUpload(true, server.address(), {.retries = 1}), text.isEmpty()) << trace;
        EXPECT_EQ(view.calls, QStringList({"open Initializing...", "disable", "close", "enable"}))
            << trace;
        expectAllClosed();
        EXPECT_EQ(server.tree().contains("nVane/Forecast.htm"), text.isEmpty()) << trace;
        if (text.isEmpty()) {
            EXPECT_EQ(server.tree(), wholeSite()) << trace;
        }
    }
    void expectFailure(const char* fault, const QString& text) {
        expectFailure(QStringList{QString::fromUtf8(fault)}, text);
    }
    /// The same where the server says nothing, which is waited for.
    void expectToBeGivenUp(const QStringList& faults, const QString& text) {
        expectFailureOf(hasty, faults, text);
    }

    OwnFtpServer server;
    UploadRun hasty{editor(), window, shortLimits()};
};

}  // namespace

TEST_F(UploadFaults, AConnectionThatIsLostEachTimeIsToldByItsStep) {
    const QString wave = "Cannot upload " + host("Symbols/sea/wave.png") + " file";
    expectFailure("MKD=drop", "Cannot find nVane folder");
    expectFailure("CWD=drop", "Cannot find nVane folder");
    expectFailure("STOR=drop", wave);
    expectFailure("RNFR=drop", wave);
    expectFailure("RNTO=reset", wave);
    expectFailure("SIZE=drop", wave);
}

TEST_F(UploadFaults, ASilentServerIsGivenUp) {
    expectToBeGivenUp({"USER=silent"}, "Unable to establish a connection to the remote server");
    expectToBeGivenUp({"MKD=silent"}, "Cannot find nVane folder");
    expectToBeGivenUp({"STOR=silent"}, "Cannot upload " + host("Symbols/sea/wave.png") + " file");
    expectToBeGivenUp({"EPSV:3=silent"}, "");
    expectToBeGivenUp({"QUIT=silent"}, "");
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
    expectFailure("STOR:9=452", "Cannot upload " + host("Forecast.htm") + " file");
    expectFailure("STOR:9=552 full", "Cannot upload " + host("Forecast.htm") + " file");
}

TEST_F(UploadFaults, AServerThatTakesNoMoreOfAFileIsGivenUp) {
    writeFile(host("Maps/europe.jpg"), QByteArray(50000000, 'x'));
    const QString europe = "Cannot upload " + host("Maps/europe.jpg") + " file";
    expectToBeGivenUp({"STOR:5=stall", "APPE=stall"}, europe);
    expectFailure(QStringList{"STOR:5=cut", "APPE=cut"}, europe);
}

TEST_F(UploadFaults, AReplyOfAMegabyteEndsItsStep) {
    for (const char* form : {"megabyte", "longline"}) {
        SCOPED_TRACE(form);
        const auto at = [&](const char* verb) {
            return QStringList{verb + QStringLiteral("=") + form};
        };
        expectFailure(at("PASS"), "Unable to establish a connection to the remote server");
        expectFailure(at("MKD"), "Cannot find nVane folder");
        expectFailure(at("CWD"), "Cannot find nVane folder");
        EXPECT_LT(shell.causes.last().size(), 1000);
        expectFailure(at("STOR"), "Cannot upload " + host("Symbols/sea/wave.png") + " file");
        expectFailure(at("QUIT"), "");
    }
}

TEST_F(UploadFaults, AReplyWithoutEndIsGivenUp) {
    expectFailure("PASS=endless", "Unable to establish a connection to the remote server");
    expectFailure("CWD=endless", "Cannot find nVane folder");
}

TEST_F(UploadFaults, AFileThatWasCutInSilenceIsFoundOut) {
    writeFile(host("Maps/europe.jpg"), QByteArray(500000, 'x'));
    expectFailure("STOR:5=lie", "");  // the second time all of it is kept
    expectFailure(QStringList{"STOR:5=lie", "STOR:6=lie"},
                  "Cannot upload " + host("Maps/europe.jpg") + " file");
}

TEST_F(UploadFaults, AFileThatWasCutIsFoundOutByServersOfOldToo) {
    writeFile(host("Maps/europe.jpg"), QByteArray(500000, 'x'));
    for (const char* without : {"SIZE", "SIZE,MLST,MLSD", "SIZE,MLST,MLSD,RNFR"}) {
        OwnFtpServer old({"--unix", "--without", without, "--fault", "STOR:5=lie"});
        TreeWatcher watcher(old.root(), wholeSite());
        EXPECT_TRUE(run.runUpload(true, old.address())) << without;
        EXPECT_TRUE(old.tree() == wholeSite()) << without;
        if (!QByteArray(without).contains("RNFR")) {
            EXPECT_EQ(watcher.halfFiles(), QStringList()) << without;
        }
        forgetServers();
    }
}

TEST_F(UploadFaults, WhereNothingCanBeAppendedABrokenFileBeginsAnew) {
    writeFile(host("Maps/europe.jpg"), QByteArray(3000000, 'x'));
    server.beginAnew({"STOR:5=cut", "APPE=502 not known"});
    EXPECT_TRUE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.commands().filter("APPE ").size(), 1);
    EXPECT_TRUE(server.tree() == wholeSite());
}

TEST_F(UploadFaults, ABrokenBigFileGoesOnWhereItWasCut) {
    writeFile(host("Maps/europe.jpg"), QByteArray(3000000, 'x'));
    server.beginAnew({"STOR:5=cut"});
    EXPECT_TRUE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.commands().filter("APPE ").size(), 1);
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(UploadFaults, ALocalFileThatVanishedIsToldByItsStep) {
    window.atInfo = [&] { QFile::remove(host("Forecast.js")); };
    shell.expectMessage("Cannot upload " + host("Forecast.js") + " file", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.address()));
    expectAllClosed();
}

TEST_F(UploadFaults, ASettingWithALineEndSendsNoSecondCommand) {
    settings.set(Setting::FtpRemoteFolder, "x\r\nDELE y");
    shell.expectMessage("Cannot find x\r\nDELE y folder", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.address()));
    EXPECT_EQ(server.commands().filter("DELE"), QStringList());
}

}  // namespace nubivane::testing
