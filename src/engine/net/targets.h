// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"
#include "engine/net/transfer.h"

#include <memory>

namespace nubivane {

/// The target that a server's record names: its host begins with "file:", "rclone:" or "sftp://",
/// else it is an FTP server. Raises `TransferError` for what is none.
std::unique_ptr<Transfer> makeTransfer(const FtpServer& server, const FtpOptions& options);

/// True for a host that needs no login and no network of our own.
bool isLocalTarget(const QString& host);

}  // namespace nubivane
