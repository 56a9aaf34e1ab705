// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ftp_servers.h"
#include "support/modal.h"
#include "windows/services/frm_bug_report.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace nubivane::testing {

namespace {

constexpr char ReportFolder[] = "software/bugreport/nVane/6.0.0";
constexpr char Thanks[] =
    "Thank you for your contributions, the bug report has been successfully sent. We appreciate "
    "your feedback which is used in our continuing effort to enhance Nubivane.";
constexpr char CannotConnect[] = "Cannot connect to the server";

/// "Report a bug", worked as a person does.
class BugReportWindow : public WorkspaceFixture {
  protected:
    void run(const FtpServer& server, const std::function<void()>& steps,
             const FtpOptions& options = shortLimits()) {
        frmBugReport window(workspace.folder, server, shell, nullptr, options);
        window_ = &window;
        withModal([&] { window.exec(); }, [&](QWidget&) { steps(); });
    }
    QComboBox& system() { return partOf<QComboBox>(*window_, "cboWindows"); }
    QPlainTextEdit& error() { return partOf<QPlainTextEdit>(*window_, "txtErrorMessage"); }
    QPlainTextEdit& circumstances() { return partOf<QPlainTextEdit>(*window_, "txtCircumstances"); }
    QPushButton& button(const char* name) { return partOf<QPushButton>(*window_, name); }
    void press(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    bool isOpen() const { return window_->isVisible(); }

    void choose(const QString& text) { system().setCurrentText(text); }
    void fillIn() {
        choose("Windows XP");
        type(error(), "It says no");
        type(circumstances(), "Always");
    }
    QStringList localFiles() const { return QDir(host("")).entryList(QDir::Files); }

    frmBugReport* window_ = nullptr;
};

}  // namespace

TEST_F(BugReportWindow, AsksForThreeFacts) {
    run({}, [this] {
        EXPECT_EQ(window_->windowTitle(), "Report a bug");
        EXPECT_EQ(partOf<QLabel>(*window_, "lblWindows").text().remove('&'),
                  "Windows operative system:");
        EXPECT_EQ(partOf<QLabel>(*window_, "lblErrorMessage").text().remove('&'),
                  "Complete message error text:");
        QStringList systems;
        for (int i = 0; i < system().count(); ++i) {
            systems << system().itemText(i);
        }
        EXPECT_EQ(systems, QStringList({"Select a version", "Windows NT", "Windows 2000",
                                        "Windows ME", "Windows XP", "Windows Server 2003",
                                        "Windows Vista 32 bit", "Windows Vista 64 bit", "Other"}));
        EXPECT_EQ(system().currentIndex(), 0);
        EXPECT_EQ(error().toPlainText(), "Type text here");
        EXPECT_EQ(circumstances().toPlainText(), "Type text here");
    });
}

TEST_F(BugReportWindow, WhatIsMissingIsAskedForInOrder) {
    run({}, [this] {
        shell.expectMessage("Enter the windows version", Icon::Exclamation);
        press("cmdSend");
        EXPECT_TRUE(system().hasFocus());
        choose("Other");
        for (const char* nothing : {"Type text here", "", "   ", "\n"}) {
            error().setPlainText(nothing);
            shell.expectMessage("Enter the error message", Icon::Exclamation);
            press("cmdSend");
            EXPECT_TRUE(error().hasFocus());
            button("cmdSend").setFocus();
        }
        type(error(), "It says no");
        for (const char* nothing : {"Type text here", "", "   ", "\n"}) {
            circumstances().setPlainText(nothing);
            shell.expectMessage("Enter the circumstances in which the error occurred",
                                Icon::Exclamation);
            press("cmdSend");
            EXPECT_TRUE(circumstances().hasFocus());
            button("cmdSend").setFocus();
        }
        EXPECT_TRUE(isOpen());
    });
    EXPECT_EQ(localFiles(), QStringList());
}

TEST_F(BugReportWindow, ThePromptComesBackUnlessAButtonIsNext) {
    run({}, [this] {
        error().setFocus();
        EXPECT_EQ(error().toPlainText(), "");
        circumstances().setFocus();
        EXPECT_EQ(error().toPlainText(), "Type text here");
        for (const char* name : {"cmdSend", "cmdCancel"}) {
            error().setFocus();
            button(name).setFocus();
            EXPECT_EQ(error().toPlainText(), "") << name;
        }
    });
}

TEST_F(BugReportWindow, ASentReportIsThankedForAfterTheWindowHasClosed) {
    OwnFtpServer server;
    QDir().mkpath(server.file(ReportFolder));
    run(server.address(), [&] {
        fillIn();
        shell.expectMessage(Thanks, Icon::Information);
        press("cmdSend");
        EXPECT_FALSE(isOpen());
    });
    ASSERT_EQ(server.tree().size(), 1);
    EXPECT_TRUE(server.tree().firstKey().startsWith(QLatin1String(ReportFolder) + '/'));
    EXPECT_EQ(server.tree().first(), bugReportXml({"Windows XP", "It says no", "Always"}));
    EXPECT_EQ(localFiles(), QStringList());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(BugReportWindow, AFailureOfAnyStepIsTheOneMessageAndTheReportIsLost) {
    for (const char* fault : {"USER=drop", "PASS=530 no", "CWD=550 no", "CWD=drop", "EPSV=drop",
                              "STOR=553 no", "STOR=drop", "STOR=452", "STOR=silent"}) {
        OwnFtpServer server({"--fault", fault});
        QDir().mkpath(server.file(ReportFolder));
        run(server.address(), [&] {
            fillIn();
            shell.expectMessage(CannotConnect, Icon::Critical);
            press("cmdSend");
            EXPECT_FALSE(isOpen()) << fault;
        });
        EXPECT_EQ(localFiles(), QStringList()) << fault;
        EXPECT_EQ(shell.pointer, Pointer::Default) << fault;
    }
}

TEST_F(BugReportWindow, WithoutAServerItCannotConnect) {
    run({}, [this] {
        fillIn();
        shell.expectMessage(CannotConnect, Icon::Critical);
        press("cmdSend");
        EXPECT_FALSE(isOpen());
    });
}

TEST_F(BugReportWindow, CancelWorksWhileTheServerIsSilent) {
    OwnFtpServer server({"--fault", "STOR=silent"});
    QDir().mkpath(server.file(ReportFolder));
    FtpOptions patient = shortLimits();
    patient.response = std::chrono::hours(1);
    patient.stall = std::chrono::hours(1);
    run(
        server.address(),
        [&] {
            fillIn();
            QTimer often;
            bool pressed = false;
            QObject::connect(&often, &QTimer::timeout, [&] {
                if (!pressed && !server.commands().filter("STOR ").isEmpty()) {
                    pressed = true;
                    EXPECT_EQ(shell.pointer, Pointer::Hourglass);
                    EXPECT_FALSE(button("cmdSend").isEnabled());
                    EXPECT_FALSE(error().isEnabled());
                    press("cmdCancel");
                }
            });
            often.start(10);
            press("cmdSend");
            EXPECT_TRUE(pressed);
            EXPECT_FALSE(isOpen());
        },
        patient);
    EXPECT_EQ(localFiles(), QStringList());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(BugReportWindow, CancelAndEscapeSendNothing) {
    OwnFtpServer server;
    run(server.address(), [this] {
        fillIn();
        press("cmdCancel");
        EXPECT_FALSE(isOpen());
    });
    run(server.address(), [this] {
        fillIn();
        QTest::keyClick(&error(), Qt::Key_Escape);
        EXPECT_FALSE(isOpen());
    });
    EXPECT_EQ(server.commands(), QStringList());
}

TEST_F(BugReportWindow, TheTabKeyWalksAsTheEyeDoes) {
    run({}, [this] {
        QStringList names;
        QWidget* const first = QApplication::focusWidget();
        do {
            names << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && names.size() < 20);
        EXPECT_EQ(names, QStringList({"cboWindows", "txtErrorMessage", "txtCircumstances",
                                      "cmdSend", "cmdCancel"}));
    });
}

}  // namespace nubivane::testing
