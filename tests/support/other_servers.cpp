// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/other_servers.h"

#include "support/processes.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <pwd.h>
#include <unistd.h>

namespace nubivane::testing {

namespace {

QString programIn(const QString& name, const QStringList& folders) {
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(name, folders) : found;
}

}  // namespace

SshServer::SshServer() {
    const QString program = programIn("sshd", {"/usr/sbin"});
    if (program.isEmpty()) {
        obstacle_ = "sshd is not installed";
        return;
    }
    if (::geteuid() == 0) {
        QDir().mkpath("/run/sshd");  // which its service makes where it runs as one
    }
    port_ = freePort();
    writeSettings();
    if (obstacle_.isEmpty()) {
        start(program, {"-D", "-e", "-f", folder_.file("sshd_config")});
        waitForPort();
    }
}

void SshServer::writeSettings() {
    QDir().mkpath(home() + "/.ssh");
    const QString own = home() + "/.ssh/id_ed25519";
    for (const QString& key : {folder_.file("host_key"), own}) {
        const ProcessResult made =
            runProgram("ssh-keygen", {"-q", "-t", "ed25519", "-N", "", "-f", key});
        if (made.exitCode != 0) {
            obstacle_ = "no key can be made: " + QString::fromUtf8(made.err);
            return;
        }
    }
    const QString settings =
        QStringLiteral(
            "ListenAddress 127.0.0.1\nPort %1\nHostKey %2\nPidFile none\nUsePAM no\n"
            "StrictModes no\nPermitRootLogin yes\nPasswordAuthentication no\n"
            "AuthorizedKeysFile %3\nSubsystem sftp /usr/lib/openssh/sftp-server\n")
            .arg(port_)
            .arg(folder_.file("host_key"), own + ".pub");
    writeFile(folder_.file("sshd_config"), settings.toUtf8());
}

void SshServer::makeKnown() const {
    writeFile(home() + "/.ssh/known_hosts", "[127.0.0.1]:" + QByteArray::number(port_) + ' ' +
                                                readFile(folder_.file("host_key.pub")));
}

FtpServer SshServer::sftpAddress() const {
    const passwd* self = ::getpwuid(::geteuid());
    FtpServer address{"sftp://127.0.0.1", port_, QString::fromLocal8Bit(self->pw_name)};
    address.encryption = Encryption::Required;
    return address;
}

WebdavServer::WebdavServer() {
    const QString program = programIn("rclone", {});
    if (program.isEmpty()) {
        obstacle_ = "rclone is not installed";
        return;
    }
    port_ = freePort();
    start(program,
          {"serve", "webdav", root(), "--addr", QStringLiteral("127.0.0.1:%1").arg(port_)});
    waitForPort();
}

FtpServer WebdavServer::rcloneAddress() const {
    return {QStringLiteral("rclone::webdav,url='http://127.0.0.1:%1',vendor=other:").arg(port_)};
}

}  // namespace nubivane::testing
