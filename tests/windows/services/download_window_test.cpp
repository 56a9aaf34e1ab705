// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/modal.h"
#include "support/steps.h"
#include "support/web_server.h"
#include "windows/services/frm_download.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace nubivane::testing {

namespace {

/// The window of the download of an installer.
class DownloadWindow : public ::testing::Test {
  protected:
    /// Opens the window for an address and waits until it is closed; `plan` says what happens to
    /// it meanwhile.
    void run(const QString& url, const std::function<void(Steps&)>& plan) {
        frmDownload window(shell, nullptr, folder(), 2);
        window_ = &window;
        Steps steps([&] { window.reject(); });
        plan(steps);
        window.Init(url);
        EXPECT_FALSE(isOpen());
    }
    QPushButton& button(const char* name) { return partOf<QPushButton>(*window_, name); }
    static void press(QPushButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    QString info() { return partOf<QLabel>(*window_, "lblInfo").text(); }
    bool isOpen() const { return window_->isVisible(); }
    QString progress() { return partOf<QLabel>(*window_, "lblProgress").text(); }
    std::function<bool()> ended() {
        return [this] { return button("cmdCancelClose").text() == "Close"; };
    }

    QString folder() const { return temporary.file("Downloads"); }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files | QDir::Hidden); }

    TemporaryFolder temporary;
    WebServerProcess server;
    ScriptedShell shell;
    frmDownload* window_ = nullptr;
};

}  // namespace

TEST_F(DownloadWindow, FetchesTheFileAndShowsWhereItLies) {
    run(server.url("/file"), [this](Steps& steps) {
        steps.when(ended(), [this] {
            EXPECT_EQ(window_->windowTitle(), "Download");
            EXPECT_TRUE(window_->isModal());
            EXPECT_EQ(info(), "file is in the folder " + folder());
            EXPECT_EQ(partOf<QProgressBar>(*window_, "ProgressBar").value(), 100);
            EXPECT_NE(progress(), "");
            EXPECT_EQ(readFile(folder() + "/file"), WebServerProcess::content());
            press(button("cmdOpenFolder"));
            EXPECT_EQ(shell.opened, QStringList(folder()));
            EXPECT_TRUE(isOpen());
            press(button("cmdCancelClose"));
        });
    });
    EXPECT_EQ(files(), QStringList("file"));
}

TEST_F(DownloadWindow, AFileOfThatNameStays) {
    for (const auto& [name, next] :
         {std::pair("nVane_6.0.1.EXE", "nVane_6.0.1_1.EXE"), std::pair("file", "file_1")}) {
        writeFile(folder() + '/' + name, "old");
        run(server.url("/") + name, [this, next = next](Steps& steps) {
            steps.when(ended(), [this, next] {
                EXPECT_EQ(info(), QLatin1String(next) + " is in the folder " + folder());
                QTest::keyClick(window_, Qt::Key_Escape);
            });
        });
        EXPECT_EQ(readFile(folder() + '/' + name), "old");
        EXPECT_EQ(readFile(folder() + '/' + next), WebServerProcess::content());
    }
}

TEST_F(DownloadWindow, AFailureIsToldAndLeavesNothing) {
    const QStringList urls{server.url("/cut"), server.url("/missing"), server.url("/stall"),
                           "http:///nothing.EXE", server.url("/folder/")};
    for (const QString& url : urls) {
        shell.expectMessage("The installation file could not be downloaded.", Icon::Critical);
        run(url, [](Steps&) {});
        EXPECT_EQ(files(), QStringList()) << url.toStdString();
    }
}

TEST_F(DownloadWindow, ItsButtonItsKeyAndItsBoxGiveItUpInTheMiddleOfTheFile) {
    const QList<std::function<void()>> ways{[this] { press(button("cmdCancelClose")); },
                                            [this] { QTest::keyClick(window_, Qt::Key_Escape); },
                                            [this] { window_->close(); }};
    for (const auto& way : ways) {
        run(server.url("/stall"), [&](Steps& steps) {
            steps.when([this] { return !progress().isEmpty(); },
                       [&] {
                           EXPECT_EQ(info(), "Downloading stall");
                           // 100 kB of 300 kB
                           EXPECT_EQ(partOf<QProgressBar>(*window_, "ProgressBar").value(), 33);
                           EXPECT_FALSE(button("cmdOpenFolder").isVisible());
                           way();
                       });
        });
        EXPECT_EQ(files(), QStringList());
    }
}

}  // namespace nubivane::testing
