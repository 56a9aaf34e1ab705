// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"

#include <QProcess>

namespace nubivane::testing {

/// The tests' own web server (web_server.py) on a free port of this machine. Ends with the object.
class WebServerProcess {
  public:
    WebServerProcess() {
        process_.start("/usr/bin/python3", {"-B", testFile("support/web_server.py")});
        EXPECT_TRUE(process_.waitForReadyRead(30000));
        host_ = "127.0.0.1:" + QString::fromUtf8(process_.readLine().trimmed());
    }
    ~WebServerProcess() {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }
    WebServerProcess(const WebServerProcess&) = delete;
    WebServerProcess& operator=(const WebServerProcess&) = delete;

    /// With its port, as it stands in an address.
    const QString& host() const { return host_; }
    QString url(const char* path) const { return "http://" + host_ + path; }

    static QByteArray content() { return QByteArray("installer\n").repeated(30000); }

  private:
    QProcess process_;
    QString host_;
};

}  // namespace nubivane::testing
