// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ftp_servers.h"
#include "support/modal.h"
#include "support/steps.h"
#include "windows/services/frm_pack.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

namespace nubivane::testing {

namespace {

constexpr char Remote[] = "software/update/nVane/6.0.0/";
constexpr char WillBe[] = "The following weather symbols packs will be downloaded and installed";
constexpr char AreBeing[] = "The weather symbols extended pack are being downloaded and installed";

/// "Weather symbols extended pack", worked as a person does.
class PackWindow : public WorkspaceFixture {
  protected:
    static void fill(const FtpServerProcess& server) {
        writeFile(server.file(QLatin1String(Remote) + "night/moon.gif"), "moon");
        writeFile(server.file(QLatin1String(Remote) + "night/stars.gif"), QByteArray(200000, '*'));
        writeFile(server.file(QLatin1String(Remote) + "set-1/sun.gif"), "another sun");
    }
    void run(const FtpServer& server, const std::function<void()>& steps,
             const FtpOptions& options = shortLimits()) {
        frmPack window(workspace.folder, server, shell, nullptr, options);
        window_ = &window;
        withModal([&] { window.Init(); },
                  [&](QWidget&) {
                      steps();
                      window.reject();  // its close box does nothing
                  });
    }
    QPushButton& start() { return partOf<QPushButton>(*window_, "cmdStart"); }
    QPushButton& cancelClose() { return partOf<QPushButton>(*window_, "cmdCancelClose"); }
    QString lblInfo() { return partOf<QLabel>(*window_, "lblInfo").text(); }
    QString txtInfo() { return partOf<QPlainTextEdit>(*window_, "txtInfo").toPlainText(); }
    QString lblProgress() { return partOf<QLabel>(*window_, "lblProgress").text(); }
    QProgressBar& bar() { return partOf<QProgressBar>(*window_, "ProgressBar"); }
    bool progressShown() {
        return partOf<QLabel>(*window_, "lblProgress").isVisible() && bar().isVisible();
    }
    void press(QPushButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    bool isOpen() const { return window_->isVisible(); }
    void waitForText(const QString& begin) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return txtInfo().startsWith(begin); }))
            << txtInfo().toStdString();
    }

    frmPack* window_ = nullptr;
};

}  // namespace

TEST_F(PackWindow, ListsThePacksWhenItOpens) {
    OwnFtpServer server;
    fill(server);
    run(server.address(), [this] {
        EXPECT_EQ(window_->windowTitle(), "Weather symbols extended pack");
        EXPECT_EQ(cancelClose().text(), "Close");
        waitForText("night\nset-1");
        EXPECT_EQ(lblInfo(), WillBe);
        EXPECT_TRUE(start().isEnabled());
        EXPECT_FALSE(progressShown());
        EXPECT_TRUE(partOf<QPlainTextEdit>(*window_, "txtInfo").isReadOnly());
        press(cancelClose());
        EXPECT_FALSE(isOpen());
    });
}

TEST_F(PackWindow, TellsThatThereAreNone) {
    OwnFtpServer server;
    QDir().mkpath(server.file(Remote));
    run(server.address(), [this] {
        waitForText("No packs available");
        EXPECT_EQ(lblInfo(), WillBe);
        EXPECT_FALSE(start().isEnabled());
    });
}

TEST_F(PackWindow, TellsThatTheServerCannotBeReached) {
    for (const char* fault : {"PASS=530 no", "CWD=550 no", "MLSD=drop"}) {
        OwnFtpServer server({"--fault", fault});
        fill(server);
        run(server.address(), [this] {
            waitForText("Cannot connect to the ftp server...");
            EXPECT_EQ(lblInfo(), WillBe);
            EXPECT_FALSE(start().isEnabled());
            press(cancelClose());
            EXPECT_FALSE(isOpen());
        });
    }
    run({}, [this] { waitForText("Cannot connect to the ftp server..."); });
}

TEST_F(PackWindow, DownloadsThemAll) {
    OwnFtpServer server;
    fill(server);
    run(server.address(), [this] {
        waitForText("night\nset-1");
        press(start());
        EXPECT_EQ(lblInfo(), AreBeing);
        EXPECT_EQ(txtInfo(), "Download completed successfully\nnight\nset-1");
        EXPECT_EQ(lblProgress(), "");
        EXPECT_FALSE(progressShown());
        EXPECT_EQ(cancelClose().text(), "Close");
        press(cancelClose());
        EXPECT_FALSE(isOpen());
    });
    EXPECT_EQ(readFile(host("Symbols/night/moon.gif")), "moon");
    EXPECT_EQ(readFile(host("Symbols/night/stars.gif")), QByteArray(200000, '*'));
    EXPECT_EQ(readFile(host("Symbols/set-1/sun.gif")), "another sun");
}

TEST_F(PackWindow, ShowsTheFileThatIsOnItsWayAndStopsIt) {
    OwnFtpServer server({"--fault", "RETR:2=stall"});
    fill(server);
    FtpOptions patient = shortLimits();
    patient.response = std::chrono::hours(1);
    patient.stall = std::chrono::hours(1);
    run(
        server.address(),
        [this] {
            waitForText("night\nset-1");
            QTimer often;
            bool pressed = false;
            QObject::connect(&often, &QTimer::timeout, [&] {
                if (!pressed && bar().value() == 10) {  // 20,000 of 200,000 bytes
                    pressed = true;
                    EXPECT_EQ(lblInfo(), AreBeing);
                    EXPECT_EQ(txtInfo(), "");
                    EXPECT_EQ(lblProgress(), "Downloading night file: stars.gif (2 of 2)");
                    EXPECT_TRUE(progressShown());
                    EXPECT_FALSE(start().isEnabled());
                    EXPECT_EQ(cancelClose().text(), "Cancel");
                    press(cancelClose());
                    EXPECT_TRUE(isOpen());
                }
            });
            often.start(10);
            press(start());
            EXPECT_TRUE(pressed);
            EXPECT_TRUE(txtInfo().startsWith("Download interrupted...\n"));
            EXPECT_EQ(lblInfo(), WillBe);
            EXPECT_EQ(lblProgress(), "");
            EXPECT_FALSE(progressShown());
            EXPECT_TRUE(start().isEnabled());
            EXPECT_EQ(cancelClose().text(), "Close");
            press(start());
            EXPECT_EQ(txtInfo(), "Download completed successfully\nnight\nset-1");
        },
        patient);
    EXPECT_EQ(readFile(host("Symbols/night/moon.gif")), "moon");
}

TEST_F(PackWindow, AFaultInterruptsAndAllowsAnotherStart) {
    OwnFtpServer server({"--fault", "RETR:2=cut"});
    fill(server);
    run(server.address(), [this] {
        waitForText("night\nset-1");
        press(start());
        EXPECT_TRUE(txtInfo().startsWith("Download interrupted...\n"));
        EXPECT_TRUE(start().isEnabled());
        press(start());
        EXPECT_EQ(txtInfo(), "Download completed successfully\nnight\nset-1");
    });
}

TEST_F(PackWindow, OnlyItsButtonAndItsKeyCloseIt) {
    OwnFtpServer server;
    fill(server);
    run(server.address(), [this] {
        waitForText("night\nset-1");
        EXPECT_FALSE(window_->windowFlags().testFlag(Qt::WindowCloseButtonHint));
        window_->close();
        EXPECT_TRUE(isOpen());
        QTest::keyClick(window_, Qt::Key_Escape);
        EXPECT_FALSE(isOpen());
    });
}

TEST_F(PackWindow, CanBeClosedWhileTheServerLetsItWait) {
    OwnFtpServer server({"--fault", "MLSD=silent"});
    fill(server);
    FtpOptions patient = shortLimits();
    patient.response = std::chrono::hours(1);
    patient.stall = std::chrono::hours(1);
    frmPack window(workspace.folder, server.address(), shell, nullptr, patient);
    window_ = &window;
    Steps steps([&] { window.reject(); });
    steps.when([&] { return server.commands().contains("MLSD"); },
               [&] {
                   EXPECT_TRUE(isOpen());
                   press(cancelClose());
                   EXPECT_FALSE(isOpen());
               });
    window.Init();
}

}  // namespace nubivane::testing
