// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/protocol.h"

#include <gtest/gtest.h>

namespace nubivane::testing {

TEST(Protocols, AnAddressIsItsProtocolAndItsPlace) {
    const QList<std::pair<QString, std::pair<Protocol, QString>>> rows{
        {"ftp.example.org", {Protocol::Ftp, "ftp.example.org"}},
        {" ftp.example.org ", {Protocol::Ftp, " ftp.example.org "}},
        {"ftps://h", {Protocol::FtpOverTls, "h"}},
        {"sftp://h", {Protocol::Sftp, "h"}},
        {"file:/srv/www", {Protocol::Folder, "/srv/www"}},
        {"rclone:cloud:www", {Protocol::Rclone, "cloud:www"}},
        {"", {Protocol::Ftp, ""}}};
    for (const auto& [url, parts] : rows) {
        EXPECT_EQ(protocolOf(url), parts.first) << url.toStdString();
        EXPECT_EQ(placeOf(url), parts.second) << url.toStdString();
        EXPECT_EQ(urlOf(parts.first, parts.second), url) << url.toStdString();
    }
    EXPECT_EQ(protocolOf("SFTP://h"), Protocol::Sftp);
}

TEST(Protocols, WhatIsTypedIsTakenApart) {
    const auto all = takeApart(Protocol::Ftp, "sftp://me@host:2222/www/");
    ASSERT_TRUE(all);
    EXPECT_EQ(all->protocol, Protocol::Sftp);
    EXPECT_EQ(all->place, "host");
    EXPECT_EQ(all->user, "me");
    EXPECT_EQ(all->folder, "www");
    EXPECT_EQ(all->port, 2222);
    const auto port = takeApart(Protocol::Sftp, "[::1]:2222");
    ASSERT_TRUE(port);
    EXPECT_EQ(port->protocol, Protocol::Sftp);
    EXPECT_EQ(port->place, "[::1]");
    const auto folder = takeApart(Protocol::Ftp, "file:/srv/www");
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->protocol, Protocol::Folder);
    EXPECT_EQ(folder->place, "/srv/www");
    EXPECT_EQ(takeApart(Protocol::Sftp, "ftp://host")->protocol, Protocol::Ftp);
}

TEST(Protocols, AHostAloneAndWhatHasNoSuchFormStay) {
    for (const char* text : {"", "host", " host ", "::1", "a b", "http://host", "host:port"}) {
        EXPECT_FALSE(takeApart(Protocol::Ftp, text)) << text;
    }
    EXPECT_FALSE(takeApart(Protocol::Folder, "/srv/a@b/c"));
    EXPECT_FALSE(takeApart(Protocol::Rclone, "cloud:www"));
}

}  // namespace nubivane::testing
