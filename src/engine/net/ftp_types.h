// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>
#include <functional>

namespace nubivane {

/// Whether a login may go out in clear. Once a server has offered encryption, a failure of it ends
/// the login under each of them.
enum class Encryption {
    None = 0,      ///< it is not even asked for
    Offered = 1,   ///< only where the server refuses to encrypt
    Required = 2,  ///< never
};

/// Where a connection goes, and as whom. Without a user name the login is anonymous.
struct FtpServer {
    QString host;
    int port = 21;
    QString user{};
    QString password{};
    Encryption encryption = Encryption::Offered;
    bool implicitTls = false;  ///< encrypted from the first byte on, as on port 990
    QString fingerprint{};  ///< SHA-256 of a certificate that is trusted though it does not verify
};

using Milliseconds = std::chrono::milliseconds;

/// A limit as people are told it.
inline QString secondsText(Milliseconds limit) {
    return QString::number(static_cast<double>(limit.count()) / 1000.0);
}

/// How long a server may keep us waiting, whose certificates count, and where the upload's server
/// listens. No limit is set on a transfer that goes on, however slowly.
struct FtpOptions {
    Milliseconds connect{20000};   ///< until the connection stands
    Milliseconds response{30000};  ///< for each reply
    Milliseconds stall{30000};     ///< without a single byte in a running transfer
    Milliseconds farewell{3000};   ///< for the reply to the last command
    int port = 21;
    Milliseconds retryPause{500};  ///< before a lost connection is made anew, doubled each time
    QString certificates{};        ///< host path of a PEM file; empty is the system's own
    /// Takes each line of the conversation, the password left out. Called on any thread.
    std::function<void(const QString& line)> log{};
};

}  // namespace nubivane
