// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/ftp_servers.h"

namespace nubivane::testing {

/// How the tests' SSH server lets people in.
enum class SshLogin { Key, Password };

/// OpenSSH's server with its sftp-server on a port of this machine. Lets in whoever runs the tests,
/// by the key that lies in `home()`, or by `FtpPassword`: that takes the rights to show the server
/// a list of passwords of our own.
class SshServer : public FtpServerProcess {
  public:
    explicit SshServer(SshLogin login = SshLogin::Key);

    /// To be the home of the client: its ".ssh" holds the key, and knows no server yet.
    QString home() const { return folder_.file("home"); }
    /// What a client with a list of known servers would have there.
    void makeKnown() const;
    /// The name to log in by, and where.
    FtpServer sftpAddress() const;

  private:
    void writeSettings(SshLogin login);
    void startWithPassword(const QString& program);
};

/// A proxy, "socks" or "http", that leads every host to this machine.
class ProxyServer : public FtpServerProcess {
  public:
    /// With "name:password" it lets nobody else pass.
    explicit ProxyServer(const QString& kind, const QString& login = {});
    ~ProxyServer() override;

    /// The hosts and ports that it was asked for.
    QStringList asked() const;
};

/// `rclone serve webdav`.
class WebdavServer : public FtpServerProcess {
  public:
    WebdavServer();

    /// The path by which rclone reaches its root without a settings file.
    FtpServer rcloneAddress() const;
};

}  // namespace nubivane::testing
