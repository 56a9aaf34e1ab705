// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/ftp_servers.h"

namespace nubivane::testing {

/// OpenSSH's server with its sftp-server on a port of this machine. Lets in whoever runs the tests,
/// by the key that lies in `home()`.
class SshServer : public FtpServerProcess {
  public:
    SshServer();

    /// To be the home of the client: its ".ssh" holds the key, and knows no server yet.
    QString home() const { return folder_.file("home"); }
    /// What a client with a list of known servers would have there.
    void makeKnown() const;
    /// The name to log in by, and where.
    FtpServer sftpAddress() const;

  private:
    void writeSettings();
};

/// `rclone serve webdav`.
class WebdavServer : public FtpServerProcess {
  public:
    WebdavServer();

    /// The path by which rclone reaches its root without a settings file.
    FtpServer rcloneAddress() const;
};

}  // namespace nubivane::testing
