// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_listing.h"
#include "engine/net/ftp_reply.h"
#include "engine/net/server_address.h"
#include "engine/net/tls.h"
#include "engine/net/transfer_error.h"

#include <gtest/gtest.h>

namespace nubivane {

void PrintTo(const RemoteEntry& entry, std::ostream* stream) {
    *stream << entry.name.toStdString() << " " << static_cast<int>(entry.kind) << " " << entry.size;
}

}  // namespace nubivane

namespace nubivane::testing {

namespace {

using Kind = RemoteEntry::Kind;

std::vector<int> codesOf(const QByteArray& bytes, qsizetype piece) {
    FtpReplyReader reader;
    std::vector<int> codes;
    for (qsizetype from = 0; from < bytes.size(); from += piece) {
        reader.take(bytes.constData() + from, qMin(piece, bytes.size() - from));
        while (const auto reply = reader.next(1000)) {
            codes.push_back(reply->code);
        }
    }
    return codes;
}

}  // namespace

TEST(FtpReplies, AreCutWhereTheyEndInWhateverPiecesTheyCome) {
    const QByteArray said =
        "220-hello\r\n 220 not yet\r\n221 nor this\r\n220 ready\r\n331 go\n150\r\n";
    for (qsizetype piece = 1; piece <= said.size(); ++piece) {
        EXPECT_EQ(codesOf(said, piece), (std::vector{220, 331, 150})) << piece;
    }
}

TEST(FtpReplies, WhatIsNoReplyIsRefused) {
    for (const char* said :
         {"hello\r\n", "\r\n", "99 x\r\n", "2200 x\r\n", "620 x\r\n", "22x y\r\n"}) {
        EXPECT_THROW(codesOf(said, 100), TransferError) << said;
    }
}

TEST(FtpReplies, WithoutAnEndAreRefused) {
    EXPECT_THROW(codesOf(QByteArray("220-more\r\n").repeated(1000), 64), TransferError);
    EXPECT_THROW(codesOf(QByteArray(100000, '2'), 64), TransferError);
}

TEST(FtpListings, OfFactsTellSizesAndFolders) {
    EXPECT_EQ(parseMlsd("type=file;size=12;modify=20200102030405; a b.gif\r\n"
                        "Type=DIR;modify=20200102030405; set-1\r\n"
                        "type=cdir; .\r\ntype=pdir; ..\r\n"
                        "size=7;type=file; x;y=z\r\n"
                        "type=OS.unix=slink:/a; link\r\n"
                        "type=file;size=-3; odd\r\n"),
              (RemoteListing{{"a b.gif", Kind::File, 12, "20200102030405"},
                             {"set-1", Kind::Folder, -1, "20200102030405"},
                             {"x;y=z", Kind::File, 7},
                             {"odd", Kind::File, -1}}));
}

TEST(FtpListings, OfUnixTellSizesAndFolders) {
    EXPECT_EQ(parseList("total 12\r\n"
                        "-rw-r--r--   1 owner    group       12345 Jan  2  2020 rain now.gif\r\n"
                        "drwxr-xr-x 2 1000 1000 4096 Feb 12 10:20 set 1\r\n"
                        "-rw-r--r-- 1 owner 77 Dec 31 23:59 no group\r\n"
                        "-rw-r--r-- 1 0 0 5 2020-01-02 10:20 iso date\r\n"
                        "-rw-r--r-- 1 0 0 5 Jan 2 10:20  a blank first\r\n"
                        "lrwxrwxrwx 1 0 0 7 Jan 2 10:20 link -> target\r\n"),
              (RemoteListing{{"rain now.gif", Kind::File, 12345},
                             {"set 1", Kind::Folder, -1},
                             {"no group", Kind::File, 77},
                             {"iso date", Kind::File, 5},
                             {" a blank first", Kind::File, 5},
                             {"link", Kind::Unknown, -1}}));
}

TEST(FtpListings, OfDosTellSizesAndFolders) {
    EXPECT_EQ(parseList("01-02-20  03:04PM       <DIR>          Maps\r\n"
                        "01-02-2020  15:04                12345 europe map.jpg\r\n"),
              (RemoteListing{{"Maps", Kind::Folder, -1}, {"europe map.jpg", Kind::File, 12345}}));
}

TEST(FtpListings, LeaveOutWhatCouldMeanSomethingElse) {
    for (const char* name : {"..", ".", "a/b", "a\\b", "C:x", "x\x01y", "x\xC2\x85y", "\xff", ""}) {
        const QByteArray bytes(name);
        EXPECT_TRUE(parseMlsd("type=file; " + bytes + "\r\n").empty()) << name;
        EXPECT_TRUE(parseList("-rw-r--r-- 1 0 0 5 Jan 2 10:20 " + bytes + "\r\n").empty()) << name;
        EXPECT_TRUE(parseNames(bytes + "\r\n").empty()) << name;
    }
    EXPECT_EQ(parseNames("a\r\na\nb\n").size(), 2U);
    EXPECT_TRUE(parseList("-rw-r--r-- 1 0 0 99999999999999999999 Jan 2 10:20 x\r\n").empty());
}

TEST(ServerAddresses, AreTakenApart) {
    const auto whole = parseServerAddress("FTP://me@host.example:2121/a/b");
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->scheme, "ftp");
    EXPECT_EQ(whole->user, "me");
    EXPECT_EQ(whole->host, "host.example");
    EXPECT_EQ(whole->port, 2121);
    EXPECT_EQ(whole->path, "a/b");
    EXPECT_EQ(parseServerAddress("  host ")->host, "host");
    EXPECT_EQ(parseServerAddress("host:21")->port, 21);
    EXPECT_EQ(parseServerAddress("::1")->host, "::1");
    EXPECT_FALSE(parseServerAddress("::1")->port);
    EXPECT_EQ(parseServerAddress("[::1]:2121")->port, 2121);
    EXPECT_EQ(parseServerAddress("host/folder")->path, "folder");
}

TEST(ServerAddresses, ThatNameNoHostAreNone) {
    for (const char* text :
         {"", "ftp://", "a b", "host:0", "host:99999", "host:x", "a\r\nb", "@", "/x"}) {
        EXPECT_FALSE(parseServerAddress(text)) << text;
    }
}

TEST(Fingerprints, AreComparedInOneForm) {
    const QString digits = QStringLiteral("AB").repeated(32);
    EXPECT_EQ(plainFingerprint(digits), digits);
    EXPECT_EQ(plainFingerprint("sha256:" + digits.toLower()), digits);
    EXPECT_EQ(plainFingerprint(QStringLiteral("ab:").repeated(32)), digits);
    EXPECT_EQ(plainFingerprint(digits + "0"), std::nullopt);
    EXPECT_EQ(plainFingerprint(QStringLiteral("XY").repeated(32)), std::nullopt);
}

}  // namespace nubivane::testing
