// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"
#include "support/other_servers.h"
#include "support/processes.h"
#include "support/texts.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace nubivane::testing {

namespace {

class Sftp : public UploadTest {
  protected:
    Sftp() : home_(qgetenv("HOME")) {
        qputenv("HOME", server.home().toLocal8Bit());
        settings.set(Setting::FtpRemoteFolder, server.root());
    }
    ~Sftp() override { qputenv("HOME", home_); }

    SshServer server;

  private:
    QByteArray home_;
};

class Webdav : public UploadTest {
  protected:
    WebdavServer server;
};

}  // namespace

#define NEED(server)                                       \
    if (!(server).obstacle().isEmpty()) {                  \
        GTEST_SKIP() << (server).obstacle().toStdString(); \
    }

TEST_F(Sftp, AKnownServerHoldsTheSiteAndIsSentOnlyWhatHasChanged) {
    NEED(server)
    server.makeKnown();
    writeFile(host("Maps/caf\xC3\xA9 1.jpg"), QByteArray(700000, 'x'));
    QMap<QString, QByteArray> site = wholeSite();
    site.insert("nVane/Maps/caf\xC3\xA9 1.jpg", QByteArray(700000, 'x'));
    ASSERT_TRUE(run.runUpload(true, server.sftpAddress()));
    EXPECT_TRUE(window.lines.contains("> mkdir \"" + server.root() + "/nVane\""))
        << window.lines.join(u'\n').toStdString();
    EXPECT_EQ(window.lines.filter("> rename ").size(), site.size() + 1);
    EXPECT_TRUE(window.lines.contains("< done"));
    EXPECT_TRUE(server.tree() == site);
    EXPECT_EQ(server.tree().keys(), site.keys());
    ASSERT_TRUE(run.runUpload(true, server.sftpAddress()));
    EXPECT_EQ(run.report().sent, QStringList());
    EXPECT_FALSE(run.report().plain);
    writeFile(host("Forecast.htm"), "a newer page");
    ASSERT_TRUE(run.runUpload(true, server.sftpAddress()));
    EXPECT_EQ(run.report().sent, QStringList{"Forecast.htm"});
    EXPECT_EQ(server.tree().value("nVane/Forecast.htm"), "a newer page");
}

TEST_F(Sftp, AHostKeyThatIsNotKnownIsToldByItsFingerprintAndCanBeTrusted) {
    NEED(server)
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.sftpAddress()));
    EXPECT_EQ(server.everything(), QStringList());
    static const QRegularExpression form(
        "the host key of the server is not known; "
        "its SHA-256 fingerprint is ([0-9A-F:]{95})");
    FtpServer address = server.sftpAddress();
    address.fingerprint = form.match(shell.causes.last()).captured(1);
    ASSERT_NE(address.fingerprint, "") << shell.causes.last().toStdString();
    EXPECT_TRUE(run.runUpload(true, address));
    EXPECT_EQ(server.tree(), wholeSite());
    // Nothing has been written into the person's own list.
    EXPECT_FALSE(QFileInfo::exists(server.home() + "/.ssh/known_hosts"));
    address.fingerprint = QStringLiteral("00").repeated(32);
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, address));
}

TEST_F(Sftp, AHostKeyThatHasChangedIsRefused) {
    NEED(server)
    const SshServer other;
    writeFile(server.home() + "/.ssh/known_hosts",
              "[127.0.0.1]:" + QByteArray::number(server.port()) + ' ' +
                  readFile(other.home() + "/.ssh/id_ed25519.pub"));
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.sftpAddress()));
    EXPECT_TRUE(shell.causes.last().contains("another than before"))
        << shell.causes.last().toStdString();
    EXPECT_EQ(server.everything(), QStringList());
}

TEST_F(Sftp, TheAgentsKeyLetsUsInToo) {
    NEED(server)
    server.makeKnown();
    QProcess agent;
    const QString socket = temporary.file("agent");
    agent.start("ssh-agent", {"-D", "-a", socket});
    ASSERT_TRUE(agent.waitForReadyRead());  // it prints where it listens
    qputenv("SSH_AUTH_SOCK", socket.toLocal8Bit());
    const QString key = server.home() + "/.ssh/id_ed25519";
    EXPECT_EQ(runProgram("ssh-add", {"-q", key}).exitCode, 0);
    QFile::remove(key);
    EXPECT_TRUE(run.runUpload(true, server.sftpAddress())) << shell.causes.join(u' ').toStdString();
    EXPECT_EQ(server.tree(), wholeSite());
    EXPECT_EQ(runProgram("ssh-add", {"-q", "-D"}).exitCode, 0);
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.sftpAddress()));
    qunsetenv("SSH_AUTH_SOCK");
    agent.terminate();
    agent.waitForFinished();
}

TEST_F(Sftp, APasswordLetsUsInWhereThereIsNoKey) {
    const SshServer byPassword(SshLogin::Password);
    NEED(byPassword)
    byPassword.makeKnown();
    qputenv("HOME", byPassword.home().toLocal8Bit());
    QFile::remove(byPassword.home() + "/.ssh/id_ed25519");
    settings.set(Setting::FtpRemoteFolder, byPassword.root());
    FtpServer address = byPassword.sftpAddress();
    address.password = FtpPassword;
    EXPECT_TRUE(run.runUpload(true, address)) << shell.causes.join(u' ').toStdString();
    EXPECT_EQ(byPassword.tree(), wholeSite());
    address.password = "wrong";
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, address));
    EXPECT_FALSE(shell.causes.last().contains("wrong"));
}

TEST_F(Sftp, AMissingRemoteFolderIsTold) {
    NEED(server)
    server.makeKnown();
    settings.set(Setting::FtpRemoteFolder, server.file("nowhere"));
    shell.expectMessage("Cannot find " + server.file("nowhere") + " folder", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server.sftpAddress()));
}

TEST_F(Webdav, HoldsTheSiteAndIsSentOnlyWhatHasChanged) {
    NEED(server)
    ASSERT_TRUE(run.runUpload(true, server.rcloneAddress()));
    EXPECT_EQ(server.tree(), wholeSite());
    EXPECT_TRUE(window.lines.contains("> rclone mkdir -- :webdav,...:nVane"))
        << window.lines.join(u'\n').toStdString();
    EXPECT_EQ(window.lines.filter("url="), QStringList()) << "nor a password beside it";
    ASSERT_TRUE(run.runUpload(true, server.rcloneAddress()));
    EXPECT_EQ(run.report().sent, QStringList());
    writeFile(host("Forecast.htm"), "a newer page");
    ASSERT_TRUE(run.runUpload(true, server.rcloneAddress()));
    EXPECT_EQ(run.report().sent, QStringList{"Forecast.htm"});
    EXPECT_EQ(server.tree(), wholeSite());
    EXPECT_EQ(server.everything().filter(".part"), QStringList());
}

TEST_F(Webdav, AFolderOfTheRemoteIsWhereTheSiteGoes) {
    NEED(server)
    QDir().mkpath(server.file("www/site"));
    FtpServer address = server.rcloneAddress();
    address.host += "www";
    settings.set(Setting::FtpRemoteFolder, "site");
    ASSERT_TRUE(run.runUpload(true, address));
    EXPECT_TRUE(QFileInfo::exists(server.file("www/site/nVane/Forecast.htm")));
    settings.set(Setting::FtpRemoteFolder, "nowhere");
    shell.expectMessage("Cannot find nowhere folder", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, address));
}

TEST_F(Webdav, ARemoteThatIsNotThereIsToldInItsOwnWords) {
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, {"rclone:no-such-remote:folder"}));
    EXPECT_TRUE(shell.causes.last().contains("no-such-remote") ||
                shell.causes.last().contains("not installed"))
        << shell.causes.last().toStdString();
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, {"rclone:folder"}));
    EXPECT_EQ(shell.causes.last(), "\"folder\" names no remote of rclone");
}

TEST_F(Webdav, AnOptionInThePlaceOfARemoteIsNone) {
    NEED(server)
    shell.expectMessage(NoConnection, Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, {"rclone:--config=/dev/null:x"}));
}

TEST_F(Webdav, ACancelEndsWhatRcloneDoes) {
    NEED(server)
    QElapsedTimer since;
    window.atInfo = [&] {
        if (!since.isValid() && !window.infos.filter("Creating folder").isEmpty()) {
            since.start();
            run.cancel();
        }
    };
    shell.expectMessage("Operation stopped by the user.", Icon::Exclamation);
    EXPECT_FALSE(run.runUpload(true, server.rcloneAddress()));
    EXPECT_FALSE(server.tree().contains("nVane/Forecast.htm"));
}

}  // namespace nubivane::testing
