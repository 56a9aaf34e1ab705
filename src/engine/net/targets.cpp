// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/targets.h"

#include "engine/net/folder_target.h"
#include "engine/net/ftp_target.h"
#include "engine/net/rclone_target.h"
#include "engine/net/server_address.h"
#include "engine/net/sftp_target.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int ftpPort = 21;
constexpr int sshPort = 22;
constexpr int implicitPort = 990;

}  // namespace

bool isLocalTarget(const QString& host) {
    return host.startsWith("file:"_L1) || host.startsWith("rclone:"_L1);
}

std::unique_ptr<Transfer> makeTransfer(const FtpServer& server, const FtpOptions& options) {
    if (server.host.startsWith("file:"_L1)) {
        return std::make_unique<FolderTarget>(server.host.mid(5));
    }
    if (server.host.startsWith("rclone:"_L1)) {
        return std::make_unique<RcloneTarget>(server.host.mid(7), options);
    }
    const auto address = parseServerAddress(server.host);
    if (!address || address->scheme.isEmpty()) {
        return std::make_unique<FtpTarget>(server, options);
    }
    FtpServer named = server;
    named.host = address->host;
    if (address->scheme == "sftp"_L1) {
        named.port = server.port == ftpPort ? sshPort : server.port;
        return std::make_unique<SftpTarget>(named, options);
    }
    if (address->scheme == "ftps"_L1) {
        named.implicitTls = true;
        named.port = server.port == ftpPort ? implicitPort : server.port;
    }
    return std::make_unique<FtpTarget>(named, options);
}

}  // namespace nubivane
