// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"
#include "engine/upload/keyring.h"
#include "engine/upload/site_manifest.h"
#include "support/ftp_servers.h"
#include "support/keyring_session.h"

namespace nubivane::testing {

namespace {

class UploadCommand : public CliTest {
  protected:
    UploadCommand() {
        set("Ftp", "nubivane folder", "nVane");
        writeFile(beside("password"), QByteArray(FtpPassword) + "\nnot this line\n");
    }

    void set(const QString& group, const QString& key, const QString& value) const {
        const QString section =
            QStringLiteral("Nubivane\\6.0.0\\Settings") + (group == u"Upload" ? "\\Ftp" : "");
        EXPECT_EQ(run({"settings", "set", section, group, key, value}).exitCode, 0);
    }
    QByteArray get(const QString& group, const QString& key) const {
        const QString section =
            QStringLiteral("Nubivane\\6.0.0\\Settings") + (group == u"Upload" ? "\\Ftp" : "");
        return run({"settings", "get", section, group, key, "none"}).out.trimmed();
    }

    /// The options that name a server.
    QStringList to(const FtpServerProcess& server) const {
        return {"--host",       "127.0.0.1", "--port",          QString::number(server.port()),
                "--user",       FtpUser,     "--password-file", beside("password"),
                "--encryption", "none"};
    }

    /// What the page needs, by path on the server.
    QMap<QString, QByteArray> site() const {
        QMap<QString, QByteArray> files;
        QDirIterator entries(programFolder(), QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            files.insert("nVane/" + QDir(programFolder()).relativeFilePath(path), readFile(path));
        }
        return files;
    }
};

constexpr char InClear[] = "The password travels in clear: encryption is switched off.\n";
constexpr char NoConnection[] = "Unable to establish a connection to the remote server\n";

}  // namespace

TEST_F(UploadCommand, AnInitialisationSendsTheWholeSite) {
    OwnFtpServer server;
    const QString project = useSoundProject();
    ASSERT_EQ(run({"page", project}).exitCode, 0);
    const ProcessResult result = run(QStringList{"upload", project, "--initialize"} + to(server));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, InClear);
    EXPECT_EQ(server.tree(), site());
    EXPECT_EQ(get("Upload", "initialized"), "1");
    EXPECT_EQ(get("Upload", "symbols"), "2");
    EXPECT_EQ(get("Upload", "maps"), "2");
    EXPECT_EQ(get("Upload", "html page"), "2");
}

TEST_F(UploadCommand, ASiteWithoutAPageIsSentAndTold) {
    OwnFtpServer server;
    const QString project = useSoundProject();
    run({"settings", "set", "Nubivane\\6.0.0\\Settings", "Html page", "Filename", "weather"});
    ASSERT_EQ(run({"page", project}).exitCode, 0);
    set("Upload", "html page", "1");
    const ProcessResult result = run(QStringList{"upload", project} + to(server));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.err.startsWith(InClear +
                                      QByteArray("The site that was sent has no page.\n"
                                                 "  There is no ") +
                                      host("Forecast.htm").toUtf8()))
        << result.err.toStdString();
    set("Upload", "html page", "0");
    set("Upload", "maps", "1");
    EXPECT_EQ(run(QStringList{"upload", project} + to(server)).err, InClear);
}

TEST_F(UploadCommand, OtherwiseTheSettingsChoose) {
    OwnFtpServer server;
    const QString project = useSoundProject();
    ASSERT_EQ(run({"page", project}).exitCode, 0);
    set("Upload", "html page", "1");
    EXPECT_EQ(run(QStringList{"upload", project} + to(server)).exitCode, 0);
    EXPECT_EQ(server.tree().keys(),
              QStringList({"nVane/Forecast.htm", "nVane/Forecast.js", "nVane/Web/Forecast1.jpg",
                           "nVane/Web/Forecast2.jpg"}));
    EXPECT_EQ(get("Upload", "initialized"), "none");
    EXPECT_EQ(get("Upload", "html page"), "1");
}

TEST_F(UploadCommand, TheSettingsNameTheServerToo) {
    OwnFtpServer server;
    set("Ftp", "url", "127.0.0.1");
    set("Ftp", "username", FtpUser);
    set("Ftp", "password", FtpPassword);
    set("Upload", "symbols", "1");
    const ProcessResult result =
        run({"upload", useSoundProject(), "--port", QString::number(server.port())});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(server.tree().contains("nVane/Symbols/set-1/sun.gif"));
}

TEST_F(UploadCommand, WhatIsMissingIsToldAndSendsNothing) {
    OwnFtpServer server;
    const QString project = useSoundProject();
    const QString port = QString::number(server.port());
    ProcessResult result = run({"upload", project});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "Enter a valid ftp address\n");
    result = run({"upload", project, "--host", "127.0.0.1", "--port", port});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "Enter a valid ftp username\n");
    result = run(QStringList{"upload", project} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "There is no file to upload. Change upload settings and retry\n");
    set("Ftp", "nubivane folder", "");
    result = run(QStringList{"upload", project} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "Enter a valid Nubivane folder\n");
    EXPECT_EQ(server.commands(), QStringList());
}

TEST_F(UploadCommand, AFailureIsToldWithItsCause) {
    OwnFtpServer server({"--fault", "CWD:2=550 not today"});
    ProcessResult result =
        run(QStringList{"upload", useSoundProject(), "--initialize"} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, InClear + QByteArray("Cannot find Web folder\n  550 not today\n"));
    EXPECT_EQ(get("Upload", "initialized"), "none");
}

TEST_F(UploadCommand, NoControlCharacterOfAServerReachesTheTerminal) {
    OwnFtpServer server({"--fault", "CWD:2=550 \x1b[2Jno\x07\x7f\xc2\x85"});
    const ProcessResult result =
        run(QStringList{"upload", useSoundProject(), "--initialize"} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, InClear + QByteArray("Cannot find Web folder\n  550 [2Jno\n"));
}

TEST_F(UploadCommand, NoControlCharacterOfAManifestReachesTheTerminal) {
    OwnFtpServer server({"--unix"});
    const QString project = useSoundProject();
    const QStringList words = QStringList{"upload", project, "--initialize"} + to(server);
    ASSERT_EQ(run(words).exitCode, 0);
    SiteManifest manifest =
        *SiteManifest::fromBytes(readFile(server.file("nVane/.nubivane-manifest")));
    manifest.files.insert(QString::fromUtf8("Maps/\xc2\x9b[2J.jpg"), {1, QByteArray(64, 'a')});
    writeFile(server.file("nVane/.nubivane-manifest"), manifest.toBytes());
    for (const QStringList& form : {QStringList(), QStringList("--json")}) {
        const ProcessResult result = run(words + QStringList{"--delete", "--dry-run"} + form);
        EXPECT_TRUE(result.out.contains("[2J.jpg")) << result.out.toStdString();
        EXPECT_FALSE(result.out.contains("\xc2\x9b")) << result.out.toStdString();
    }
}

TEST_F(UploadCommand, ANameThatCannotBeSentIsNamedAndNoSuccess) {
    OwnFtpServer server;
    writeFile(host("Maps/12:00.jpg"), "x");
    const ProcessResult result =
        run(QStringList{"upload", useSoundProject(), "--initialize"} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.endsWith("Cannot send " + host("Maps/12:00.jpg").toUtf8() +
                                    ": its name holds a colon\n"))
        << result.err.toStdString();
    EXPECT_TRUE(server.tree().contains("nVane/Symbols/set-1/sun.gif"));
}

TEST_F(UploadCommand, TheDesktopsKeyringMayHoldThePassword) {
    const KeyringSession session;
    if (!session.obstacle().isEmpty()) {
        GTEST_SKIP() << session.obstacle().toStdString();
    }
    ASSERT_TRUE(keyring::keep(QStringLiteral("%1@127.0.0.1").arg(FtpUser), FtpPassword));
    OwnFtpServer server;
    QStringList words = QStringList{"upload", useSoundProject(), "--initialize"} + to(server);
    words.removeAt(words.indexOf("--password-file") + 1);
    words.removeAll("--password-file");
    const QStringList surroundings{"DBUS_SESSION_BUS_ADDRESS=" +
                                   qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS")};
    EXPECT_EQ(run(words).exitCode, 1);
    EXPECT_EQ(run(words, {.environment = surroundings}).exitCode, 0);
}

TEST_F(UploadCommand, AnImageThatIsRefusedIsNamedAndNoSuccess) {
    OwnFtpServer server({"--fault", "STOR:6=553 no images today"});
    const QString project = useSoundProject();
    ASSERT_EQ(run({"page", project}).exitCode, 0);
    const ProcessResult result = run(QStringList{"upload", project, "--initialize"} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.contains("Forecast1.jpg: 553 no images today"))
        << result.err.toStdString();
}

TEST_F(UploadCommand, ANewServerIsGivenNoPasswordInClear) {
    OwnFtpServer server;
    const QString project = useSoundProject();
    ASSERT_EQ(run({"page", project}).exitCode, 0);
    QStringList words = QStringList{"upload", project, "--initialize"} + to(server);
    words.resize(words.size() - 2);  // without "--encryption none"
    ProcessResult result = run(words);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(server.commands(), QStringList({"AUTH TLS"}));
    set("Ftp", "url", "127.0.0.1");  // as settings of an older installation have it
    result = run(words);
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.err, "The password travels in clear: the server offers no encryption.\n");
    set("Ftp", "encryption", "2");
    EXPECT_EQ(run(words).exitCode, 1);
}

TEST_F(UploadCommand, AnAcceptedFingerprintIsRemembered) {
    const TestCertificate certificate("another.example", -10, -1);
    OwnFtpServer server({"--certificate", certificate.file});
    const QString project = useSoundProject();
    QStringList words = QStringList{"upload", project, "--initialize"} + to(server);
    words.last() = "required";
    ProcessResult result = run(words);
    EXPECT_EQ(result.exitCode, 1);
    const qsizetype at = result.err.indexOf("fingerprint is ");
    ASSERT_GT(at, 0) << result.err.toStdString();
    const QString fingerprint = QString::fromLatin1(result.err.mid(at + 15, 95));
    EXPECT_EQ(run(words + QStringList{"--accept-fingerprint", "12"}).exitCode, 2);
    result = run(words + QStringList{"--accept-fingerprint", fingerprint});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(run(words).exitCode, 0);
}

TEST_F(UploadCommand, ADryRunAndTheJsonLinesTellWhatIsDone) {
    OwnFtpServer server({"--unix"});
    const QString project = useSoundProject();
    ASSERT_EQ(run({"page", project}).exitCode, 0);
    const QStringList words = QStringList{"upload", project, "--initialize"} + to(server);
    ProcessResult result = run(words + QStringList{"--dry-run"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.out.contains("send\tForecast.htm\n")) << result.out.toStdString();
    EXPECT_EQ(server.everything(), QStringList());
    EXPECT_EQ(get("Upload", "initialized"), "none");
    result = run(words + QStringList{"--json"});
    EXPECT_EQ(result.exitCode, 0);
    for (const QByteArray& line : result.out.trimmed().split('\n')) {
        EXPECT_TRUE(QJsonDocument::fromJson(line).isObject()) << line.toStdString();
    }
    EXPECT_TRUE(result.out.contains("\"event\":\"done\""));
    result = run(words + QStringList{"--verbose"});
    EXPECT_TRUE(result.err.contains("> PASS ****\n")) << result.err.toStdString();
    EXPECT_FALSE(result.err.contains(FtpPassword));
}

TEST_F(UploadCommand, ThePasswordMayStandInTheEnvironment) {
    OwnFtpServer server;
    const QStringList words{"upload",
                            useSoundProject(),
                            "--initialize",
                            "--encryption",
                            "none",
                            "--host",
                            "127.0.0.1:" + QString::number(server.port()),
                            "--user",
                            FtpUser};
    EXPECT_EQ(
        run(words, {.environment = {QStringLiteral("NUBIVANE_PASSWORD=") + FtpPassword}}).exitCode,
        0);
    EXPECT_EQ(run(words).exitCode, 1);
    QStringList elsewhere = words;
    elsewhere[6] = "127.0.0.1/folder";
    EXPECT_EQ(run(elsewhere).exitCode, 2);
}

TEST_F(UploadCommand, AWrongPasswordIsToldWithoutShowingIt) {
    OwnFtpServer server;
    writeFile(beside("password"), "hunter2");
    const ProcessResult result =
        run(QStringList{"upload", useSoundProject(), "--initialize"} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.startsWith(NoConnection)) << result.err.toStdString();
    EXPECT_FALSE(result.err.contains("hunter2"));
}

TEST_F(UploadCommand, APasswordFileThatCannotBeReadIsAFailure) {
    OwnFtpServer server;
    QFile::remove(beside("password"));
    const ProcessResult result =
        run(QStringList{"upload", useSoundProject(), "--initialize"} + to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err, "");
    EXPECT_EQ(server.commands(), QStringList());
}

TEST_F(UploadCommand, APasswordFileMayEndItsLineAsItLikes) {
    for (const char* end : {"", "\n", "\r\n"}) {
        OwnFtpServer server;
        writeFile(beside("password"), QByteArray(FtpPassword) + end);
        EXPECT_EQ(
            run(QStringList{"upload", useSoundProject(), "--initialize"} + to(server)).exitCode, 0);
        QFile::remove(beside("project.nvpf"));
        QFile::remove(beside("project.nvpx"));
    }
}

TEST_F(UploadCommand, APortThatIsNoneIsWrongUsage) {
    for (const char* port : {"0", "65536", "-1", "ftp", "21a", ""}) {
        const ProcessResult result = run({"upload", "a.nvpf", "--port", port});
        EXPECT_EQ(result.exitCode, 2) << port;
        EXPECT_EQ(result.err,
                  QByteArray("nubivane-cli: --port takes a number from 1 to 65535, not \"") + port +
                      "\"\n  see nubivane-cli --help\n");
    }
}

TEST_F(UploadCommand, ADamagedProjectSendsNothing) {
    OwnFtpServer server;
    const ProcessResult result = run(
        QStringList{"upload", useProject("engine/project/defects/not-xml.nvpf"), "--initialize"} +
        to(server));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.contains(DamagedText)) << result.err.toStdString();
    EXPECT_EQ(server.commands(), QStringList());
}

}  // namespace nubivane::testing
