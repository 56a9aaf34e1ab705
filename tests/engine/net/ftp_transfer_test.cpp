// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_transfer.h"

#include "support/ftp_servers.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTimer>

namespace nubivane::testing {

namespace {

class Transfer : public ::testing::Test {
  protected:
    QString model(const QString& hostPath) const { return QString(hostPath).replace('/', '\\'); }

    /// Model path of a local file with some content.
    QString local(const QByteArray& content, const QString& name = "local.bin") const {
        writeFile(temporary.file(name), content);
        return model(temporary.file(name));
    }

    TemporaryFolder temporary;
    ftpTransfer transfer{testLimits()};
    ftpTransfer hasty{shortLimits()};
};

}  // namespace

TEST_F(Transfer, AWholeConversationSendsNothingThatIsNotNeeded) {
    OwnFtpServer server;
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_TRUE(transfer.MakeDirectory("Web"));
    EXPECT_TRUE(transfer.ChangeDirectory("Web"));
    EXPECT_TRUE(transfer.PutFile(local("one"), "a.txt"));
    EXPECT_TRUE(transfer.PutFile(local("two"), "b.txt"));
    EXPECT_TRUE(transfer.ChangeDirectory("..\\"));
    transfer.EndTransfer();
    transfer.Disconnect();
    EXPECT_EQ(server.commands(),
              QStringList({"AUTH TLS", "USER user", "PASS secret", "MKD Web", "CWD Web", "TYPE I",
                           "EPSV", "STOR a.txt", "EPSV", "STOR b.txt", "CWD ..\\", "QUIT"}));
    EXPECT_EQ(server.connections(), 1);
    EXPECT_EQ(server.tree(),
              (QMap<QString, QByteArray>{{"Web/a.txt", "one"}, {"Web/b.txt", "two"}}));
}

TEST_F(Transfer, ASizeIsAskedForAsLongAsTheServerKnowsTheCommand) {
    const auto asked = [this](const QString& unknown) {
        OwnFtpServer server({"--unix", "--without", unknown});
        writeFile(server.file("a.txt"), "one");
        EXPECT_TRUE(transfer.Connect(server.address()));
        EXPECT_FALSE(transfer.GetFile("missing.txt", model(temporary.file("b"))));
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(transfer.GetFile("a.txt", model(temporary.file("b"))));
        }
        transfer.Disconnect();
        return server.commands().filter(QRegularExpression("^SIZE ")).size();
    };
    EXPECT_EQ(asked("MLST"), 3) << "a file that is missing says nothing of the command";
    EXPECT_EQ(asked("MLST,SIZE"), 1);
}

TEST_F(Transfer, NamesGoOutAsTheyStandToAServerThatTakesBackslashes) {
    OwnFtpServer server;
    ASSERT_TRUE(transfer.Connect(server.address()));
    transfer.MakeDirectory("Maps");
    EXPECT_TRUE(transfer.ChangeDirectory("Maps"));
    EXPECT_TRUE(transfer.ChangeDirectory("..\\"));
    EXPECT_TRUE(transfer.PutFile(local("x"), "Maps\\x.jpg"));
    EXPECT_TRUE(server.commands().contains("CWD ..\\"));
    EXPECT_TRUE(server.commands().contains("STOR Maps\\x.jpg"));
    EXPECT_EQ(server.tree(), (QMap<QString, QByteArray>{{"Maps/x.jpg", "x"}}));
}

TEST_F(Transfer, ARefusedBackslashIsRepeatedAsASlashOnceAndWrittenSoFromThenOn) {
    OwnFtpServer server({"--unix"});
    ASSERT_TRUE(transfer.Connect(server.address()));
    transfer.MakeDirectory("Maps");
    transfer.ChangeDirectory("Maps");
    EXPECT_TRUE(transfer.ChangeDirectory("..\\"));
    EXPECT_TRUE(transfer.PutFile(local("x"), "Maps\\x.jpg"));
    EXPECT_TRUE(transfer.ChangeDirectory("Maps"));
    EXPECT_TRUE(transfer.ChangeDirectory("..\\"));
    const QStringList commands = server.commands();
    EXPECT_EQ(commands.count("CWD ..\\"), 1);
    EXPECT_EQ(commands.count("CWD ../"), 2);
    EXPECT_TRUE(commands.contains("STOR Maps/x.jpg"));
    EXPECT_EQ(server.tree(), (QMap<QString, QByteArray>{{"Maps/x.jpg", "x"}}));
}

TEST_F(Transfer, AFolderThatIsMissingUnderBothSpellingsSaysNothingOfSeparators) {
    OwnFtpServer server;
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_FALSE(transfer.ChangeDirectory("no\\where"));
    transfer.MakeDirectory("Maps");
    EXPECT_TRUE(transfer.PutFile(local("x"), "Maps\\x.jpg"));
    EXPECT_TRUE(server.commands().contains("STOR Maps\\x.jpg"));
}

TEST_F(Transfer, WhatOneConnectionShowedDoesNotHoldForTheNext) {
    OwnFtpServer slashes({"--unix"});
    ASSERT_TRUE(transfer.Connect(slashes.address()));
    transfer.MakeDirectory("a");
    transfer.ChangeDirectory("a");
    ASSERT_TRUE(transfer.ChangeDirectory("..\\"));
    OwnFtpServer both;
    ASSERT_TRUE(transfer.Connect(both.address()));
    transfer.MakeDirectory("a");
    EXPECT_TRUE(transfer.PutFile(local("x"), "a\\x"));
    EXPECT_TRUE(both.commands().contains("STOR a\\x"));
}

TEST_F(Transfer, OddNamesArriveAsTheyStand) {
    OwnFtpServer server({"--unix"});
    ASSERT_TRUE(transfer.Connect(server.address()));
    for (const char* name : {"a b", "a#b", "a%20b", "a?b", "a;type=i", "~", "+", "&", "[x]",
                             "\xC3\xA8\xE2\x82\xAC", "..x", "x.", "-l"}) {
        const QString text = QString::fromUtf8(name);
        EXPECT_TRUE(transfer.PutFile(local(name), text)) << name;
        EXPECT_TRUE(transfer.MakeDirectory(text + " folder")) << name;
        EXPECT_TRUE(server.commands().contains("STOR " + text)) << name;
        EXPECT_TRUE(server.commands().contains("MKD " + text + " folder")) << name;
        EXPECT_EQ(server.tree().value(text), name);
    }
}

TEST_F(Transfer, ANameThatWouldBeASecondCommandIsNeverSent) {
    OwnFtpServer server;
    ASSERT_TRUE(transfer.Connect(server.address()));
    const QStringList before = server.commands();
    for (const QString& name : {QStringLiteral("x\r\nDELE y"), QStringLiteral("x\ny"),
                                QStringLiteral("\x01"), QStringLiteral("a\x7f")}) {
        EXPECT_FALSE(transfer.MakeDirectory(name));
        EXPECT_FALSE(transfer.ChangeDirectory(name));
        EXPECT_FALSE(transfer.PutFile(local("x"), name));
    }
    EXPECT_FALSE(transfer.MakeDirectory(""));
    EXPECT_FALSE(transfer.ChangeDirectory(""));
    EXPECT_FALSE(transfer.PutFile(local("x"), ""));
    EXPECT_FALSE(transfer.PutFile(local("x"), "folder/"));
    EXPECT_FALSE(transfer.MakeDirectory(QString(100000, u'x')));
    EXPECT_EQ(server.commands(), before);
    EXPECT_TRUE(transfer.PutFile(local("x"), "after"));
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(Transfer, ALoginWithALineEndIsNeverSent) {
    OwnFtpServer server;
    FtpServer address = server.address();
    address.user = "user\r\nDELE y";
    EXPECT_FALSE(transfer.Connect(address));
    address = server.address();
    address.password = "secret\nDELE y";
    EXPECT_FALSE(transfer.Connect(address));
    EXPECT_EQ(server.commands(), QStringList());
}

TEST_F(Transfer, AHostThatIsNoHostIsNotTried) {
    OwnFtpServer server;
    for (const QString& host :
         {QString(), QStringLiteral("  "), QStringLiteral("user@127.0.0.1"),
          QStringLiteral("127.0.0.1/x"), QStringLiteral("127.0.0.1#"), QStringLiteral("a\r\nb")}) {
        FtpServer address = server.address();
        address.host = host;
        EXPECT_FALSE(transfer.Connect(address)) << host.toStdString();
        EXPECT_EQ(transfer.failure(), "the address of the server is not valid");
    }
    for (const int port : {0, -1, 65536}) {
        FtpServer address = server.address();
        address.port = port;
        EXPECT_FALSE(transfer.Connect(address)) << port;
    }
    EXPECT_EQ(server.commands(), QStringList());
}

TEST_F(Transfer, AHostMayHaveBlanksAround) {
    OwnFtpServer server;
    FtpServer address = server.address();
    address.host = " 127.0.0.1 ";
    EXPECT_TRUE(transfer.Connect(address));
}

TEST_F(Transfer, WithoutAUserNameTheLoginIsAnonymous) {
    OwnFtpServer server({"--user", "anonymous", "--password", "anonymous@"});
    EXPECT_TRUE(transfer.Connect({"127.0.0.1", server.port(), "", ""}));
}

TEST_F(Transfer, AWrongPasswordFailsWithTheServersWords) {
    OwnFtpServer server;
    FtpServer address = server.address();
    address.password = "wrong";
    EXPECT_FALSE(transfer.Connect(address));
    EXPECT_TRUE(transfer.failure().contains("530")) << transfer.failure().toStdString();
    EXPECT_FALSE(transfer.failure().contains("wrong"));
    EXPECT_FALSE(transfer.MakeDirectory("x"));
    EXPECT_TRUE(transfer.Connect(server.address()));
}

TEST_F(Transfer, WithoutAConnectionEveryCallFails) {
    EXPECT_FALSE(transfer.MakeDirectory("x"));
    EXPECT_FALSE(transfer.ChangeDirectory("x"));
    EXPECT_FALSE(transfer.PutFile(local("x"), "x"));
    EXPECT_FALSE(transfer.GetFile("x", model(temporary.file("got"))));
    EXPECT_FALSE(transfer.ListDirectory());
    EXPECT_FALSE(transfer.ReadFile("x", 10));
    transfer.EndTransfer();
    transfer.Disconnect();
}

TEST_F(Transfer, ARefusalCostsNeitherConnectionNorFolder) {
    OwnFtpServer server;
    ASSERT_TRUE(transfer.Connect(server.address()));
    transfer.MakeDirectory("Web");
    transfer.ChangeDirectory("Web");
    EXPECT_FALSE(transfer.MakeDirectory("no/where"));
    EXPECT_EQ(transfer.failure(), "550 not made");
    EXPECT_FALSE(transfer.ChangeDirectory("nowhere"));
    EXPECT_FALSE(transfer.PutFile(local("x"), "no/where"));
    EXPECT_TRUE(transfer.failure().contains("553")) << transfer.failure().toStdString();
    EXPECT_FALSE(transfer.GetFile("nowhere", model(temporary.file("got"))));
    EXPECT_TRUE(transfer.PutFile(local("x"), "x"));
    EXPECT_EQ(server.tree(), (QMap<QString, QByteArray>{{"Web/x", "x"}}));
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(Transfer, ALocalFileThatIsMissingIsNotSent) {
    OwnFtpServer server;
    ASSERT_TRUE(transfer.Connect(server.address()));
    const QStringList before = server.commands();
    EXPECT_FALSE(transfer.PutFile(model(temporary.file("nowhere")), "x"));
    EXPECT_FALSE(transfer.PutFile(model(temporary.path()), "x"));
    EXPECT_EQ(server.commands(), before);
}

TEST_F(Transfer, EmptyAndLargeFilesTravelBothWays) {
    OwnFtpServer server;
    QByteArray large;
    for (unsigned i = 0; i < 3000000; ++i) {
        large += static_cast<char>(i * 7919 >> 8);
    }
    ASSERT_TRUE(transfer.Connect(server.address()));
    for (const QByteArray& content : {QByteArray(), QByteArray("\r\n\n\0\xff", 5), large}) {
        ASSERT_TRUE(transfer.PutFile(local(content), "x"));
        EXPECT_TRUE(server.tree().value("x") == content);
        ASSERT_TRUE(transfer.GetFile("x", model(temporary.file("got"))));
        EXPECT_TRUE(readFile(temporary.file("got")) == content);
        EXPECT_TRUE(transfer.ReadFile("x", 5000000) == content);
    }
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(Transfer, ADownloadTellsItsProgressUpToItsEnd) {
    OwnFtpServer server;
    writeFile(server.file("x"), QByteArray(100000, 'x'));
    QList<QPair<qint64, qint64>> seen;
    transfer.progress = [&](qint64 bytes, qint64 total) { seen << qMakePair(bytes, total); };
    ASSERT_TRUE(transfer.Connect(server.address()));
    ASSERT_TRUE(transfer.GetFile("x", model(temporary.file("got"))));
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.last(), qMakePair(qint64{100000}, qint64{100000}));
}

TEST_F(Transfer, ADownloadThatFailsLeavesTheOldFile) {
    for (const char* fault : {"RETR=cut", "RETR=stall", "RETR=550 no", "RETR=drop"}) {
        OwnFtpServer server({"--fault", fault});
        writeFile(server.file("x"), QByteArray(100000, 'x'));
        writeFile(temporary.file("got"), "old");
        ASSERT_TRUE(hasty.Connect(server.address()));
        EXPECT_FALSE(hasty.GetFile("x", model(temporary.file("got")))) << fault;
        EXPECT_EQ(readFile(temporary.file("got")), "old") << fault;
        EXPECT_EQ(QDir(temporary.path()).entryList(QDir::Files), QStringList({"got"})) << fault;
    }
}

TEST_F(Transfer, AFileThatCannotBePutInPlaceFails) {
    OwnFtpServer server;
    writeFile(server.file("x"), "x");
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_FALSE(transfer.GetFile("x", model(temporary.file("no/where"))));
    EXPECT_FALSE(transfer.failure().isEmpty());
    EXPECT_TRUE(transfer.GetFile("x", model(temporary.file("got"))));
}

TEST_F(Transfer, AFileBeyondTheSizeAskedForIsNotRead) {
    OwnFtpServer server;
    writeFile(server.file("x"), QByteArray(1000, 'x'));
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_EQ(transfer.ReadFile("x", 1000).value_or("none").size(), 1000);
    EXPECT_FALSE(transfer.ReadFile("x", 999));
}

TEST_F(Transfer, AListingHoldsTheNamesOfTheCurrentFolder) {
    OwnFtpServer server;
    writeFile(server.file("packs/one/a.gif"), "a");
    writeFile(server.file("packs/two words/b.gif"), "b");
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_EQ(transfer.ListDirectory(), QStringList({"packs"}));
    transfer.ChangeDirectory("packs");
    EXPECT_EQ(transfer.ListDirectory(), QStringList({"one", "two words"}));
    transfer.MakeDirectory("empty");
    transfer.ChangeDirectory("empty");
    EXPECT_EQ(transfer.ListDirectory(), QStringList());
}

TEST_F(Transfer, AnEmptyFolderMayBeToldByARefusal) {
    OwnFtpServer server({"--old", "--fault", "LIST=550 nothing there"});
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_EQ(transfer.ListDirectory(), QStringList());
    EXPECT_TRUE(transfer.MakeDirectory("x"));
}

TEST_F(Transfer, NamesThatAreNoPlainNamesAreLeftOutOfAListing) {
    writeFile(temporary.file("listing"),
              "good\r\n..\r\n.\r\na/b\r\na\\b\r\nC:x\r\n/etc\r\n\r\nnul\x01x\r\ngood\r\nlast\n" +
                  QByteArray(300, 'x') + "\r\n\xff\xfe\r\n\xC3\xA8\r\n");
    OwnFtpServer server({"--old", "--listing", temporary.file("listing"), "--without", "LIST"});
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_EQ(transfer.ListDirectory(), QStringList({"good", "last", QString(QChar(0xE8))}));
}

TEST_F(Transfer, AListingWithoutEndIsRefused) {
    writeFile(temporary.file("listing"), QByteArray("name\r\n").repeated(500000));
    OwnFtpServer server({"--old", "--listing", temporary.file("listing"), "--without", "LIST"});
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_FALSE(transfer.ListDirectory());
}

TEST_F(Transfer, AManyNamedListingIsReadInReasonableTime) {
    QByteArray listing;
    for (int i = 0; i < 100000; ++i) {
        listing += QByteArray::number(i) + "\r\n";
    }
    writeFile(temporary.file("listing"), listing);
    OwnFtpServer server({"--old", "--listing", temporary.file("listing"), "--without", "LIST"});
    ASSERT_TRUE(transfer.Connect(server.address()));
    EXPECT_EQ(transfer.ListDirectory().value_or(QStringList()).size(), 100000);
}

TEST_F(Transfer, AnAbortEndsAStalledTransferAndAllThatFollows) {
    OwnFtpServer server({"--fault", "RETR=stall"});
    writeFile(server.file("x"), QByteArray(100000, 'x'));
    FtpOptions patient = testLimits();
    patient.stall = std::chrono::hours(1);
    patient.response = std::chrono::hours(1);
    ftpTransfer waiting{patient};
    ASSERT_TRUE(waiting.Connect(server.address()));
    QTimer::singleShot(100, [&] { waiting.AbortTransfer(); });
    EXPECT_FALSE(waiting.GetFile("x", model(temporary.file("got"))));
    EXPECT_FALSE(waiting.MakeDirectory("y"));
    EXPECT_FALSE(QFileInfo::exists(server.file("y")));
    EXPECT_TRUE(waiting.Connect(server.address()));
}

TEST_F(Transfer, ACallOutOfAnEventOfAnotherFailsAtOnce) {
    OwnFtpServer server({"--fault", "RETR=stall"});
    writeFile(server.file("x"), QByteArray(100000, 'x'));
    ASSERT_TRUE(hasty.Connect(server.address()));
    bool nested = true;
    QTimer::singleShot(100, [&] { nested = hasty.MakeDirectory("y"); });
    hasty.GetFile("x", model(temporary.file("got")));
    EXPECT_FALSE(nested);
}

}  // namespace nubivane::testing
