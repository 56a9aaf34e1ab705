// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_target.h"

#include "engine/net/transfer_error.h"
#include "support/ftp_servers.h"

namespace nubivane::testing {

TEST(FtpTargets, WhatCannotBeReadIsNothingAndAConnectionLostMeanwhileIsAFailure) {
    constexpr qint64 Enough = 1000;
    {
        OwnFtpServer server({"--unix"});
        writeFile(server.file("a.txt"), "one");
        FtpTarget target(server.address(), testLimits());
        target.connect();
        EXPECT_EQ(target.read("a.txt", Enough), QByteArray("one"));
        EXPECT_EQ(target.read("missing.txt", Enough), std::nullopt);
    }
    OwnFtpServer server({"--unix", "--fault", "RETR=drop"});
    writeFile(server.file("a.txt"), "one");
    FtpTarget target(server.address(), testLimits());
    target.connect();
    try {
        target.read("a.txt", Enough);
        FAIL() << "it was read";
    } catch (const TransferError& error) {
        EXPECT_EQ(error.kind(), TransferError::Kind::Lost);
    }
}

TEST(FtpTargets, AListingThatIsRefusedIsNoneAndOneThatIsLostIsAFailure) {
    {
        OwnFtpServer server({"--unix"});
        FtpTarget target(server.address(), testLimits());
        target.connect();
        EXPECT_TRUE(target.list("").has_value());
        EXPECT_EQ(target.list("missing"), std::nullopt);
    }
    OwnFtpServer server({"--unix", "--fault", "MLSD=drop"});
    FtpTarget target(server.address(), testLimits());
    target.connect();
    EXPECT_THROW(target.list(""), TransferError);
}

}  // namespace nubivane::testing
