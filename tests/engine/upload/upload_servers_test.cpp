// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_fixture.h"

namespace nubivane::testing {

namespace {

/// A whole upload to a server of each kind.
class UploadServers : public UploadTest, public ::testing::WithParamInterface<const char*> {
  protected:
    std::unique_ptr<FtpServerProcess> start(bool tls = false) const {
        const QString kind = QLatin1String(GetParam());
        if (kind == u"own") {
            return std::make_unique<OwnFtpServer>();
        }
        if (kind == u"slashes") {
            return std::make_unique<OwnFtpServer>(QStringList{"--unix"});
        }
        return std::make_unique<RealFtpServer>(kind, tls);
    }

    void addAwkwardNames() {
        for (const char* file : {"Symbols/two words/a b.gif", "Symbols/set-1/100%#;=.gif",
                                 "Symbols/set-1/caf\xC3\xA9.gif", "Maps/the sea's.jpg"}) {
            writeFile(host(QString::fromUtf8(file)), file);
        }
    }

    QMap<QString, QByteArray> awkwardSite() const {
        QMap<QString, QByteArray> files = wholeSite();
        for (const char* file : {"Symbols/two words/a b.gif", "Symbols/set-1/100%#;=.gif",
                                 "Symbols/set-1/caf\xC3\xA9.gif", "Maps/the sea's.jpg"}) {
            files.insert("nVane/" + QString::fromUtf8(file), file);
        }
        return files;
    }

    /// So many that they are sent ahead of their names; by path on the server.
    QMap<QString, QByteArray> addManyFiles() const {
        QMap<QString, QByteArray> files;
        for (int i = 0; i < 50; ++i) {
            const QString name = QStringLiteral("Symbols/many %1/s%2.gif").arg(i % 2).arg(i);
            writeFile(host(name), QByteArray::number(i));
            files.insert("nVane/" + name, QByteArray::number(i));
        }
        return files;
    }
};

}  // namespace

TEST_P(UploadServers, HoldManySmallFiles) {
    const auto server = start();
    if (!server->obstacle().isEmpty()) {
        GTEST_SKIP() << server->obstacle().toStdString();
    }
    QMap<QString, QByteArray> site = addManyFiles();
    site.insert(wholeSite());
    EXPECT_TRUE(run.runUpload(true, server->address()));
    EXPECT_TRUE(server->tree() == site);
    // Again, onto what is there.
    EXPECT_TRUE(run.runUpload(true, server->address(), {.all = true}));
    EXPECT_TRUE(server->tree() == site);
    EXPECT_EQ(server->everything().filter(".part"), QStringList());
}

TEST_P(UploadServers, HoldTheTreeThatThePageNeeds) {
    const auto server = start();
    if (!server->obstacle().isEmpty()) {
        GTEST_SKIP() << server->obstacle().toStdString();
    }
    addAwkwardNames();
    QByteArray large;
    for (unsigned i = 0; i < 2000000; ++i) {
        large += static_cast<char>(i * 7919 >> 7);
    }
    writeFile(host("Maps/europe.jpg"), large);
    EXPECT_TRUE(run.runUpload(true, server->address()));
    EXPECT_TRUE(server->tree() == awkwardSite());
    EXPECT_EQ(server->tree().keys(), awkwardSite().keys());
    // Again, onto what is there.
    writeFile(host("Forecast.htm"), "a newer page");
    EXPECT_TRUE(run.runUpload(true, server->address()));
    EXPECT_TRUE(server->tree() == awkwardSite());
}

TEST_P(UploadServers, AMissingRemoteFolderIsTold) {
    const auto server = start();
    if (!server->obstacle().isEmpty()) {
        GTEST_SKIP() << server->obstacle().toStdString();
    }
    settings.set(Setting::FtpRemoteFolder, "nowhere");
    shell.expectMessage("Cannot find nowhere folder", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, server->address()));
    EXPECT_EQ(server->tree(), (QMap<QString, QByteArray>()));
}

INSTANTIATE_TEST_SUITE_P(Kinds, UploadServers,
                         ::testing::Values("own", "slashes", "pyftpdlib", "vsftpd", "pure-ftpd",
                                           "proftpd"),
                         [](const auto& test) {
                             return QString(test.param).remove('-').toStdString();
                         });

namespace {

class UploadEncryption : public UploadServers {};
class VerifiedEncryption : public UploadServers {};
class EncryptionVersion : public UploadServers {};

}  // namespace

TEST_P(VerifiedEncryption, IsUsedForTheWholeUpload) {
    const RealFtpServer server(QLatin1String(GetParam()), true);
    if (!server.obstacle().isEmpty()) {
        GTEST_SKIP() << server.obstacle().toStdString();
    }
    FtpOptions trusting = testLimits();
    trusting.certificates = server.certificate();
    UploadRun trustingRun(editor(), window, trusting);
    QMap<QString, QByteArray> site = addManyFiles();
    site.insert(wholeSite());
    EXPECT_TRUE(trustingRun.runUpload(true, server.address()));
    EXPECT_TRUE(server.tree() == site);
    if (QLatin1String(GetParam()) != QLatin1String("pure-ftpd")) {  // which takes nothing else
        EXPECT_TRUE(server.log().contains("PROT")) << server.log().toStdString();
    }
}

TEST_P(EncryptionVersion, OfAServerThatWantsOneSessionIsSpoken) {
    const RealFtpServer server("vsftpd", true, QLatin1String(GetParam()));
    if (!server.obstacle().isEmpty()) {
        GTEST_SKIP() << server.obstacle().toStdString();
    }
    FtpOptions trusting = testLimits();
    trusting.certificates = server.certificate();
    UploadRun trustingRun(editor(), window, trusting);
    FtpServer address = server.address();
    address.encryption = Encryption::Required;
    EXPECT_TRUE(trustingRun.runUpload(true, address)) << shell.causes.join(u' ').toStdString();
    EXPECT_TRUE(server.tree() == wholeSite());
}

INSTANTIATE_TEST_SUITE_P(Versions, EncryptionVersion, ::testing::Values("TLSv1.2", "TLSv1.3"),
                         [](const auto& test) {
                             return QString(test.param).remove('.').toStdString();
                         });

TEST_P(UploadEncryption, UnderACertificateThatDoesNotVerifyNothingIsSent) {
    const RealFtpServer server(QLatin1String(GetParam()), true);
    if (!server.obstacle().isEmpty()) {
        GTEST_SKIP() << server.obstacle().toStdString();
    }
    const WireTap tap(server);
    shell.expectMessage("Unable to establish a connection to the remote server", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, tap.address()));
    EXPECT_NE(shell.causes.last(), "");
    EXPECT_EQ(server.tree(), (QMap<QString, QByteArray>()));
    EXPECT_FALSE(tap.sent().contains("USER")) << tap.sent().toStdString();
    EXPECT_FALSE(tap.sent().contains("PASS")) << tap.sent().toStdString();
}

// pyftpdlib closes a data connection on which the client's greeting comes before the command that
// is to use it (readable() of its DTPHandler, 1.5.7).
INSTANTIATE_TEST_SUITE_P(Kinds, VerifiedEncryption,
                         ::testing::Values("pyftpdlib", "vsftpd", "pure-ftpd"),
                         [](const auto& test) {
                             return QString(test.param).remove('-').toStdString();
                         });

INSTANTIATE_TEST_SUITE_P(Kinds, UploadEncryption, ::testing::Values("pyftpdlib", "vsftpd"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace nubivane::testing
