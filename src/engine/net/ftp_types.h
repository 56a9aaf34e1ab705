// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// Where a connection goes, and as whom. Without a user name the login is anonymous.
struct FtpServer {
    QString host;
    int port = 21;
    QString user;
    QString password;
};

/// How long a server may keep us waiting, in seconds, whose certificates count, and where the
/// upload's server listens. No limit is set on a transfer that goes on, however slowly.
struct FtpOptions {
    int connect = 20;   ///< until the connection stands
    int response = 30;  ///< for each reply
    int stall = 30;     ///< without a single byte in a running transfer
    int farewell = 3;   ///< for the reply to the last command
    int port = 21;
    QString certificates;  ///< host path of a PEM file; empty is the system's own
};

}  // namespace nubivane
