// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/server_memory.h"
#include "support/fixtures.h"
#include "support/modal.h"
#include "windows/publish/frm_ftp.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QWheelEvent>

namespace nubivane::testing {

namespace {

constexpr char PortText[] = "Type a valid ftp port";
constexpr char SeparatorText[] = "Insert the folder name without separators";
constexpr char Absent[] = "(absent)";

const QList<Setting> AllSettings{Setting::FtpUrl,          Setting::FtpPort,
                                 Setting::FtpUserName,     Setting::FtpPassword,
                                 Setting::FtpRemoteFolder, Setting::FtpNubivaneFolder,
                                 Setting::FtpLoginType,    Setting::UploadSymbols,
                                 Setting::UploadMaps,      Setting::UploadHtmlPage};

/// "Ftp settings", worked as a person does, with the settings that it leaves.
class FtpDialog : public WorkspaceFixture {
  protected:
    /// Opens the dialog at a tab, takes the steps in it, and closes it if they did not.
    void run(const std::function<void()>& steps, FtpTab tab = FtpTab::Server) {
        frmFtp dialog(workspace, shell, nullptr);
        QObject::connect(&dialog, &frmFtp::helpAsked, &dialog,
                         [this](const QString& topic) { topics << topic; });
        dialog_ = &dialog;
        withModal([&] { dialog.Init(tab); }, [&](QWidget&) { steps(); });
        dialog_ = nullptr;
    }

    QLineEdit& box(const char* name) { return part<QLineEdit>(*dialog_, name); }
    QAbstractButton& button(const char* name) { return part<QAbstractButton>(*dialog_, name); }
    QComboBox& protocols() { return part<QComboBox>(*dialog_, "cboProtocol"); }
    QTabWidget& tabs() { return part<QTabWidget>(*dialog_, "tabFtp"); }
    void press(const char* name) {
        // Boxes to check are wider than what can be clicked of them.
        QTest::mouseClick(&button(name), Qt::LeftButton, {}, {9, button(name).height() / 2});
    }
    /// A click on a tab.
    void choose(FtpTab tab) {
        QTabBar& bar = *tabs().tabBar();
        const QPoint middle = bar.tabRect(static_cast<int>(tab) - 1).center();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, middle);
    }
    bool isOpen() const { return dialog_->isVisible(); }
    bool canApply() { return button("cmdApply").isEnabled(); }

    /// What the store itself holds.
    QString stored(Setting setting) const {
        const SettingRow& row = rowOf(setting);
        return settings.GetSetting(row.section, row.group, row.key, Absent);
    }
    void expectNothingStored() const {
        for (const Setting setting : AllSettings) {
            EXPECT_EQ(stored(setting), Absent) << rowOf(setting).key;
        }
    }
    QStringList checks() {
        QStringList checked;
        for (const char* name : {"chkUpload0", "chkUpload1", "chkUpload2"}) {
            checked << (button(name).isChecked() ? "1" : "0");
        }
        return checked;
    }

    QStringList topics;
    frmFtp* dialog_ = nullptr;
};

}  // namespace

TEST_F(FtpDialog, OpensAtTheTabAskedForWithItsFirstFieldInUse) {
    const QList<std::pair<FtpTab, QPair<QString, QString>>> rows{
        {FtpTab::Server, {"fraFtpServer", "txtUrl"}},
        {FtpTab::Folders, {"fraFtpFolder", "txtRemoteDir"}},
        {FtpTab::UploadList, {"fraUploadList", "chkUpload0"}}};
    for (const auto& [tab, names] : rows) {
        run(
            [&, names = names] {
                EXPECT_TRUE(dialog_->isModal());
                EXPECT_EQ(dialog_->windowTitle(), "Ftp settings");
                EXPECT_EQ(tabs().currentWidget()->objectName(), names.first);
                EXPECT_EQ(QApplication::focusWidget()->objectName(), names.second);
            },
            tab);
    }
}

TEST_F(FtpDialog, AnotherTabBringsItsFrameAndFirstField) {
    run([this] {
        for (const auto& [tab, field] :
             {std::pair(FtpTab::UploadList, "chkUpload0"),
              std::pair(FtpTab::Folders, "txtRemoteDir"), std::pair(FtpTab::Server, "txtUrl")}) {
            choose(tab);
            EXPECT_EQ(QApplication::focusWidget()->objectName(), field);
            for (const char* frame : {"fraFtpServer", "fraFtpFolder", "fraUploadList"}) {
                EXPECT_EQ(part<QWidget>(*dialog_, frame).isVisible(),
                          tabs().currentWidget()->objectName() == frame);
            }
        }
        EXPECT_FALSE(canApply()) << "looking is no change";
    });
}

TEST_F(FtpDialog, EncryptionIsRequiredButOfServersOfBefore) {
    const auto expectShown = [this](Encryption encryption) {
        run([this, encryption] {
            auto& combo = part<QComboBox>(*dialog_, "cboEncryption");
            EXPECT_EQ(combo.currentData().toInt(), static_cast<int>(encryption));
            const bool open = encryption != Encryption::Required;
            EXPECT_EQ(part<QLabel>(*dialog_, "imgLock").isVisible(), open);
            EXPECT_EQ(part<QLabel>(*dialog_, "lblInClear").isVisible(), open);
        });
    };
    expectShown(Encryption::Required);
    settings.set(Setting::FtpUrl, "ftp.example.org");
    expectShown(Encryption::Offered);
    for (const Encryption stored : {Encryption::None, Encryption::Offered, Encryption::Required}) {
        settings.set(Setting::FtpEncryption, QString::number(static_cast<int>(stored)));
        expectShown(stored);
    }
}

TEST_F(FtpDialog, TheChosenEncryptionShowsItsLockAndIsStored) {
    run([this] {
        auto& combo = part<QComboBox>(*dialog_, "cboEncryption");
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Down);
        EXPECT_EQ(combo.currentText(), "When offered");
        EXPECT_TRUE(part<QLabel>(*dialog_, "imgLock").isVisible());
        EXPECT_EQ(part<QLabel>(*dialog_, "lblInClear").text(), "the password travels in clear");
        EXPECT_TRUE(canApply());
        QTest::keyClick(&combo, Qt::Key_Down);
        EXPECT_EQ(combo.currentText(), "None");
        press("cmdOK");
    });
    EXPECT_EQ(stored(Setting::FtpEncryption), "0");
}

TEST_F(FtpDialog, TheWheelLeavesTheEncryptionAsItIs) {
    run([this] {
        auto& combo = part<QComboBox>(*dialog_, "cboEncryption");
        combo.setFocus();
        QWheelEvent turn({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &turn);
        EXPECT_EQ(combo.currentIndex(), 0);
        EXPECT_FALSE(canApply());
    });
}

TEST_F(FtpDialog, AnAddressWithMoreThanAHostIsRefused) {
    for (const char* url :
         {"ftp.example.org:2121", "ftp.example.org/a/b", "ftp://host:2121", "a b", "http://host"}) {
        shell.expectMessage("Type the name of the host alone", Icon::Critical);
        run([this, url] {
            box("txtUrl").setText(url);
            press("cmdOK");
            EXPECT_TRUE(isOpen()) << url;
            EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtUrl");
        });
    }
    EXPECT_EQ(stored(Setting::FtpUrl), Absent);
}

TEST_F(FtpDialog, AnAddressIsTakenApartWhenItIsTyped) {
    run([this] {
        type(box("txtUrl"), "ftps://me@ftp.example.org:2990/htdocs/");
        QTest::keyClick(&box("txtUrl"), Qt::Key_Tab);
        EXPECT_EQ(protocols().currentData().toInt(), static_cast<int>(Protocol::FtpOverTls));
        EXPECT_EQ(box("txtUrl").text(), "ftp.example.org");
        EXPECT_EQ(box("txtPort").text(), "2990");
        EXPECT_EQ(box("txtUserName").text(), "me");
        EXPECT_EQ(box("txtRemoteDir").text(), "htdocs");
        press("cmdOK");
        EXPECT_FALSE(isOpen());
    });
    EXPECT_EQ(stored(Setting::FtpUrl), "ftps://ftp.example.org");
    EXPECT_EQ(uploadServer(settings).port, 2990);
}

TEST_F(FtpDialog, FtpIsTheProtocolUnlessAnotherIsStored) {
    const QList<QPair<QString, Protocol>> urls{{"", Protocol::Ftp},
                                               {"host", Protocol::Ftp},
                                               {"ftps://host", Protocol::FtpOverTls},
                                               {"sftp://host", Protocol::Sftp},
                                               {"file:/srv/www", Protocol::Folder},
                                               {"rclone:cloud:www", Protocol::Rclone}};
    for (const auto& [url, protocol] : urls) {
        settings.set(Setting::FtpUrl, url);
        run([&, url = url, protocol = protocol] {
            EXPECT_EQ(protocols().currentData().toInt(), static_cast<int>(protocol));
            EXPECT_FALSE(canApply()) << "looking is no change";
            const bool login = hasLogin(protocol);
            for (const char* name : {"txtPort", "optLogin0", "txtUserName", "txtPassword"}) {
                EXPECT_EQ(part<QWidget>(*dialog_, name).isEnabled(), login)
                    << name << url.toStdString();
            }
            EXPECT_EQ(part<QComboBox>(*dialog_, "cboEncryption").isEnabled(),
                      protocol == Protocol::Ftp);
            QTest::keyClicks(&box("txtRemoteDir"), "x");
            press("cmdOK");
        });
        EXPECT_EQ(stored(Setting::FtpUrl), url);
    }
}

TEST_F(FtpDialog, AnotherProtocolBringsItsPortAndItsPlace) {
    run([this] {
        protocols().setFocus();
        QTest::keyClick(&protocols(), Qt::Key_Down);
        EXPECT_EQ(box("txtPort").text(), "990");
        QTest::keyClick(&protocols(), Qt::Key_Down);
        EXPECT_EQ(protocols().currentText(), "SFTP");
        EXPECT_EQ(box("txtPort").text(), "22");
        EXPECT_TRUE(canApply());
        QTest::keyClick(&protocols(), Qt::Key_Down);
        EXPECT_EQ(part<QLabel>(*dialog_, "lblUrl").text().remove('&'), "Folder:");
        type(box("txtUrl"), "www");
        shell.expectMessage("Type the whole path of the folder", Icon::Critical);
        press("cmdOK");
        protocols().setFocus();
        QTest::keyClick(&protocols(), Qt::Key_Down);
        shell.expectMessage("Type a remote of rclone and a folder, such as remote:folder",
                            Icon::Critical);
        press("cmdOK");
        protocols().setFocus();
        QTest::keyClick(&protocols(), Qt::Key_Home);
        EXPECT_EQ(box("txtPort").text(), "21");
        box("txtPort").setText("2121");
        protocols().setFocus();
        QTest::keyClick(&protocols(), Qt::Key_Down);
        EXPECT_EQ(box("txtPort").text(), "2121") << "a port that a person has typed stays";
    });
}

TEST_F(FtpDialog, WithoutAKeyringItSaysThatThePasswordCanBeRead) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    run([this] {
        EXPECT_TRUE(part<QLabel>(*dialog_, "lblPasswordPlace").text().contains("readable"));
    });
}

TEST_F(FtpDialog, ShowsWhatWouldBeSentWithItsBytes) {
    writeFile(host("Maps/europe.jpg"), QByteArray(1234, 'x'));
    writeFile(host("Maps/two\nlines.jpg"), "x");
    run(
        [this] {
            press("chkUpload1");
            press("cmdOutlook");
            const auto& list = part<QTreeWidget>(*dialog_, "lstOutlook");
            ASSERT_EQ(list.topLevelItemCount(), 2);
            EXPECT_EQ(list.topLevelItem(1)->text(0), "Maps/europe.jpg");
            EXPECT_EQ(list.topLevelItem(1)->text(1), QLocale().toString(1234));
            EXPECT_TRUE(list.topLevelItem(0)->text(0).contains("its name holds a line end"));
            EXPECT_TRUE(
                part<QLabel>(*dialog_, "lblOutlook").text().startsWith("1 of 1 files, 1.21"));
            press("chkUpload1");
            EXPECT_EQ(list.topLevelItemCount(), 0) << "it was said of other groups";
        },
        FtpTab::UploadList);
}

TEST_F(FtpDialog, EverythingIsSentOnceWhereThatIsTicked) {
    settings.set(Setting::FtpUrl, "host");
    settings.set(Setting::FtpNubivaneFolder, "nVane");
    const auto memory = [this] {
        return ServerMemory(ServerMemory::placeOf(uploadServer(settings), settings));
    };
    ServerMemory known = memory();
    known.known = true;
    known.save();
    const auto tick = [this](bool before) {
        run(
            [this, before] {
                EXPECT_EQ(button("chkEverything").isChecked(), before);
                press("chkEverything");
                EXPECT_TRUE(canApply());
                press("cmdOK");
            },
            FtpTab::UploadList);
    };
    tick(false);
    EXPECT_TRUE(memory().everything);
    tick(true);
    EXPECT_FALSE(memory().everything);
}

TEST_F(FtpDialog, SaysWhatEachFieldIs) {
    run([this] {
        const QList<QPair<const char*, const char*>> texts{
            {"lblUrl", "Ftp host address:"},
            {"lblPort", "Port:"},
            {"lblUserName", "Username:"},
            {"lblPassword", "Password:"},
            {"lblRemoteDir", "When connected switch to the remote folder:"},
            {"lblnVaneDir", "Nubivane folder:"},
            {"lblUpload", "Select files to upload to the ftp server"}};
        for (const auto& [name, text] : texts) {
            EXPECT_EQ(part<QLabel>(*dialog_, name).text().remove('&'), text);
        }
        const QList<QPair<const char*, const char*>> captions{{"optLogin0", "Normal"},
                                                              {"optLogin1", "Anonymous"},
                                                              {"chkUpload0", "Symbols"},
                                                              {"chkUpload1", "Maps"},
                                                              {"chkUpload2", "Html page"}};
        for (const auto& [name, text] : captions) {
            EXPECT_EQ(button(name).text().remove('&'), text);
        }
        QStringList captionsOfTabs;
        for (int i = 0; i < tabs().count(); ++i) {
            captionsOfTabs << tabs().tabText(i).remove('&');
        }
        EXPECT_EQ(captionsOfTabs, QStringList({"Server", "Folders", "Upload list"}));
    });
}

TEST_F(FtpDialog, ShowsTheDefaults) {
    run([this] {
        EXPECT_EQ(box("txtUrl").text(), "");
        EXPECT_EQ(box("txtPort").text(), "21");
        EXPECT_EQ(box("txtUserName").text(), "");
        EXPECT_EQ(box("txtPassword").text(), "");
        EXPECT_EQ(box("txtRemoteDir").text(), "");
        EXPECT_EQ(box("txtnVaneDir").text(), "");
        EXPECT_TRUE(button("optLogin0").isChecked());
        EXPECT_EQ(checks(), QStringList({"0", "0", "0"}));
        EXPECT_FALSE(canApply());
    });
    expectNothingStored();
}

TEST_F(FtpDialog, ShowsWhatIsStored) {
    settings.set(Setting::FtpUrl, "ftp.example.org");
    settings.set(Setting::FtpPort, "2121");
    settings.set(Setting::FtpUserName, "me");
    settings.set(Setting::FtpPassword, " p w ");
    settings.set(Setting::FtpRemoteFolder, "a/b");
    settings.set(Setting::FtpNubivaneFolder, "nVane");
    settings.set(Setting::FtpLoginType, "1");
    settings.set(Setting::UploadMaps, "1");
    run([this] {
        EXPECT_EQ(box("txtUrl").text(), "ftp.example.org");
        EXPECT_EQ(box("txtPort").text(), "2121");
        EXPECT_EQ(box("txtUserName").text(), "me");
        EXPECT_EQ(box("txtPassword").text(), " p w ");
        EXPECT_EQ(box("txtPassword").echoMode(), QLineEdit::Password);
        EXPECT_EQ(box("txtRemoteDir").text(), "a/b");
        EXPECT_EQ(box("txtnVaneDir").text(), "nVane");
        EXPECT_TRUE(button("optLogin1").isChecked());
        EXPECT_FALSE(box("txtUserName").isEnabled());
        EXPECT_EQ(checks(), QStringList({"0", "1", "0"}));
        EXPECT_FALSE(canApply());
    });
}

TEST_F(FtpDialog, ValuesThatAreNoneShowAsTheirOtherwise) {
    for (const char* port : {"21a", "", "x"}) {
        settings.set(Setting::FtpPort, port);
        run([this] { EXPECT_EQ(box("txtPort").text(), "0"); });
    }
    for (const char* login : {"2", "-1", "x", ""}) {
        settings.set(Setting::FtpLoginType, login);
        run([this] { EXPECT_TRUE(button("optLogin0").isChecked()); });
    }
    for (const char* flag : {"2", "-1", "x", ""}) {
        settings.set(Setting::UploadSymbols, flag);
        settings.set(Setting::UploadMaps, flag);
        settings.set(Setting::UploadHtmlPage, flag);
        run([this] { EXPECT_EQ(checks(), QStringList({"0", "0", "0"})); });
    }
}

TEST_F(FtpDialog, OkStoresEveryValueAsTypedAndCloses) {
    run([this] {
        type(box("txtUrl"), " ftp.example.org ");
        type(box("txtPort"), " 2121");
        type(box("txtUserName"), "me ");
        type(box("txtPassword"), "s\\e/c|r\"et ");
        choose(FtpTab::Folders);
        type(box("txtRemoteDir"), "htdocs");
        type(box("txtnVaneDir"), "nVane");
        choose(FtpTab::UploadList);
        press("chkUpload0");
        press("chkUpload2");
        press("cmdOK");
        EXPECT_FALSE(isOpen());
    });
    const QStringList expected{" ftp.example.org ",
                               " 2121",
                               "me ",
                               "s\\e/c|r\"et ",
                               "htdocs",
                               "nVane",
                               "0",
                               "1",
                               "0",
                               "1"};
    QStringList values;
    for (const Setting setting : AllSettings) {
        values << stored(setting);
    }
    EXPECT_EQ(values, expected);
    EXPECT_EQ(stored(Setting::UploadInitialized), Absent);
}

TEST_F(FtpDialog, AnAnonymousLoginIsStoredAsOneAndKeepsTheName) {
    settings.set(Setting::FtpUserName, "me");
    run([this] {
        press("optLogin1");
        press("cmdOK");
    });
    EXPECT_EQ(stored(Setting::FtpLoginType), "1");
    EXPECT_EQ(stored(Setting::FtpUserName), "me");
}

TEST_F(FtpDialog, AnAnonymousLoginNeedsNoNameAndNoPassword) {
    run([this] {
        const auto expectEnabled = [this](bool enabled) {
            for (const char* name : {"lblUserName", "txtUserName", "lblPassword", "txtPassword"}) {
                EXPECT_EQ(part<QWidget>(*dialog_, name).isEnabled(), enabled) << name;
            }
        };
        expectEnabled(true);
        press("optLogin1");
        expectEnabled(false);
        press("optLogin0");
        expectEnabled(true);
    });
}

TEST_F(FtpDialog, APortThatIsNoNumberIsRefusedWithNothingStored) {
    for (const char* port : {"21a", "x", "", "  "}) {
        for (const char* command : {"cmdOK", "cmdApply"}) {
            run([&] {
                type(box("txtPort"), port);
                choose(FtpTab::UploadList);
                press("chkUpload1");
                shell.expectMessage(PortText, Icon::Critical);
                press(command);
                EXPECT_TRUE(isOpen()) << port;
                EXPECT_TRUE(canApply()) << port;
                EXPECT_EQ(tabs().currentWidget()->objectName(), "fraFtpServer");
                EXPECT_TRUE(box("txtPort").hasFocus());
                EXPECT_EQ(box("txtPort").selectedText(), port);
            });
        }
    }
    expectNothingStored();
}

TEST_F(FtpDialog, AnyNumberIsAPort) {
    for (const char* port : {"0", "99999", " 21 "}) {
        run([&] {
            type(box("txtPort"), port);
            press("cmdOK");
            EXPECT_FALSE(isOpen()) << port;
        });
        EXPECT_EQ(stored(Setting::FtpPort), port);
    }
}

TEST_F(FtpDialog, SeparatorsInAFolderAreRefusedAtTheirField) {
    for (const char* command : {"cmdOK", "cmdApply"}) {
        for (const char* folder : {"a/b", "a\\b", "/", "\\"}) {
            for (const char* field : {"txtRemoteDir", "txtnVaneDir"}) {
                run([&] {
                    choose(FtpTab::Folders);
                    type(box("txtnVaneDir"), "nVane");
                    type(box(field), folder);
                    choose(FtpTab::Server);
                    shell.expectMessage(SeparatorText, Icon::Critical);
                    press(command);
                    EXPECT_TRUE(isOpen());
                    EXPECT_EQ(tabs().currentWidget()->objectName(), "fraFtpFolder");
                    EXPECT_TRUE(box(field).hasFocus());
                });
            }
        }
    }
    expectNothingStored();
}

TEST_F(FtpDialog, TheFirstFaultIsTheOneThatIsTold) {
    run([this] {
        type(box("txtPort"), "x");
        choose(FtpTab::Folders);
        type(box("txtRemoteDir"), "a/b");
        type(box("txtnVaneDir"), "c/d");
        shell.expectMessage(PortText, Icon::Critical);
        press("cmdOK");
        type(box("txtPort"), "21");
        shell.expectMessage(SeparatorText, Icon::Critical);
        press("cmdOK");
        EXPECT_TRUE(box("txtRemoteDir").hasFocus());
        type(box("txtRemoteDir"), "a");
        shell.expectMessage(SeparatorText, Icon::Critical);
        press("cmdOK");
        EXPECT_TRUE(box("txtnVaneDir").hasFocus());
    });
    expectNothingStored();
}

TEST_F(FtpDialog, WithoutAFolderOfTheProgramTheRemoteFolderIsFree) {
    for (const char* blank : {"", "  "}) {
        run(
            [&] {
                type(box("txtRemoteDir"), "a/b");
                type(box("txtnVaneDir"), blank);
                press("cmdOK");
                EXPECT_FALSE(isOpen());
            },
            FtpTab::Folders);
        EXPECT_EQ(stored(Setting::FtpRemoteFolder), "a/b");
    }
}

TEST_F(FtpDialog, EveryChangeEnablesApply) {
    const QList<std::pair<const char*, FtpTab>> boxes{
        {"txtUrl", FtpTab::Server},         {"txtPort", FtpTab::Server},
        {"txtUserName", FtpTab::Server},    {"txtPassword", FtpTab::Server},
        {"txtRemoteDir", FtpTab::Folders},  {"txtnVaneDir", FtpTab::Folders},
        {"optLogin1", FtpTab::Server},      {"chkUpload0", FtpTab::UploadList},
        {"chkUpload1", FtpTab::UploadList}, {"chkUpload2", FtpTab::UploadList}};
    for (const auto& [name, tab] : boxes) {
        run(
            [&, name = name] {
                ASSERT_FALSE(canApply()) << name;
                if (auto* field = dialog_->findChild<QLineEdit*>(name)) {
                    QTest::keyClicks(field, "1");
                } else {
                    press(name);
                }
                EXPECT_TRUE(canApply()) << name;
            },
            tab);
    }
}

TEST_F(FtpDialog, ApplyStoresStaysOpenAndIsDisabledUntilTheNextChange) {
    run([this] {
        type(box("txtUrl"), "first");
        press("cmdApply");
        EXPECT_TRUE(isOpen());
        EXPECT_FALSE(canApply());
        EXPECT_EQ(stored(Setting::FtpUrl), "first");
        type(box("txtUrl"), "second");
        EXPECT_TRUE(canApply());
        press("cmdCancel");
        EXPECT_FALSE(isOpen());
    });
    EXPECT_EQ(stored(Setting::FtpUrl), "first");
}

TEST_F(FtpDialog, CancelAndEscapeStoreNothing) {
    run([this] {
        type(box("txtUrl"), "other");
        press("cmdCancel");
        EXPECT_FALSE(isOpen());
    });
    run([this] {
        type(box("txtUrl"), "other");
        QTest::keyClick(&box("txtUrl"), Qt::Key_Escape);
        EXPECT_FALSE(isOpen());
    });
    expectNothingStored();
}

TEST_F(FtpDialog, SettingsThatCannotBeStoredAreNotLost) {
    QDir().mkpath(temporary.file("in-the-way"));
    SettingsStore nowhere(temporary.file("in-the-way"));
    Workspace elsewhere(workspace.folder, nowhere);
    frmFtp dialog(elsewhere, shell, nullptr);
    dialog_ = &dialog;
    withModal([&] { dialog.Init(FtpTab::Server); },
              [this](QWidget&) {
                  type(box("txtUrl"), "ftp.example.org");
                  shell.expectMessage("The settings could not be saved.", Icon::Critical);
                  press("cmdOK");
                  EXPECT_TRUE(isOpen());
                  EXPECT_EQ(box("txtUrl").text(), "ftp.example.org");
                  EXPECT_TRUE(canApply());
              });
}

TEST_F(FtpDialog, ATextBoxSelectsItsWholeTextWhenItTakesTheFocus) {
    settings.set(Setting::FtpUrl, "ftp.example.org");
    settings.set(Setting::FtpUserName, "me");
    run([this] {
        QCoreApplication::processEvents();
        EXPECT_EQ(box("txtUrl").selectedText(), "ftp.example.org");
        for (const char* name : {"txtUserName", "txtPort", "txtUrl"}) {
            QTest::mouseClick(&box(name), Qt::LeftButton, {}, {4, box(name).height() / 2});
            QCoreApplication::processEvents();
            EXPECT_EQ(box(name).selectedText(), box(name).text()) << name;
        }
    });
}

TEST_F(FtpDialog, HelpOpensItsTopic) {
    run([this] {
        press("cmdHelp");
        EXPECT_TRUE(isOpen());
    });
    EXPECT_EQ(topics, QStringList("ftpSettings.htm"));
}

TEST_F(FtpDialog, ReturnIsOk) {
    run([this] {
        type(box("txtUrl"), "ftp.example.org");
        QTest::keyClick(&box("txtUrl"), Qt::Key_Return);
        EXPECT_FALSE(isOpen());
    });
    EXPECT_EQ(stored(Setting::FtpUrl), "ftp.example.org");
}

TEST_F(FtpDialog, TheTabKeyWalksAsTheEyeDoes) {
    const QList<std::pair<FtpTab, QStringList>> rows{
        {FtpTab::Server,
         {"txtUrl", "txtPort", "cboEncryption", "optLogin0", "txtUserName", "txtPassword"}},
        {FtpTab::Folders, {"txtRemoteDir", "txtnVaneDir"}},
        {FtpTab::UploadList,
         {"chkUpload0", "chkUpload1", "chkUpload2", "chkEverything", "cmdOutlook", "lstOutlook"}}};
    for (const auto& [tab, fields] : rows) {
        // The protocol stands above the field that is used first.
        const QStringList before(tab == FtpTab::Server ? QStringList("cboProtocol")
                                                       : QStringList());
        run(
            [&, fields = fields] {
                box("txtUrl").setText("changed");  // enables cmdApply
                QStringList names;
                QWidget* const first = QApplication::focusWidget();
                do {
                    names << QApplication::focusWidget()->objectName();
                    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                } while (QApplication::focusWidget() != first && names.size() < 30);
                EXPECT_EQ(names, fields +
                                     QStringList({"cmdOK", "cmdCancel", "cmdApply", "cmdHelp",
                                                  "qt_tabwidget_tabbar"}) +
                                     before);
            },
            tab);
    }
}

TEST_F(FtpDialog, NoTwoControlsInSightShareAnAccessKey) {
    for (const FtpTab tab : {FtpTab::Server, FtpTab::Folders, FtpTab::UploadList}) {
        run(
            [this] {
                QStringList keys;
                const auto note = [&keys](const QString& caption) {
                    const qsizetype at = caption.indexOf(u'&');
                    if (at >= 0) {
                        keys << caption.mid(at + 1, 1).toUpper();
                    }
                };
                for (const QAbstractButton* control : dialog_->findChildren<QAbstractButton*>()) {
                    note(control->isVisible() ? control->text() : QString());
                }
                for (const QLabel* label : dialog_->findChildren<QLabel*>()) {
                    note(label->isVisible() ? label->text() : QString());
                }
                for (int i = 0; i < tabs().count(); ++i) {
                    note(tabs().tabText(i));
                }
                EXPECT_GE(keys.size(), 7);
                EXPECT_EQ(keys.removeDuplicates(), 0);
            },
            tab);
    }
}

TEST_F(FtpDialog, AccessKeysReachTheFrameInSight) {
    run(
        [this] {
            for (const Qt::Key key : {Qt::Key_Y, Qt::Key_M, Qt::Key_P}) {
                QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
            }
            const QStringList all{"1", "1", "1"};
            // Qt shows a box being pressed for a moment before it changes.
            EXPECT_TRUE(QTest::qWaitFor([&] { return checks() == all; }));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::AltModifier);
            EXPECT_TRUE(box("txtUrl").hasFocus());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::AltModifier);
            EXPECT_TRUE(box("txtPort").hasFocus());
            EXPECT_EQ(checks(), all);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::AltModifier);
            EXPECT_TRUE(box("txtRemoteDir").hasFocus());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
            EXPECT_TRUE(box("txtnVaneDir").hasFocus());
        },
        FtpTab::UploadList);
}

TEST_F(FtpDialog, EveryControlThatTakesTheFocusHasAName) {
    for (const FtpTab tab : {FtpTab::Server, FtpTab::Folders, FtpTab::UploadList}) {
        run(
            [this] {
                for (QWidget* widget : dialog_->findChildren<QWidget*>()) {
                    if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() ||
                        widget->inherits("QTabBar")) {
                        continue;
                    }
                    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
                    ASSERT_NE(face, nullptr);
                    EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
                        << widget->objectName().toStdString();
                }
            },
            tab);
    }
}

}  // namespace nubivane::testing
