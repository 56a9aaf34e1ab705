// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/server_memory.h"
#include "engine/upload/site_manifest.h"
#include "engine/upload/upload_fixture.h"

#include <QDirIterator>
#include <QRegularExpression>

#include <filesystem>
#include <fstream>

namespace nubivane::testing {

namespace {

/// Uploads to a server that parts names by slashes, as most do.
class SiteUploads : public UploadTest {
  protected:
    bool upload(const FtpServerProcess& server, const UploadWishes& wishes = {}) {
        return run.runUpload(true, server.address(), wishes);
    }

    static QStringList stored(const OwnFtpServer& server) {
        return server.commands().filter(QRegularExpression("^STOR "));
    }

    /// How many commands came since there were `before`, the farewell not counted.
    static qsizetype since(const OwnFtpServer& server, qsizetype before) {
        const QStringList commands = server.commands().mid(before);
        return commands.size() - commands.count("QUIT");
    }
};

const QStringList Unix{"--unix"};

}  // namespace

TEST(SiteManifests, AreTheSameWhenReadAgain) {
    SiteManifest manifest;
    manifest.files.insert("Web/Forecast 1.jpg", {12, QByteArray(64, 'a')});
    manifest.files.insert(QString::fromUtf8("Symbols/set/caf\xC3\xA9.gif"),
                          {0, QByteArray(64, '0')});
    const QByteArray bytes = manifest.toBytes();
    ASSERT_TRUE(SiteManifest::fromBytes(bytes));
    EXPECT_EQ(SiteManifest::fromBytes(bytes)->files, manifest.files);
}

TEST(SiteManifests, ThatWereCutOrChangedAreNone) {
    SiteManifest manifest;
    manifest.files.insert("a.htm", {12, QByteArray(64, 'a')});
    const QByteArray bytes = manifest.toBytes();
    for (qsizetype size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(SiteManifest::fromBytes(bytes.first(size))) << size;
    }
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        QByteArray changed = bytes;
        changed[i] = static_cast<char>(changed.at(i) ^ 1);
        EXPECT_FALSE(SiteManifest::fromBytes(changed)) << i;
    }
}

TEST(SiteManifests, NamesThatLeaveTheFolderAreRefused) {
    for (const char* name : {"../x", "/x", "a//b", "a/..", "", "a\\b", "."}) {
        EXPECT_FALSE(SiteManifest::isName(name)) << name;
    }
    EXPECT_TRUE(SiteManifest::isName("a/b c.gif"));
}

TEST_F(SiteUploads, NothingThatIsThereAlreadyIsSentAgain) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    const qsizetype before = server.commands().size();
    ASSERT_TRUE(upload(server));
    EXPECT_LE(since(server, before), 10) << server.commands().mid(before).join(u'\n').toStdString();
    EXPECT_EQ(server.commands().mid(before).filter("STOR"), QStringList());
    EXPECT_EQ(run.report().unchanged, 9);
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(SiteUploads, OfManyFoldersOnlyThoseThatHaveChangedAreListed) {
    for (int i = 0; i < 30; ++i) {
        writeFile(host(QStringLiteral("Symbols/set %1/a.gif").arg(i)), QByteArray::number(i));
    }
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    qsizetype before = server.commands().size();
    ASSERT_TRUE(upload(server));
    EXPECT_LE(since(server, before), 10) << server.commands().mid(before).join(u'\n').toStdString();
    EXPECT_EQ(run.report().unchanged, 39);
    writeFile(host("Symbols/set 7/a.gif"), "x");
    before = server.commands().size();
    ASSERT_TRUE(upload(server));
    EXPECT_LE(since(server, before), 20) << server.commands().mid(before).join(u'\n').toStdString();
    EXPECT_EQ(run.report().sent, QStringList{"Symbols/set 7/a.gif"});
    before = server.commands().size();
    ASSERT_TRUE(upload(server));
    EXPECT_LE(since(server, before), 10) << server.commands().mid(before).join(u'\n').toStdString();
    // A folder's time is told in seconds.
    const QString folder = server.file("nVane/Symbols/set 3");
    QFile::remove(folder + "/a.gif");
    const auto later = std::filesystem::file_time_type::clock::now() + std::chrono::seconds(5);
    std::filesystem::last_write_time(folder.toStdString(), later);
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent, QStringList{"Symbols/set 3/a.gif"});
    QDir(server.file("nVane/Symbols/set 9")).removeRecursively();
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent, QStringList{"Symbols/set 9/a.gif"});
}

TEST_F(SiteUploads, InManyFoldersAFileThatWasCutInItsPlaceIsFoundInTheEnd) {
    for (int i = 0; i < 3; ++i) {
        writeFile(host(QStringLiteral("Symbols/set %1/a.gif").arg(i)), "content");
    }
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    writeFile(server.file("nVane/Symbols/set 2/a.gif"), "cut");
    constexpr int surelyEnough = 200;
    int runs = 0;
    while (run.report().sent != QStringList{"Symbols/set 2/a.gif"} && runs < surelyEnough) {
        ASSERT_TRUE(upload(server));
        ++runs;
    }
    EXPECT_LT(runs, surelyEnough);
}

TEST_F(SiteUploads, OneChangedFileIsSentAlone) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    const qsizetype before = server.commands().size();
    writeFile(host("Maps/europe.jpg"), "of the same size!!!!!!!!!!!!");
    ASSERT_TRUE(upload(server));
    EXPECT_LE(since(server, before), 20) << server.commands().mid(before).join(u'\n').toStdString();
    EXPECT_EQ(run.report().sent, QStringList({"Maps/europe.jpg"}));
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(SiteUploads, WhatWasChangedOrRemovedOnTheServerIsSentAnew) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    writeFile(server.file("nVane/Symbols/set-1/sun.gif"), "cut");
    QFile::remove(server.file("nVane/Web/Forecast1.jpg"));
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent.size(), 2);
    EXPECT_EQ(server.tree(), wholeSite());
    QDir(server.file("nVane/Symbols")).removeRecursively();
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(server.tree(), wholeSite());
    QDir(server.file("nVane")).removeRecursively();
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(SiteUploads, AllIsSentWhenAllIsWished) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    ASSERT_TRUE(upload(server, {.all = true}));
    EXPECT_EQ(run.report().sent.size(), 9);
    EXPECT_EQ(run.report().unchanged, 0);
}

TEST_F(SiteUploads, AnotherMachineGoesByTheManifestBesideTheSite) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    qputenv("XDG_STATE_HOME", temporary.file("other").toLocal8Bit());
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent, QStringList());
    writeFile(host("Forecast.htm"), "the page of another machine");
    ASSERT_TRUE(upload(server));
    // The first machine sees that its memory is no longer true.
    qputenv("XDG_STATE_HOME", temporary.file("state").toLocal8Bit());
    writeFile(host("Forecast.htm"), "content of Forecast.htm");
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent, QStringList({"Forecast.htm"}));
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(SiteUploads, ADamagedManifestOrMemorySendsAll) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    QDirIterator memories(ServerMemory::folder(), QDir::Files, QDirIterator::Subdirectories);
    ASSERT_TRUE(memories.hasNext());
    writeFile(memories.next(), "nubivane-server 1\n\nnonsense");
    writeFile(server.file("nVane/.nubivane-manifest"), "nubivane-manifest 1\nend x\n");
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent.size(), 9);
    EXPECT_EQ(server.tree(), wholeSite());
}

TEST_F(SiteUploads, WhatIsGoneIsRemovedOnlyWhenThatIsWished) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    writeFile(server.file("nVane/Symbols/set-1/own.gif"), "a person's own");
    QFile::remove(host("Symbols/set-1/sun.gif"));
    ASSERT_TRUE(upload(server));
    EXPECT_TRUE(server.tree().contains("nVane/Symbols/set-1/sun.gif"));
    ASSERT_TRUE(upload(server, {.removeGone = true}));
    EXPECT_EQ(run.report().removed, QStringList({"Symbols/set-1/sun.gif"}));
    EXPECT_FALSE(server.tree().contains("nVane/Symbols/set-1/sun.gif"));
    EXPECT_TRUE(server.tree().contains("nVane/Symbols/set-1/own.gif"));
}

TEST_F(SiteUploads, ADryRunTellsAndChangesNothing) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server, {.dryRun = true}));
    EXPECT_EQ(run.report().sent.size(), 9);
    EXPECT_EQ(server.everything(), QStringList());
    ASSERT_TRUE(upload(server));
    const QStringList everything = server.everything();
    writeFile(host("Forecast.js"), "new");
    ASSERT_TRUE(upload(server, {.dryRun = true}));
    EXPECT_EQ(run.report().sent, QStringList({"Forecast.js"}));
    EXPECT_EQ(server.everything(), everything);
    EXPECT_NE(server.tree(), wholeSite());
}

TEST_F(SiteUploads, LeftoversOfADeadRunAreRemovedAndNothingOfAPerson) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    writeFile(server.file("nVane/Maps/nubivane-upload-0123456789ab-3.part"), "half");
    writeFile(server.file("nVane/Maps/notes.part"), "a person's own");
    ASSERT_TRUE(upload(server));
    EXPECT_FALSE(QFileInfo::exists(server.file("nVane/Maps/nubivane-upload-0123456789ab-3.part")));
    EXPECT_TRUE(QFileInfo::exists(server.file("nVane/Maps/notes.part")));
}

TEST_F(SiteUploads, LeftoversOfGroupsThatAreNoLongerSentAreRemovedToo) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    writeFile(host("Maps/europe.jpg"), QByteArray(300000, 'x'));
    server.beginAnew({"STOR=drop"});
    shell.expectMessage("Cannot upload " + host("Maps/europe.jpg") + " file", Icon::Critical);
    EXPECT_FALSE(upload(server, {.retries = 0}));
    const QString left = server.file("nVane/Maps/nubivane-upload-0123456789ab-3.part");
    writeFile(left, "as that run would have left it");
    server.beginAnew({});
    choose(false, false, true);
    ASSERT_TRUE(run.runUpload(false, server.address(), {}));
    EXPECT_FALSE(QFileInfo::exists(left));
    server.beginAnew({});
    ASSERT_TRUE(run.runUpload(false, server.address(), {}));
    EXPECT_EQ(server.commands().filter("nVane/Maps"), QStringList()) << "it is done with";
}

TEST_F(SiteUploads, EverythingIsSentOnceWhereThatWasAskedFor) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    ServerMemory memory(ServerMemory::placeOf(server.address(), settings));
    ASSERT_TRUE(memory.known);
    memory.everything = true;
    memory.save();
    ASSERT_TRUE(upload(server, {.dryRun = true}));
    EXPECT_EQ(run.report().sent.size(), 9);
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent.size(), 9);
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(run.report().sent.size(), 0);
}

TEST_F(SiteUploads, TheViewIsToldHowMuchThereIsToSendAndWhatIsSaid) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    writeFile(host("Forecast.js"), "12345");
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(window.chosen.last(), "1 of 9, 5 bytes");
    const QString lines = window.lines.join(u'\n');
    EXPECT_TRUE(lines.contains("> PASS ****\n")) << lines.toStdString();
    EXPECT_TRUE(lines.contains("< 250 renamed")) << lines.toStdString();
    EXPECT_FALSE(lines.contains(FtpPassword));
}

TEST_F(SiteUploads, NamesThatCannotBeSentAreListed) {
    writeFile(host("Maps/two\nlines.jpg"), "x");
    writeFile(host("Maps/back\\slash.jpg"), "x");
    writeFile(host("Symbols/set-1/12:00.gif"), "x");
    const QByteArray bytes = host("Maps/").toUtf8() + "\xFF.jpg";
    std::ofstream(bytes.toStdString()) << "x";
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    const QStringList expected{host("Maps/\\x0A").chopped(4) + "\\xFF.jpg: its name is no UTF-8",
                               host("Maps/back\\slash.jpg: its name holds a backslash"),
                               host("Maps/two\\x0Alines.jpg: its name holds a line end"),
                               host("Symbols/set-1/12:00.gif: its name holds a colon")};
    EXPECT_EQ(run.report().unsendable, expected);
    EXPECT_EQ(window.unsendable, expected);
    EXPECT_EQ(server.tree(), wholeSite());
    choose(false, false, true);
    ASSERT_TRUE(run.runUpload(false, server.address(), {}));
    EXPECT_EQ(run.report().unsendable, QStringList()) << "of groups that are not sent";
}

TEST_F(SiteUploads, AFailedRunLeavesNoHalfFileAndTheNextSendsTheRest) {
    writeFile(host("Maps/europe.jpg"), QByteArray(300000, 'x'));
    OwnFtpServer server({"--unix", "--fault", "STOR:5=452"});
    shell.expectMessage("Cannot upload " + host("Maps/europe.jpg") + " file", Icon::Critical);
    EXPECT_FALSE(upload(server));
    EXPECT_FALSE(QFileInfo::exists(server.file("nVane/Maps/europe.jpg")));
    EXPECT_EQ(server.everything().filter(".part"), QStringList());
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(server.tree(), wholeSite());
    EXPECT_LT(run.report().sent.size(), 9);
}

TEST_F(SiteUploads, ManyFilesGoOverSeveralConnectionsAndFewerWhereTheServerWantsFewer) {
    for (int i = 0; i < 60; ++i) {
        writeFile(host(QStringLiteral("Symbols/set-1/s%1.gif").arg(i)), QByteArray::number(i));
    }
    {
        OwnFtpServer server({"--unix", "--delay", "0.005"});
        ASSERT_TRUE(upload(server));
        EXPECT_EQ(server.connections(), 4);
        EXPECT_EQ(server.tree().size(), 69);
    }
    for (const char* most : {"1", "2"}) {
        OwnFtpServer server({"--unix", "--most", most, "--delay", "0.005"});
        ASSERT_TRUE(upload(server)) << most;
        EXPECT_EQ(server.tree().size(), 69) << most;
        EXPECT_EQ(server.everything().filter(".part"), QStringList()) << most;
    }
    OwnFtpServer server;  // takes backslashes
    ASSERT_TRUE(upload(server));
    EXPECT_EQ(server.connections(), 1);
    EXPECT_EQ(server.tree().size(), 69);
}

TEST_F(SiteUploads, PagesComeAfterAllTheyShow) {
    OwnFtpServer server(Unix);
    ASSERT_TRUE(upload(server));
    const QStringList renamed = server.commands().filter(QRegularExpression("^RNTO "));
    ASSERT_GE(renamed.size(), 3);
    EXPECT_EQ(renamed.mid(renamed.size() - 3),
              QStringList({"RNTO Forecast.js", "RNTO Forecast.htm", "RNTO .nubivane-manifest"}));
}

TEST_F(SiteUploads, ServersOfOldAndThoseThatRenameNothingAreServed) {
    const QList<QStringList> kinds{{"--unix", "--old"},
                                   {"--dos"},
                                   {"--unix", "--without", "RNFR,RNTO"},
                                   {"--unix", "--without", "SIZE,MLSD,REST"}};
    for (const QStringList& kind : kinds) {
        OwnFtpServer server(kind);
        const std::string trace = kind.join(u' ').toStdString();
        EXPECT_TRUE(upload(server)) << trace;
        EXPECT_EQ(server.tree(), wholeSite()) << trace;
        writeFile(host("Forecast.htm"), "a newer page");
        EXPECT_TRUE(upload(server)) << trace;
        EXPECT_EQ(server.tree(), wholeSite()) << trace;
        writeFile(host("Forecast.htm"), "content of Forecast.htm");
    }
}

TEST_F(SiteUploads, AFolderOfThisMachineIsATargetToo) {
    QDir().mkpath(temporary.file("www"));
    const FtpServer folder{"file:" + temporary.file("www")};
    ASSERT_TRUE(run.runUpload(true, folder));
    const QMap<QString, QByteArray> site = wholeSite();
    for (auto file = site.cbegin(); file != site.cend(); ++file) {
        EXPECT_EQ(readFile(temporary.file("www/" + file.key())), *file) << file.key().toStdString();
    }
    ASSERT_TRUE(run.runUpload(true, folder));
    EXPECT_EQ(run.report().unchanged, 9);
    shell.expectMessage("Unable to establish a connection to the remote server", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, {"file:" + temporary.file("nowhere")}));
}

TEST_F(SiteUploads, WithoutEncryptionALoginIsRefusedOrTold) {
    OwnFtpServer server(Unix);
    FtpServer address = server.address();
    address.encryption = Encryption::Required;
    shell.expectMessage("Unable to establish a connection to the remote server", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, address));
    EXPECT_EQ(server.commands(), QStringList({"AUTH TLS"}));
    EXPECT_FALSE(window.openLock);
    EXPECT_TRUE(run.runUpload(true, server.address()));
    EXPECT_TRUE(window.openLock);
}

TEST_F(SiteUploads, ATrustedFingerprintStandsForACertificateThatDoesNotVerify) {
    const TestCertificate certificate("another.example", -10, -1);
    OwnFtpServer server({"--unix", "--certificate", certificate.file, "--patient"});
    FtpServer address = server.address();
    address.encryption = Encryption::Required;
    shell.expectMessage("Unable to establish a connection to the remote server", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, address));
    static const QRegularExpression form("fingerprint is ([0-9A-F:]{95})");
    address.fingerprint = form.match(shell.causes.last()).captured(1);
    EXPECT_NE(address.fingerprint, "");
    EXPECT_TRUE(run.runUpload(true, address));
    EXPECT_EQ(server.tree(), wholeSite());
    address.fingerprint = QStringLiteral("00").repeated(32);
    shell.expectMessage("Unable to establish a connection to the remote server", Icon::Critical);
    EXPECT_FALSE(run.runUpload(true, address));
}

}  // namespace nubivane::testing
