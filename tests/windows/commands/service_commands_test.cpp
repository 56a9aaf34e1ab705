// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/service_commands.h"

#include "support/dialog_parts.h"
#include "support/editor_fixture.h"
#include "support/ftp_servers.h"
#include "support/steps.h"
#include "support/web_server.h"
#include "windows/services/frm_download.h"

#include <QDir>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>

namespace nubivane::testing {

namespace {

constexpr char Question[] =
    "The server holds an updated version of Nubivane. Would you like to download the "
    "installation file now ? ";
constexpr char UpToDate[] = "The current version of Nubivane (6.0.0) is already up-to-date.";

/// Sets a variable of the environment for as long as it lives.
class EnvironmentValue {
  public:
    EnvironmentValue(const char* name, const QString& value) : name_(name), before_(qgetenv(name)) {
        qputenv(name, value.toLocal8Bit());
    }
    ~EnvironmentValue() { qputenv(name_, before_); }
    EnvironmentValue(const EnvironmentValue&) = delete;
    EnvironmentValue& operator=(const EnvironmentValue&) = delete;

  private:
    const char* name_;
    QByteArray before_;
};

/// The commands that reach the publisher, on the real main window.
class Services : public EditorFixture {
  protected:
    Services() { start(); }

    void use(const Publisher& publisher, const FtpOptions& options = shortLimits()) {
        commands_ = std::make_unique<Commands>(nullptr);
        services_ = std::make_unique<ServiceCommands>(Editor{workspace, shell, window()},
                                                      *commands_, &window(), publisher, options);
    }
    void choose(const char* command) { commands_->action(command)->trigger(); }

    /// Publisher whose list of versions lies on a server.
    static Publisher versionsOn(const FtpServerProcess& server, const QByteArray& version) {
        writeFile(server.file("software/vsrchk.xml"),
                  "<versions><row name=\"nVane\" version=\"" + version + "\"/></versions>");
        Publisher publisher;
        publisher.versions = server.address();
        return publisher;
    }

    /// Opens a window by `open`, which has to be of a name, and takes the steps in it.
    void expectModal(const char* name, const std::function<void()>& open,
                     const std::function<void(QWidget&)>& use) {
        Steps steps([] {});
        steps.when([] { return QApplication::activeModalWidget(); },
                   [&] {
                       QWidget& modal = *QApplication::activeModalWidget();
                       EXPECT_EQ(modal.objectName(), name);
                       EXPECT_EQ(modal.parentWidget(), &window());
                       use(modal);
                       QTest::keyClick(&modal, Qt::Key_Escape);
                   });
        open();
    }

  private:
    std::unique_ptr<Commands> commands_;
    std::unique_ptr<ServiceCommands> services_;
};

}  // namespace

TEST_F(Services, TheMainWindowHasItsCommands) {
    for (const auto& [command, name] :
         {std::pair("mnuPack", "frmPack"), std::pair("mnuBugReport", "frmBugReport"),
          std::pair("mnuInfo", "frmAbout")}) {
        ASSERT_TRUE(window().commands().action(command)->isEnabled());
        expectModal(
            name, [&, command = command] { trigger(command); }, [](QWidget&) {});
    }
    // This build knows no server; without a network that is told first.
    shell.network = false;
    shell.expectMessage("No connection to the internet is currently available", Icon::Critical);
    trigger("mnuLastVersion");
    shell.network = true;
    shell.expectMessage("Cannot connect to the server", Icon::Critical);
    trigger("mnuLastVersion");
    EXPECT_TRUE(window().acceptsInput());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

/// How somebody gives up while the server lets the editor wait.
struct WayToGiveUp {
    const char* name;
    void (*go)(QDialog& asking);
};

const WayToGiveUp waysToGiveUp[] = {
    {"Escape", [](QDialog& asking) { QTest::keyClick(&asking, Qt::Key_Escape); }},
    {"EscapeInTheMomentBeforeItsWindowIsActive", [](QDialog& asking) { asking.reject(); }},
    {"ClosingTheWindow", [](QDialog& asking) { asking.close(); }},
};

class GivenUp : public Services, public ::testing::WithParamInterface<WayToGiveUp> {};

TEST_P(GivenUp, TheCheckForANewVersionEndsWhileTheServerIsSilent) {
    for (const char* verb : {"USER", "RETR"}) {
        OwnFtpServer server({"--fault", QLatin1String(verb) + "=silent"});
        Publisher publisher = versionsOn(server, "7.0.0");
        FtpOptions patient = shortLimits();
        patient.response = patient.stall = std::chrono::hours(1);
        use(publisher, patient);
        const auto asking = [this] {
            auto* dialog = window().findChild<QProgressDialog*>("dlgAsking");
            return dialog && dialog->isVisible() ? dialog : nullptr;
        };
        Steps steps([&] {
            if (asking()) {
                asking()->cancel();
            }
        });
        steps.when(asking, [&] { GetParam().go(*asking()); });
        choose("mnuLastVersion");
        EXPECT_FALSE(asking());
        EXPECT_TRUE(window().acceptsInput());
        EXPECT_EQ(shell.pointer, Pointer::Default);
    }
}

INSTANTIATE_TEST_SUITE_P(, GivenUp, ::testing::ValuesIn(waysToGiveUp),
                         [](const auto& way) { return way.param.name; });

TEST_F(Services, TheWebCommandOpensThePublishersPage) {
    Publisher publisher;
    publisher.webAddress = "http://www.example.org/software";
    use(publisher);
    choose("mnuWeb");
    EXPECT_EQ(shell.openedAddresses, QStringList("http://www.example.org/software"));
}

TEST_F(Services, WithoutAnAddressTheWebCommandTellsSo) {
    use({});
    shell.expectMessage("The publisher's web address is not known.", Icon::Exclamation);
    choose("mnuWeb");
    EXPECT_EQ(shell.openedAddresses, QStringList());
}

TEST_F(Services, TheAboutBoxHasThePublishersAddresses) {
    Publisher publisher;
    publisher.webAddress = "http://www.example.org";
    publisher.supportAddress = "support@example.org";
    use(publisher);
    expectModal(
        "frmAbout", [this] { choose("mnuInfo"); },
        [](QWidget& about) {
            EXPECT_EQ(part<QLabel>(about, "lblWebLink")->text(), "http://www.example.org");
            EXPECT_EQ(part<QLabel>(about, "lblEMail")->text(), "support@example.org");
        });
}

TEST_F(Services, PacksComeFromThePublishersServer) {
    OwnFtpServer server;
    writeFile(server.file("software/update/nVane/6.0.0/night/moon.gif"), "moon");
    Publisher publisher;
    publisher.packs = server.address();
    use(publisher);
    Steps steps([] {});
    QWidget* pack = nullptr;
    steps.when(
        [&] {
            pack = QApplication::activeModalWidget();
            return pack && part<QPushButton>(*pack, "cmdStart")->isEnabled();
        },
        [&] { clickPart(*pack, "cmdStart"); });
    steps.when([&] { return part<QPushButton>(*pack, "cmdCancelClose")->text() == "Close"; },
               [&] { clickPart(*pack, "cmdCancelClose"); });
    choose("mnuPack");
    EXPECT_EQ(readFile(host("Symbols/night/moon.gif")), "moon");
}

TEST_F(Services, AnUpToDateProgramIsTold) {
    OwnFtpServer server;
    use(versionsOn(server, "6.0.0"));
    shell.expectMessage(UpToDate, Icon::Information);
    choose("mnuLastVersion");
    EXPECT_TRUE(window().acceptsInput());
}

TEST_F(Services, NoMeansNoDownload) {
    OwnFtpServer server;
    use(versionsOn(server, "6.0.1"));
    shell.expectMessage(Question, Icon::Question, Buttons::YesNo, Answer::No);
    choose("mnuLastVersion");
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(Services, YesDownloadsTheInstaller) {
    const EnvironmentValue home("HOME", temporary.file("home"));
    const EnvironmentValue config("XDG_CONFIG_HOME", temporary.file("home/.config"));
    QDir().mkpath(temporary.file("home"));
    OwnFtpServer server;
    WebServerProcess web;
    Publisher publisher = versionsOn(server, "6.0.1");
    publisher.downloadHost = web.host();
    use(publisher);
    shell.expectMessage(Question, Icon::Question, Buttons::YesNo, Answer::Yes);
    Steps steps([] {});
    QWidget* download = nullptr;
    steps.when(
        [&] {
            download = QApplication::activeModalWidget();
            return download && part<QPushButton>(*download, "cmdCancelClose")->text() == "Close";
        },
        [&] {
            EXPECT_EQ(download->objectName(), "frmDownload");
            EXPECT_EQ(shell.pointer, Pointer::Default);
            clickPart(*download, "cmdCancelClose");
        });
    choose("mnuLastVersion");
    EXPECT_EQ(readFile(frmDownload::standardFolder() + "/nVane_6.0.1.EXE"),
              WebServerProcess::content());
    EXPECT_TRUE(frmDownload::standardFolder().startsWith(temporary.path()));
}

TEST_F(Services, ASilentServerLeavesNoHangAndMeanwhileNoInput) {
    OwnFtpServer server({"--fault", "RETR=silent"});
    use(versionsOn(server, "6.0.1"));
    Steps steps([] {});
    steps.when([&] { return !server.commands().filter("RETR").isEmpty(); },
               [this] {
                   EXPECT_FALSE(window().acceptsInput());
                   EXPECT_EQ(shell.pointer, Pointer::Hourglass);
                   window().close();
                   EXPECT_TRUE(window().isVisible());
               });
    shell.expectMessage("Cannot check for update at this time: try again later", Icon::Critical);
    choose("mnuLastVersion");
    EXPECT_TRUE(window().acceptsInput());
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

}  // namespace nubivane::testing
