// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/downloader.h"
#include "engine/net/ftp_transfer.h"
#include "support/failing_calls.h"
#include "support/ftp_servers.h"
#include "support/web_server.h"

namespace nubivane::testing {

namespace {

/// What comes from a server, while this machine refuses its calls one after the other.
class DownloadFailures : public ::testing::Test {
  protected:
    QString hostTarget() const { return temporary_.file("fetched"); }
    QString target() const { return hostTarget().replace('/', '\\'); }

    FailingWriter writer(const std::string& name, const QByteArray& content,
                         std::function<bool()> fetch) const {
        return {
            .name = name,
            .run = std::move(fetch),
            .files = {hostTarget()},
            .isNew = [content](const QString&, const QByteArray& now) { return now == content; },
        };
    }

  private:
    TemporaryFolder temporary_;
};

}  // namespace

TEST_F(DownloadFailures, NoFailingCallTearsAFileOfAWebServer) {
    const WebServerProcess server;
    failEveryCallOf(writer("download", WebServerProcess::content(), [&] {
        Downloader downloader(5, 5);
        const bool fetched = downloader.fetch(server.url("/file"), target());
        EXPECT_EQ(fetched, downloader.failure().isEmpty());
        return fetched;
    }));
}

TEST_F(DownloadFailures, NoFailingCallTearsASymbolOfAPack) {
    const OwnFtpServer server;
    const QByteArray content(100000, '*');
    writeFile(server.file("sun.gif"), content);
    ftpTransfer transfer(testLimits());
    ASSERT_TRUE(transfer.Connect(server.address())) << transfer.failure().toStdString();
    failEveryCallOf(writer("pack", content, [&] {
        if (transfer.lost()) {
            EXPECT_TRUE(transfer.Connect(server.address()));
        }
        const bool fetched = transfer.GetFile("sun.gif", target());
        EXPECT_TRUE(fetched || !transfer.failure().isEmpty());
        return fetched;
    }));
}

}  // namespace nubivane::testing
