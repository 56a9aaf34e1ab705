// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/downloader.h"

#include "support/web_server.h"

#include <QDir>
#include <QTimer>

namespace nubivane::testing {

namespace {

class Download : public ::testing::Test {
  protected:
    QString url(const char* path) const { return server_.url(path); }
    QString hostTarget() const { return temporary.file("setup.exe"); }
    QString target() const { return hostTarget().replace('/', '\\'); }
    QStringList files() const {
        return QDir(temporary.path()).entryList(QDir::Files | QDir::Hidden);
    }
    static QByteArray content() { return WebServerProcess::content(); }

    TemporaryFolder temporary;
    Downloader downloader{3, 2};

  private:
    WebServerProcess server_;
};

}  // namespace

TEST_F(Download, AWholeFileIsPutInPlace) {
    QList<QPair<qint64, qint64>> seen;
    downloader.progress = [&](qint64 bytes, qint64 total) { seen << qMakePair(bytes, total); };
    ASSERT_TRUE(downloader.fetch(url("/file"), target())) << downloader.failure().toStdString();
    EXPECT_TRUE(readFile(hostTarget()) == content());
    ASSERT_FALSE(seen.isEmpty());
    EXPECT_EQ(seen.last(), qMakePair(qint64{300000}, qint64{300000}));
    EXPECT_EQ(files(), QStringList({"setup.exe"}));
}

TEST_F(Download, ARedirectionIsFollowed) {
    ASSERT_TRUE(downloader.fetch(url("/moved"), target()));
    EXPECT_TRUE(readFile(hostTarget()) == content());
}

TEST_F(Download, NothingStandsUnderTheNameAfterAFailure) {
    for (const char* path : {"/cut", "/missing", "/loop", "/outside", "/stall"}) {
        EXPECT_FALSE(downloader.fetch(url(path), target())) << path;
        EXPECT_NE(downloader.failure(), "") << path;
        EXPECT_EQ(files(), QStringList()) << path;
    }
}

TEST_F(Download, AnOlderFileSurvivesAFailure) {
    writeFile(hostTarget(), "old");
    EXPECT_FALSE(downloader.fetch(url("/cut"), target()));
    EXPECT_EQ(readFile(hostTarget()), "old");
    EXPECT_EQ(files(), QStringList({"setup.exe"}));
}

TEST_F(Download, AnAbortEndsIt) {
    Downloader patient(3, 3600);
    qint64 furthest = 0;
    patient.progress = [&](qint64 bytes, qint64) { furthest = bytes; };
    QTimer often;
    QObject::connect(&often, &QTimer::timeout, [&] {
        if (furthest > 0) {
            patient.abort();
        }
    });
    often.start(10);
    EXPECT_FALSE(patient.fetch(url("/stall"), target()));
    EXPECT_EQ(files(), QStringList());
    patient.progress = nullptr;
    often.stop();
    EXPECT_TRUE(patient.fetch(url("/file"), target()));
}

TEST_F(Download, OtherAddressesAreRefused) {
    for (const char* address : {"", "setup.exe", "http:///setup.exe", "file:///etc/passwd",
                                "ftp://127.0.0.1:1/x", "http://127.0.0.1:1/x"}) {
        EXPECT_FALSE(downloader.fetch(QLatin1String(address), target())) << address;
        EXPECT_NE(downloader.failure(), "") << address;
        EXPECT_EQ(files(), QStringList()) << address;
    }
}

TEST_F(Download, AFolderThatIsNotThereIsAFailure) {
    EXPECT_FALSE(downloader.fetch(url("/file"), target() + "\\no\\where"));
    EXPECT_NE(downloader.failure(), "");
}

TEST_F(Download, TheFilesNameIsTheLastPartOfTheAddress) {
    EXPECT_EQ(Downloader::fileNameOf("http://a.example/b/nVane_6.0.1.EXE"), "nVane_6.0.1.EXE");
    EXPECT_EQ(Downloader::fileNameOf("http://a.example/b/x%20y.EXE"), "x y.EXE");
    for (const char* address : {"http://a.example/", "http://a.example/b/..%2F..%2Fx.EXE",
                                "http://a.example/b%5Cc.EXE", ""}) {
        const QString name = Downloader::fileNameOf(QLatin1String(address));
        EXPECT_FALSE(name.contains('/') || name.contains('\\') || name.contains("..")) << address;
    }
    EXPECT_EQ(Downloader::fileNameOf("http://a.example/"), "");
    EXPECT_EQ(Downloader::fileNameOf("http://a.example/b/x%5Cy.EXE"), "");
}

}  // namespace nubivane::testing
