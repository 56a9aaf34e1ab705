// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ftp_servers.h"

#include "support/processes.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>
#include <QThread>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace nubivane::testing {

namespace {

constexpr char SystemPython[] = "/usr/bin/python3";
constexpr int StartMs = 20000;
constexpr uint UnprivilegedId = 1000;

sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<quint16>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

bool answers(int port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = loopback(port);
    const bool connected =
        ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return connected;
}

QString findServer(const QString& name) {
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(name, {"/usr/sbin", "/usr/local/sbin"})
                           : found;
}

}  // namespace

FtpServerProcess::FtpServerProcess() {
    QDir().mkpath(root());
}

FtpServerProcess::~FtpServerProcess() {
    process_.terminate();
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(3000)) {
        process_.kill();
        process_.waitForFinished();
    }
}

QMap<QString, QByteArray> FtpServerProcess::tree() const {
    QMap<QString, QByteArray> files;
    QDirIterator entries(root(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (entries.fileName() != u".nubivane-manifest") {
            files.insert(QDir(root()).relativeFilePath(path), readFile(path));
        }
    }
    return files;
}

QStringList FtpServerProcess::everything() const {
    QStringList paths;
    QDirIterator entries(root(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        paths += QDir(root()).relativeFilePath(entries.next());
    }
    paths.sort();
    return paths;
}

int FtpServerProcess::freePort() {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    ::bind(socket, reinterpret_cast<sockaddr*>(&address), size);
    ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size);
    ::close(socket);
    return ntohs(address.sin_port);
}

void FtpServerProcess::start(const QString& program, const QStringList& arguments) {
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(program, arguments);
    if (!process_.waitForStarted(StartMs)) {
        obstacle_ = program + ": " + process_.errorString();
    }
}

bool FtpServerProcess::waitForPort() {
    QElapsedTimer timer;
    timer.start();
    while (obstacle_.isEmpty() && !answers(port_)) {
        if (process_.waitForFinished(20) || timer.elapsed() > StartMs) {
            obstacle_ = "the server does not start: " + QString::fromUtf8(process_.readAll());
        }
    }
    return obstacle_.isEmpty();
}

OwnFtpServer::OwnFtpServer(const QStringList& options) {
    start(SystemPython, QStringList{"-B", testFile("support/ftp_server.py"), root(), "--log",
                                    folder_.file("log")} +
                            options);
    port_ = answer().toInt();
    if (port_ == 0) {
        ADD_FAILURE() << "the tests' own server does not start: "
                      << process_.readAll().toStdString();
    }
}

OwnFtpServer::~OwnFtpServer() {
    process_.closeWriteChannel();
}

/// The next whole line that it prints.
QByteArray OwnFtpServer::answer() {
    while (!process_.canReadLine() && process_.waitForReadyRead(StartMs)) {
    }
    return process_.readLine().trimmed();
}

void OwnFtpServer::beginAnew(const QStringList& faults) {
    QFile::remove(folder_.file("log"));
    process_.write(faults.join(u'\t').toUtf8() + '\n');
    ASSERT_EQ(answer(), "ok");
}

void OwnFtpServer::empty() const {
    QDir(root()).removeRecursively();
    QDir().mkpath(root());
}

QStringList OwnFtpServer::commands(bool numbered) const {
    QStringList lines;
    if (QFileInfo::exists(folder_.file("log"))) {
        lines = QString::fromUtf8(readFile(folder_.file("log"))).split(u'\n', Qt::SkipEmptyParts);
    }
    if (!numbered) {
        for (QString& line : lines) {
            line = line.section(u' ', 1);
        }
    }
    return lines;
}

int OwnFtpServer::connections() const {
    QSet<QString> numbers;
    for (const QString& line : commands(true)) {
        numbers += line.section(u' ', 0, 0);
    }
    return static_cast<int>(numbers.size());
}

WireTap::WireTap(const FtpServerProcess& server) {
    login_ = {server.address().user, server.address().password};
    start(SystemPython, {"-B", testFile("support/wire_tap.py"), QString::number(server.port()),
                         folder_.file("log")});
    if (process_.waitForReadyRead(StartMs)) {
        port_ = process_.readLine().trimmed().toInt();
    }
    EXPECT_NE(port_, 0) << process_.readAll().toStdString();
}

WireTap::~WireTap() {
    process_.closeWriteChannel();
}

QByteArray WireTap::sent() const {
    return QFileInfo::exists(folder_.file("log")) ? readFile(folder_.file("log")) : QByteArray();
}

TestCertificate::TestCertificate(const QString& host, int from, int until) {
    const ProcessResult made =
        runProgram(SystemPython, {"-B", testFile("support/certificate.py"), file, host,
                                  QString::number(from), QString::number(until)});
    EXPECT_EQ(made.exitCode, 0) << made.err.toStdString();
}

RealFtpServer::RealFtpServer(const QString& kind, bool tls, const QString& version) {
    if (tls) {
        makeCertificate();
    }
    port_ = freePort();
    if (kind == u"pyftpdlib") {
        startPyftpdlib(tls);
    } else if (kind == u"vsftpd") {
        startVsftpd(tls, version);
    } else if (kind == u"pure-ftpd") {
        startPureFtpd(tls);
    } else if (kind == u"proftpd") {
        startProftpd();
    }
    waitForPort();
}

QByteArray RealFtpServer::log() const {
    return QFileInfo::exists(folder_.file("log")) ? readFile(folder_.file("log")) : QByteArray();
}

void RealFtpServer::makeCertificate() {
    const ProcessResult made =
        runProgram("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2",
                               "-subj", "/CN=127.0.0.1", "-addext", "subjectAltName=IP:127.0.0.1",
                               "-keyout", folder_.file("key.pem"), "-out", certificate()});
    ASSERT_EQ(made.exitCode, 0) << made.err.toStdString();
    writeFile(folder_.file("both.pem"),
              readFile(folder_.file("key.pem")) + readFile(certificate()));
}

void RealFtpServer::startPyftpdlib(bool tls) {
    QStringList words{"-B",
                      testFile("support/pyftpdlib_server.py"),
                      root(),
                      QString::number(port_),
                      FtpUser,
                      FtpPassword,
                      folder_.file("log")};
    if (tls) {
        words << folder_.file("both.pem");
    }
    start(SystemPython, words);
}

void RealFtpServer::startVsftpd(bool tls, const QString& version) {
    // Anonymous logins only: all others would need an account of the system.
    login_ = {"anonymous", "tests@localhost"};
    const QString program = findServer("vsftpd");
    if (program.isEmpty()) {
        obstacle_ = "vsftpd is not installed";
        return;
    }
    QDir().mkpath(folder_.file("empty"));
    QString text = QStringLiteral(
                       "listen=YES\nlisten_port=%1\nlisten_address=127.0.0.1\nbackground=NO\n"
                       "run_as_launching_user=YES\nseccomp_sandbox=NO\nisolate_network=NO\n"
                       "anonymous_enable=YES\nno_anon_password=YES\nlocal_enable=NO\n"
                       "anon_root=%2\nsecure_chroot_dir=%3\nallow_writeable_chroot=YES\n"
                       "write_enable=YES\nanon_upload_enable=YES\nanon_mkdir_write_enable=YES\n"
                       "anon_other_write_enable=YES\nanon_umask=022\n"
                       "anon_world_readable_only=NO\nconnect_from_port_20=NO\n"
                       "xferlog_enable=YES\nlog_ftp_protocol=YES\nvsftpd_log_file=%4\n")
                       .arg(port_)
                       .arg(root(), folder_.file("empty"), folder_.file("log"));
    if (tls) {
        text +=
            "ssl_enable=YES\nallow_anon_ssl=YES\nforce_local_logins_ssl=NO\n"
            "force_local_data_ssl=NO\nrequire_ssl_reuse=YES\nrsa_cert_file=" +
            folder_.file("both.pem") + '\n';
    }
    if (!version.isEmpty()) {  // which its own settings cannot say
        writeFile(folder_.file("openssl.cnf"),
                  QStringLiteral("openssl_conf = all\n[all]\nssl_conf = ssl\n[ssl]\n"
                                 "system_default = versions\n[versions]\n"
                                 "MinProtocol = %1\nMaxProtocol = %1\n")
                      .arg(version)
                      .toUtf8());
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert("OPENSSL_CONF", folder_.file("openssl.cnf"));
        process_.setProcessEnvironment(variables);
    }
    writeFile(folder_.file("vsftpd.conf"), text.toUtf8());
    start(program, {folder_.file("vsftpd.conf")});
}

void RealFtpServer::startProftpd() {
    const QString program = findServer("proftpd");
    if (program.isEmpty()) {
        obstacle_ = "proftpd is not installed";
        return;
    }
    const ProcessResult hash = runProgram("openssl", {"passwd", "-6", FtpPassword});
    const QByteArray served = root().toLocal8Bit();
    if (::chown(served.constData(), UnprivilegedId, UnprivilegedId) != 0) {
        obstacle_ = "proftpd cannot be set up";
        return;
    }
    const QString users = folder_.file("users");
    writeFile(users, QStringLiteral("%1:%2:%3:%3::%4:/bin/false\n")
                         .arg(FtpUser, QString::fromUtf8(hash.out.trimmed()))
                         .arg(UnprivilegedId)
                         .arg(root())
                         .toUtf8());
    QFile::setPermissions(users, QFile::ReadOwner | QFile::WriteOwner);
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7755));
    writeFile(folder_.file("proftpd.conf"),
              QStringLiteral(
                  "ServerName tests\nServerType standalone\nDefaultServer on\n"
                  "DefaultAddress 127.0.0.1\nPort %1\nUseIPv6 off\nUser nobody\nGroup nogroup\n"
                  "PidFile %2/pid\nScoreboardFile %2/scores\nSystemLog %2/log\nWtmpLog off\n"
                  "TransferLog none\nDelayEngine off\nRequireValidShell off\n"
                  "AuthOrder mod_auth_file.c\nAuthUserFile %2/users\nAllowOverwrite on\n"
                  "AllowStoreRestart on\nDefaultRoot %3\n")
                  .arg(port_)
                  .arg(folder_.path(), root())
                  .toUtf8());
    start(program, {"-n", "-q", "-c", folder_.file("proftpd.conf")});
}

void RealFtpServer::startPureFtpd(bool tls) {
    const QString program = findServer("pure-ftpd");
    const QString maker = findServer("pure-pw");
    if (program.isEmpty() || maker.isEmpty()) {
        obstacle_ = "pure-ftpd is not installed";
        return;
    }
    // A hash of its own maker would be so hard that a busy machine takes seconds over a login.
    const ProcessResult hash = runProgram("openssl", {"passwd", "-6", FtpPassword});
    const QString users = folder_.file("users");
    writeFile(users, QStringLiteral("%1:%2:%3:%3::%4/./::::::::::::\n")
                         .arg(FtpUser, QString::fromUtf8(hash.out.trimmed()))
                         .arg(UnprivilegedId)
                         .arg(root())
                         .toUtf8());
    const ProcessResult made = runProgram(maker, {"mkdb", users + ".pdb", "-f", users});
    const QByteArray served = root().toLocal8Bit();
    if (made.exitCode != 0 || ::chown(served.constData(), UnprivilegedId, UnprivilegedId) != 0) {
        obstacle_ = "pure-ftpd cannot be set up: " + QString::fromUtf8(made.err);
        return;
    }
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7755));
    QStringList words{"-S",
                      QStringLiteral("127.0.0.1,%1").arg(port_),
                      "-l",
                      "puredb:" + users + ".pdb",
                      "-A",
                      "-E",
                      "-H",
                      "-u",
                      "1",
                      "-g",
                      folder_.file("pid")};
    if (tls) {
        words << "-Y"
              << "3"
              << "-2" << folder_.file("both.pem");
    }
    start(program, words);
}

}  // namespace nubivane::testing
