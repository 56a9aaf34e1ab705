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

SshServer::SshServer(SshLogin login) {
    const QString program = programIn("sshd", {"/usr/sbin"});
    if (program.isEmpty()) {
        obstacle_ = "sshd is not installed";
        return;
    }
    if (::geteuid() == 0) {
        QDir().mkpath("/run/sshd");  // which its service makes where it runs as one
    }
    port_ = freePort();
    writeSettings(login);
    if (!obstacle_.isEmpty()) {
        return;
    }
    if (login == SshLogin::Password) {
        startWithPassword(program);
    } else {
        start(program, {"-D", "-e", "-f", folder_.file("sshd_config")});
    }
    waitForPort();
}

/// The system's list of passwords is covered by another one for this server alone.
void SshServer::startWithPassword(const QString& program) {
    const ProcessResult hash = runProgram("openssl", {"passwd", "-6", FtpPassword});
    const QByteArray name = sftpAddress().user.toLocal8Bit();
    writeFile(folder_.file("shadow"), name + ':' + hash.out.trimmed() + ":19000:0:99999:7:::\n");
    start("unshare",
          {"--mount", "sh", "-c", "mount --bind \"$1\" /etc/shadow && exec \"$2\" -D -e -f \"$3\"",
           "sh", folder_.file("shadow"), program, folder_.file("sshd_config")});
}

void SshServer::writeSettings(SshLogin login) {
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
            "StrictModes no\nPermitRootLogin yes\nPasswordAuthentication %4\n"
            "AuthorizedKeysFile %3\nSubsystem sftp /usr/lib/openssh/sftp-server\n")
            .arg(port_)
            .arg(folder_.file("host_key"),
                 login == SshLogin::Key ? own + ".pub" : QStringLiteral("none"),
                 login == SshLogin::Key ? "no" : "yes");
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

ProxyServer::ProxyServer(const QString& kind, const QString& login) {
    start("/usr/bin/python3",
          QStringList{"-B", testFile("support/proxy_server.py"), kind, folder_.file("log")} +
              (login.isEmpty() ? QStringList() : QStringList(login)));
    if (process_.waitForReadyRead(20000)) {
        port_ = process_.readLine().trimmed().toInt();
    }
    EXPECT_NE(port_, 0) << process_.readAll().toStdString();
}

ProxyServer::~ProxyServer() {
    process_.closeWriteChannel();
}

QStringList ProxyServer::asked() const {
    return QFile::exists(folder_.file("log"))
               ? QString::fromUtf8(readFile(folder_.file("log"))).split(u'\n', Qt::SkipEmptyParts)
               : QStringList();
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
