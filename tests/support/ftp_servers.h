// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"
#include "support/fixtures.h"

#include <QMap>
#include <QProcess>

#include <utility>

namespace nubivane::testing {

/// A user's name and password that all servers of the tests take.
inline constexpr char FtpUser[] = "user";
inline constexpr char FtpPassword[] = "secret";

/// A server on a free port of this machine, with a folder of its own as its root. Ends with the
/// object.
class FtpServerProcess {
  public:
    virtual ~FtpServerProcess();

    /// Why the server cannot be run here; empty when it runs.
    const QString& obstacle() const { return obstacle_; }

    FtpServer address() const { return {"127.0.0.1", port_, login_.first, login_.second}; }
    int port() const { return port_; }
    QString root() const { return folder_.file("root"); }
    /// Host path of something in the root.
    QString file(const QString& relative) const { return root() + u'/' + relative; }

    /// Every file below the root with its content, by relative path, but the manifest beside a
    /// site.
    QMap<QString, QByteArray> tree() const;
    /// The paths of all of them.
    QStringList everything() const;

  protected:
    FtpServerProcess();

    /// Starts a program and waits until it answers on the port.
    void start(const QString& program, const QStringList& arguments);
    bool waitForPort();
    static int freePort();

    TemporaryFolder folder_;
    QProcess process_;
    int port_ = 0;
    std::pair<QString, QString> login_{FtpUser, FtpPassword};
    QString obstacle_;
};

/// The tests' own server: takes both separators, writes down every command, fails on request.
class OwnFtpServer : public FtpServerProcess {
  public:
    /// `options` are those of ftp_server.py, such as "--fault", "#3=drop".
    explicit OwnFtpServer(const QStringList& options = {});
    ~OwnFtpServer() override;

    /// Other faults ("#3=drop") from now on; counts and the list of commands begin anew. Nothing
    /// that was said before is at work any more.
    void beginAnew(const QStringList& faults);
    /// Takes away all that has been sent.
    void empty() const;

    /// The commands so far, with their connection's number when `numbered`.
    QStringList commands(bool numbered = false) const;
    /// How many control connections sent anything.
    int connections() const;

  private:
    QByteArray answer();
};

/// A real server; "vsftpd", "pyftpdlib", "pure-ftpd", "proftpd". With `tls` it offers encryption
/// under the certificate of `certificate()`; pure-ftpd then insists on it, and vsftpd on the
/// session of the conversation for each file. proftpd has none here.
class RealFtpServer : public FtpServerProcess {
  public:
    /// `version` is the only one of TLS that vsftpd speaks then: "TLSv1.2" or "TLSv1.3".
    explicit RealFtpServer(const QString& kind, bool tls = false, const QString& version = {});

    /// PEM file of a certificate made for this test, which stands for 127.0.0.1.
    QString certificate() const { return folder_.file("certificate.pem"); }
    QByteArray log() const;

  private:
    void startPyftpdlib(bool tls);
    void startVsftpd(bool tls, const QString& version);
    void startPureFtpd(bool tls);
    void startProftpd();
    void makeCertificate();
};

/// Writes down what a client sends on its way to the control connection of a server.
class WireTap : public FtpServerProcess {
  public:
    explicit WireTap(const FtpServerProcess& server);
    ~WireTap() override;

    QByteArray sent() const;
};

/// A certificate that vouches for itself.
struct TestCertificate {
    /// Valid from and until so many days from now.
    TestCertificate(const QString& host, int from, int until);

    TemporaryFolder folder;
    QString file = folder.file("certificate.pem");  ///< with its key, for a server
    QString publicFile = file + ".public";          ///< for a client
};

/// For servers that answer, be it late because the machine is busy.
inline FtpOptions testLimits() {
    FtpOptions options;
    options.connect = options.response = options.stall = Milliseconds(60000);
    options.farewell = Milliseconds(1000);
    options.retryPause = Milliseconds(10);
    return options;
}

/// For servers that do not answer, which a test has to wait for.
inline FtpOptions shortLimits() {
    FtpOptions options = testLimits();
    options.connect = options.response = options.stall = Milliseconds(3000);
    return options;
}

}  // namespace nubivane::testing
