// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/ftp_dialog_fixture.h"

#include <QDir>

namespace nubivane::testing {

namespace {

constexpr char PortText[] = "Type a valid ftp port";
constexpr char SeparatorText[] = "Insert the folder name without separators";

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
                EXPECT_EQ(partOf<QWidget>(*dialog_, frame).isVisible(),
                          tabs().currentWidget()->objectName() == frame);
            }
        }
        EXPECT_FALSE(canApply()) << "looking is no change";
    });
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
            EXPECT_EQ(partOf<QLabel>(*dialog_, name).text().remove('&'), text);
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
                EXPECT_EQ(partOf<QWidget>(*dialog_, name).isEnabled(), enabled) << name;
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

TEST_F(FtpDialog, HelpOpensItsTopic) {
    run([this] {
        press("cmdHelp");
        EXPECT_TRUE(isOpen());
    });
    EXPECT_EQ(topics, QStringList("ftpSettings.htm"));
}

}  // namespace nubivane::testing
