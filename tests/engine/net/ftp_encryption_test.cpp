// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_transfer.h"
#include "support/ftp_servers.h"

namespace nubivane::testing {

namespace {

/// A server that offers encryption, with a tap on its wire.
class Encryption : public ::testing::Test {
  protected:
    /// Whether a login succeeds; what crossed the wire is in `wire`.
    bool connects(const QString& certificate, const QString& trusted = {},
                  const QStringList& options = {}) {
        OwnFtpServer server(QStringList{"--certificate", certificate} + options);
        const WireTap tap(server);
        limits.certificates = trusted;
        ftpTransfer transfer(limits);
        const bool connected = transfer.Connect(tap.address());
        failure = transfer.failure();
        transfer.Disconnect();
        commands = server.commands();
        wire = tap.sent();
        return connected;
    }

    void expectNothingInClear() const {
        EXPECT_FALSE(wire.contains("USER")) << wire.toStdString();
        EXPECT_FALSE(wire.contains("PASS")) << wire.toStdString();
        EXPECT_FALSE(wire.contains(FtpPassword)) << wire.toStdString();
        EXPECT_TRUE(wire.startsWith("AUTH TLS\r\n"));
        EXPECT_FALSE(failure.isEmpty());
    }

    TestCertificate good{"127.0.0.1", -1, 2};
    FtpOptions limits = testLimits();
    QString failure;
    QStringList commands;
    QByteArray wire;
};

}  // namespace

TEST_F(Encryption, TheTapSeesAPasswordInClear) {
    OwnFtpServer server;
    const WireTap tap(server);
    ftpTransfer transfer(testLimits());
    ASSERT_TRUE(transfer.Connect(tap.address()));
    EXPECT_TRUE(tap.sent().contains("PASS secret"));
}

TEST_F(Encryption, DataThatEndWithoutAGoodbyeAreWholeWhenTheServerSaysSo) {
    for (const char* version : {"1.2", "1.3"}) {
        OwnFtpServer server({"--unix", "--certificate", good.file, "--tls", version, "--abrupt"});
        writeFile(server.file("a.txt"), "one");
        limits.certificates = good.publicFile;
        ftpTransfer transfer(limits);
        ASSERT_TRUE(transfer.Connect(server.address())) << version;
        const TemporaryFolder folder;
        const QString target = folder.file("a.txt");
        EXPECT_TRUE(transfer.GetFile("a.txt", QString(target).replace('/', '\\')))
            << version << ": " << transfer.failure().toStdString();
        EXPECT_EQ(readFile(target), "one") << version;
    }
}

TEST_F(Encryption, ATrustedCertificateLogsInUnderBothVersions) {
    for (const char* version : {"1.2", "1.3", "any"}) {
        EXPECT_TRUE(connects(good.file, good.publicFile, {"--tls", version}))
            << version << failure.toStdString();
        EXPECT_TRUE(commands.contains("PASS secret")) << version;
        EXPECT_FALSE(wire.contains(FtpPassword)) << version;
        EXPECT_FALSE(wire.contains("USER")) << version;
    }
}

TEST_F(Encryption, AForeignCertificateGetsNeitherNameNorPassword) {
    for (const char* version : {"1.2", "1.3", "any"}) {
        EXPECT_FALSE(connects(good.file, {}, {"--tls", version})) << version;
        expectNothingInClear();
        EXPECT_EQ(commands.filter("USER"), QStringList()) << version;
    }
}

TEST_F(Encryption, AnExpiredCertificateGetsNeitherNameNorPassword) {
    const TestCertificate expired("127.0.0.1", -10, -1);
    for (const char* version : {"1.2", "1.3"}) {
        EXPECT_FALSE(connects(expired.file, expired.publicFile, {"--tls", version})) << version;
        expectNothingInClear();
    }
}

TEST_F(Encryption, ACertificateOfAnotherHostGetsNeitherNameNorPassword) {
    const TestCertificate other("another.example", -1, 2);
    for (const char* version : {"1.2", "1.3"}) {
        EXPECT_FALSE(connects(other.file, other.publicFile, {"--tls", version})) << version;
        expectNothingInClear();
    }
}

TEST_F(Encryption, AGreetingThatFailsIsNotRepeatedInClear) {
    limits = shortLimits();
    for (const char* fault : {"TLS=drop", "TLS=silent"}) {
        EXPECT_FALSE(connects(good.file, good.publicFile, {"--fault", fault})) << fault;
        expectNothingInClear();
    }
}

TEST_F(Encryption, AListOfCertificatesThatIsNotThereStopsTheLogin) {
    EXPECT_FALSE(connects(good.file, "/nowhere/certificates.pem"));
    EXPECT_FALSE(wire.contains("USER"));
}

}  // namespace nubivane::testing
