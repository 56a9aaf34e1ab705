// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/publish_commands.h"

#include "support/dialog_parts.h"
#include "support/editor_fixture.h"
#include "support/ftp_servers.h"
#include "support/steps.h"
#include "support/texts.h"
#include "windows/publish/frm_ftp.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>

namespace nubivane::testing {

namespace {

constexpr char Stopped[] = "Operation stopped by the user.";
constexpr char Offline[] = "No connection to the internet is currently available";
constexpr char Completed[] = "Initialition completed successfully";

/// A shell that lets events run, and a test look on at each pause and message.
class LiveShell : public ScriptedShell {
  public:
    std::function<void()> atPause = [] {};
    std::function<void()> atMessage = [] {};

    void processEvents() override {
        ScriptedShell::processEvents();
        QApplication::processEvents();
    }
    void wait(int milliseconds) override {
        ScriptedShell::wait(milliseconds);
        QApplication::processEvents();
        atPause();
    }
    /// What a person answers who is asked to trust a server, and what he was shown.
    Answer toTrust = Answer::No;
    QStringList asked;

    Answer messageBox(const Message& message) override {
        if (message.text.startsWith("The server cannot prove who it is")) {
            asked << message.text;
            EXPECT_EQ(message.buttons, Buttons::YesNo);
            EXPECT_TRUE(message.destroys) << "Enter must not trust";
            return toTrust;
        }
        atMessage();
        return ScriptedShell::messageBox(message);
    }
};

/// The commands of the menu "Ftp" on the real main window, with servers of this machine.
class Publish : public EditorFixture {
  protected:
    Publish() {
        for (const char* file : {"Forecast.htm", "Forecast.js", "Web/Forecast1.jpg"}) {
            writeFile(host(file), QByteArray("content of ") + file);
        }
        settings.set(Setting::FtpUrl, "127.0.0.1");
        settings.set(Setting::FtpUserName, FtpUser);
        settings.set(Setting::FtpPassword, FtpPassword);
        settings.set(Setting::FtpNubivaneFolder, "nVane");
        start();
    }
    ~Publish() override { workspace.ProjectChanged = false; }

    void use(const FtpServerProcess& server, FtpOptions options = shortLimits()) {
        options.port = server.port();
        commands_ = std::make_unique<Commands>(nullptr);
        publish_ = std::make_unique<PublishCommands>(Editor{workspace, live, window()}, *commands_,
                                                     &window(), options);
    }
    void choose(const char* command) { commands_->action(command)->trigger(); }

    /// The run's window; nothing when none is shown.
    frmWait* wait() const {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* found = qobject_cast<frmWait*>(widget);
            if (found && found->isVisible()) {
                return found;
            }
        }
        return nullptr;
    }
    QString info() const { return part<QLabel>(*wait(), "lblInfo")->text(); }
    void pressCancel() const { clickPart(*wait(), "cmdCancel"); }

    /// After a run, however it ended.
    void expectAllClosed(const std::string& what = {}) {
        EXPECT_FALSE(wait()) << what;
        EXPECT_TRUE(window().acceptsInput()) << what;
        EXPECT_EQ(live.pointer, Pointer::Default) << what;
    }

    /// The tab at which the settings open when `open` is called; 0 when they do not.
    int tabOpened(const std::function<void()>& open) {
        int tab = 0;
        Steps steps([] {});
        steps.when([] { return qobject_cast<frmFtp*>(QApplication::activeModalWidget()); },
                   [&] {
                       QWidget& dialog = *QApplication::activeModalWidget();
                       EXPECT_EQ(dialog.parentWidget(), &window());
                       tab = part<QTabWidget>(dialog, "tabFtp")->currentIndex() + 1;
                       dialog.close();
                   });
        open();
        return tab;
    }

    QStringList flags() const {
        QStringList values;
        for (const Setting setting : {Setting::UploadInitialized, Setting::UploadMaps,
                                      Setting::UploadSymbols, Setting::UploadHtmlPage}) {
            values << settings.text(setting);
        }
        return values;
    }

    LiveShell live;

  private:
    std::unique_ptr<Commands> commands_;
    std::unique_ptr<PublishCommands> publish_;
};

}  // namespace

TEST_F(Publish, ACertificateThatDoesNotVerifyCanBeLookedAtAndTrustedForGood) {
    const TestCertificate certificate("another.example", -10, 10);
    OwnFtpServer server({"--certificate", certificate.file});
    use(server);
    live.expectMessage(NoConnection, Icon::Critical);
    choose("mnuInitialize");
    ASSERT_EQ(live.asked.size(), 1);
    for (const char* part : {"another.example", "vouched for by", "SHA-256 fingerprint is "}) {
        EXPECT_TRUE(live.asked[0].contains(part)) << live.asked[0].toStdString();
    }
    EXPECT_EQ(server.commands(), QStringList({"AUTH TLS"}));
    EXPECT_EQ(settings.text(Setting::FtpFingerprints), "");

    live.toTrust = Answer::Yes;
    live.expectMessage(Completed, Icon::Information);
    choose("mnuInitialize");
    EXPECT_EQ(live.asked.size(), 2);
    EXPECT_TRUE(server.tree().contains("nVane/Forecast.htm"));
    EXPECT_TRUE(settings.text(Setting::FtpFingerprints).startsWith("127.0.0.1="));

    settings.set(Setting::UploadInitialized, "0");
    live.expectMessage(Completed, Icon::Information);
    choose("mnuInitialize");
    EXPECT_EQ(live.asked.size(), 2) << "it is remembered";
    expectAllClosed();
}

TEST_F(Publish, AnInitialisationShowsItselfInItsWindow) {
    OwnFtpServer server({"--delay", "0.01"});
    use(server);
    live.atPause = [&] {
        ASSERT_TRUE(wait());
        EXPECT_EQ(wait()->windowTitle(), "Initializing...");
        EXPECT_EQ(wait()->parentWidget(), &window());
        EXPECT_FALSE(window().acceptsInput());
        EXPECT_EQ(info(), "Connecting to the server...");
        EXPECT_EQ(part<QProgressBar>(*wait(), "ProgressBar")->value(), 0);
        EXPECT_FALSE(part<QLabel>(*wait(), "lblInClear")->isVisible());
    };
    Steps steps([] {});
    steps.when([&] { return wait() && info().startsWith("Uploading file"); },
               [&] {
                   EXPECT_TRUE(part<QLabel>(*wait(), "lblInClear")->isVisible());
                   EXPECT_GT(part<QProgressBar>(*wait(), "ProgressBar")->value(), 50);
               });
    live.expectMessage(Completed, Icon::Information);
    live.atMessage = [this] { expectAllClosed("before the message"); };
    choose("mnuInitialize");
    expectAllClosed();
    EXPECT_EQ(live.waits, QList<int>({500}));
    EXPECT_EQ(flags(), QStringList({"1", "2", "2", "2"}));
    EXPECT_EQ(readFile(server.file("nVane/Forecast.htm")), "content of Forecast.htm");
    EXPECT_EQ(readFile(server.file("nVane/Web/Forecast1.jpg")), "content of Web/Forecast1.jpg");
    EXPECT_TRUE(QFile::exists(server.file("nVane/Symbols/set-1/sun.gif")));
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(Publish, AnUploadSendsWhatIsChosenAndSaysNothing) {
    OwnFtpServer server;
    use(server);
    settings.set(Setting::UploadHtmlPage, "1");
    live.atPause = [&] { EXPECT_EQ(wait()->windowTitle(), "Uploading files..."); };
    choose("mnuInvia");
    expectAllClosed();
    EXPECT_EQ(flags(), QStringList({"0", "0", "0", "1"}));
    EXPECT_TRUE(QFile::exists(server.file("nVane/Forecast.htm")));
    EXPECT_FALSE(QFile::exists(server.file("nVane/Symbols/set-1/sun.gif")));
}

TEST_F(Publish, NoInputReachesTheMainWindowMeanwhile) {
    OwnFtpServer server;
    use(server);
    settings.set(Setting::UploadMaps, "1");
    const QString key = placeSymbol({100, 100});
    const QString before = frame().Sprites().Symbols().Item(key).FileGif;
    live.atPause = [this] {
        QTest::keyClick(&canvas(), Qt::Key_Delete);
        QTest::keyClick(&window(), Qt::Key_T, Qt::ControlModifier);
        click({100, 100});
        window().close();
        choose("mnuInvia");
        choose("mnuInitialize");
        EXPECT_TRUE(window().isVisible());
    };
    choose("mnuInvia");
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 1);
    EXPECT_EQ(frame().Sprites().Symbols().Item(key).FileGif, before);
    EXPECT_EQ(server.connections(), 1);
    expectAllClosed();
}

TEST_F(Publish, CancelAtAnyTimeIsToldOnceWithTheWindowClosed) {
    for (const int commands : {0, 1, 4, 12, 30}) {
        SCOPED_TRACE(commands);
        OwnFtpServer server({"--delay", "0.02"});
        use(server);
        Steps steps([this] { wait() ? pressCancel() : void(); });
        steps.when([&] { return wait() && server.commands().size() >= commands; },
                   [&] {
                       live.atMessage = [&] {
                           EXPECT_FALSE(wait());
                           EXPECT_FALSE(window().acceptsInput());
                           EXPECT_EQ(live.pointer, Pointer::Default);
                       };
                       live.expectMessage(Stopped, Icon::Exclamation);
                       pressCancel();
                   });
        choose("mnuInitialize");
        EXPECT_EQ(flags().first(), "0");
        EXPECT_FALSE(QFile::exists(server.file("nVane/Forecast.htm")));
        expectAllClosed();
    }
}

TEST_F(Publish, CancelWorksAndTheWindowRepaintsWhileALargeFileIsOnItsWay) {
    writeFile(host("Maps/europe.jpg"), QByteArray(50000000, 'x'));
    OwnFtpServer server({"--fault", "STOR=stall"});
    FtpOptions patient = shortLimits();
    patient.stall = std::chrono::hours(1);
    patient.response = std::chrono::hours(1);
    use(server, patient);
    settings.set(Setting::UploadMaps, "1");

    class PaintCounter : public QObject {
      public:
        int paints = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } counter;
    Steps steps([this] { wait() ? pressCancel() : void(); });
    steps.when([&] { return !server.commands().filter("STOR ").isEmpty(); },
               [&] {
                   ASSERT_TRUE(wait());
                   EXPECT_EQ(info(), "Uploading file " + host("Maps/europe.jpg"));
                   wait()->installEventFilter(&counter);
                   wait()->update();
               });
    steps.when([&] { return counter.paints > 0; },
               [&] {
                   live.atMessage = [&] {
                       EXPECT_FALSE(wait());
                       EXPECT_FALSE(server.commands().contains("QUIT"));
                   };
                   live.expectMessage(Stopped, Icon::Exclamation);
                   pressCancel();
               });
    choose("mnuInvia");
    expectAllClosed();
}

TEST_F(Publish, AFailureIsToldWithTheConversation) {
    OwnFtpServer server({"--fault", "CWD:2=550 not today"});
    use(server);
    live.expectMessage("Cannot find Web folder", Icon::Critical);
    choose("mnuInitialize");
    const QString cause = live.causes.last();
    EXPECT_TRUE(cause.startsWith("550 not today\n\n")) << cause.toStdString();
    EXPECT_TRUE(cause.contains("> PASS ****\n")) << cause.toStdString();
    EXPECT_FALSE(cause.contains(FtpPassword));
}

TEST_F(Publish, NamesThatCannotBeSentAreListedWhenAllElseIsThere) {
    writeFile(host("Maps/12:00.jpg"), "x");
    OwnFtpServer server;
    use(server);
    live.expectMessage("All else was sent, but for their names these cannot be:\r\n\r\n" +
                           host("Maps/12:00.jpg") + ": its name holds a colon",
                       Icon::Exclamation);
    live.expectMessage(Completed, Icon::Information);
    choose("mnuInitialize");
}

TEST_F(Publish, AConnectionThatIsLostEachTimeIsToldByItsStep) {
    struct Row {
        const char* fault;
        QString text;
    };
    for (const Row& row :
         {Row{"PASS=drop", NoConnection}, Row{"MKD=drop", "Cannot find nVane folder"},
          Row{"CWD=reset", "Cannot find nVane folder"},
          Row{"RNTO=drop", "Cannot upload " + host("Symbols/sea/wave.png") + " file"},
          Row{"QUIT=drop", {}}}) {
        SCOPED_TRACE(row.fault);
        settings.set(Setting::UploadInitialized, "0");
        OwnFtpServer server({"--fault", row.fault});
        use(server);
        if (row.text.isEmpty()) {
            live.expectMessage(Completed, Icon::Information);
        } else {
            live.expectMessage(row.text, Icon::Critical);
        }
        live.atMessage = [this] { expectAllClosed("before the message"); };
        choose("mnuInitialize");
        EXPECT_EQ(flags().first(), row.text.isEmpty() ? "1" : "0");
        expectAllClosed();
    }
}

TEST_F(Publish, AServerThatIsNotThereOrRefusesIsTold) {
    {
        OwnFtpServer server;
        use(server);
    }
    live.expectMessage(NoConnection, Icon::Critical);
    choose("mnuInitialize");
    expectAllClosed();

    OwnFtpServer server;
    use(server);
    settings.set(Setting::FtpPassword, "wrong");
    live.expectMessage(NoConnection, Icon::Critical);
    choose("mnuInitialize");
    expectAllClosed();
    EXPECT_EQ(flags(), QStringList({"0", "0", "0", "0"}));
}

TEST_F(Publish, WhatIsMissingIsToldAndLeadsToItsTab) {
    OwnFtpServer server;
    use(server);
    struct Row {
        Setting missing;
        const char* text;
        FtpTab tab;
    };
    for (const char* command : {"mnuInvia", "mnuInitialize"}) {
        for (const Row& row :
             {Row{Setting::FtpNubivaneFolder, "Enter a valid Nubivane folder", FtpTab::Folders},
              Row{Setting::FtpUserName, "Enter a valid ftp username", FtpTab::Server},
              Row{Setting::FtpUrl, "Enter a valid ftp address", FtpTab::Server}}) {
            settings.set(row.missing, "");
            live.expectMessage(row.text, Icon::Exclamation);
            EXPECT_EQ(tabOpened([&] { choose(command); }), static_cast<int>(row.tab)) << row.text;
        }
        settings.set(Setting::FtpUrl, "127.0.0.1");
        settings.set(Setting::FtpUserName, FtpUser);
        settings.set(Setting::FtpNubivaneFolder, "nVane");
    }
    EXPECT_EQ(server.commands(), QStringList());
}

TEST_F(Publish, NothingChosenLeadsToTheUploadList) {
    OwnFtpServer server;
    use(server);
    live.expectMessage("There is no file to upload. Change upload settings and retry",
                       Icon::Exclamation);
    EXPECT_EQ(tabOpened([this] { choose("mnuInvia"); }), 3);
    EXPECT_EQ(server.commands(), QStringList());
    expectAllClosed();
}

TEST_F(Publish, WithoutANetworkNothingIsTried) {
    OwnFtpServer server;
    use(server);
    settings.set(Setting::FtpUrl, "ftp.example.org");
    live.network = false;
    for (const char* command : {"mnuInvia", "mnuInitialize"}) {
        live.expectMessage(Offline, Icon::Critical);
        choose(command);
    }
    EXPECT_EQ(live.waits, QList<int>());
}

TEST_F(Publish, ASecondInitialisationAsksFirst) {
    OwnFtpServer server;
    use(server);
    settings.set(Setting::UploadInitialized, "1");
    const QString question =
        "Initialization has already been successfully completed. \r\n"
        "Do you want to proceed anyway ?";
    live.expectMessage(question, Icon::Question, Buttons::YesNo, Answer::No);
    choose("mnuInitialize");
    EXPECT_EQ(server.commands(), QStringList());
    live.expectMessage(question, Icon::Question, Buttons::YesNo, Answer::Yes);
    live.expectMessage(Completed, Icon::Information);
    choose("mnuInitialize");
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(Publish, TheMainWindowHasItsCommands) {
    EXPECT_EQ(tabOpened([this] { trigger("mnuFtpSetting"); }), 1);
    settings.set(Setting::FtpUrl, "");
    for (const char* command : {"mnuInvia", "mnuInitialize"}) {
        shell.expectMessage("Enter a valid ftp address", Icon::Exclamation);
        EXPECT_EQ(tabOpened([&] { trigger(command); }), 1);
    }
    settings.set(Setting::FtpUrl, "no host");
    shell.expectMessage(NoConnection, Icon::Critical);
    trigger("mnuInitialize");
    EXPECT_TRUE(window().acceptsInput());
}

TEST_F(Publish, HelpOfTheSettingsWithoutAHelpFileTellsSo) {
    Steps steps([] {});
    steps.when([] { return QApplication::activeModalWidget(); },
               [this] {
                   shell.expectMessage("Help not found.", Icon::Critical);
                   clickPart(*QApplication::activeModalWidget(), "cmdHelp");
                   QApplication::activeModalWidget()->close();
               });
    trigger("mnuFtpSetting");
}

}  // namespace nubivane::testing
