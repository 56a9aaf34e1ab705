// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/server_memory.h"
#include "windows/publish/ftp_dialog_fixture.h"

#include <QTreeWidget>
#include <QWheelEvent>

namespace nubivane::testing {

using FtpDialogTarget = FtpDialog;

TEST_F(FtpDialogTarget, EncryptionIsRequiredButOfServersOfBefore) {
    const auto expectShown = [this](Encryption encryption) {
        run([this, encryption] {
            auto& combo = partOf<QComboBox>(*dialog_, "cboEncryption");
            EXPECT_EQ(combo.currentData().toInt(), static_cast<int>(encryption));
            const bool open = encryption != Encryption::Required;
            EXPECT_EQ(partOf<QLabel>(*dialog_, "imgLock").isVisible(), open);
            EXPECT_EQ(partOf<QLabel>(*dialog_, "lblInClear").isVisible(), open);
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

TEST_F(FtpDialogTarget, TheChosenEncryptionShowsItsLockAndIsStored) {
    run([this] {
        auto& combo = partOf<QComboBox>(*dialog_, "cboEncryption");
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Down);
        EXPECT_EQ(combo.currentText(), "When offered");
        EXPECT_TRUE(partOf<QLabel>(*dialog_, "imgLock").isVisible());
        EXPECT_EQ(partOf<QLabel>(*dialog_, "lblInClear").text(), "the password travels in clear");
        EXPECT_TRUE(canApply());
        QTest::keyClick(&combo, Qt::Key_Down);
        EXPECT_EQ(combo.currentText(), "None");
        press("cmdOK");
    });
    EXPECT_EQ(stored(Setting::FtpEncryption), "0");
}

TEST_F(FtpDialogTarget, TheWheelLeavesTheEncryptionAsItIs) {
    run([this] {
        auto& combo = partOf<QComboBox>(*dialog_, "cboEncryption");
        combo.setFocus();
        QWheelEvent turn({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &turn);
        EXPECT_EQ(combo.currentIndex(), 0);
        EXPECT_FALSE(canApply());
    });
}

TEST_F(FtpDialogTarget, AnAddressWithMoreThanAHostIsRefused) {
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

TEST_F(FtpDialogTarget, AnAddressIsTakenApartWhenItIsTyped) {
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

TEST_F(FtpDialogTarget, FtpIsTheProtocolUnlessAnotherIsStored) {
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
                EXPECT_EQ(partOf<QWidget>(*dialog_, name).isEnabled(), login)
                    << name << url.toStdString();
            }
            EXPECT_EQ(partOf<QComboBox>(*dialog_, "cboEncryption").isEnabled(),
                      protocol == Protocol::Ftp);
            QTest::keyClicks(&box("txtRemoteDir"), "x");
            press("cmdOK");
        });
        EXPECT_EQ(stored(Setting::FtpUrl), url);
    }
}

TEST_F(FtpDialogTarget, AnotherProtocolBringsItsPortAndItsPlace) {
    run([this] {
        protocols().setFocus();
        QTest::keyClick(&protocols(), Qt::Key_Down);
        EXPECT_EQ(box("txtPort").text(), "990");
        QTest::keyClick(&protocols(), Qt::Key_Down);
        EXPECT_EQ(protocols().currentText(), "SFTP");
        EXPECT_EQ(box("txtPort").text(), "22");
        EXPECT_TRUE(canApply());
        QTest::keyClick(&protocols(), Qt::Key_Down);
        EXPECT_EQ(partOf<QLabel>(*dialog_, "lblUrl").text().remove('&'), "Folder:");
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

TEST_F(FtpDialogTarget, WithoutAKeyringItSaysThatThePasswordCanBeRead) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    run([this] {
        EXPECT_TRUE(partOf<QLabel>(*dialog_, "lblPasswordPlace").text().contains("readable"));
    });
}

TEST_F(FtpDialogTarget, ShowsWhatWouldBeSentWithItsBytes) {
    writeFile(host("Maps/europe.jpg"), QByteArray(1234, 'x'));
    writeFile(host("Maps/two\nlines.jpg"), "x");
    run(
        [this] {
            press("chkUpload1");
            press("cmdOutlook");
            const auto& list = partOf<QTreeWidget>(*dialog_, "lstOutlook");
            ASSERT_EQ(list.topLevelItemCount(), 2);
            EXPECT_EQ(list.topLevelItem(1)->text(0), "Maps/europe.jpg");
            EXPECT_EQ(list.topLevelItem(1)->text(1), QLocale().toString(1234));
            EXPECT_TRUE(list.topLevelItem(0)->text(0).contains("its name holds a line end"));
            EXPECT_TRUE(
                partOf<QLabel>(*dialog_, "lblOutlook").text().startsWith("1 of 1 files, 1.21"));
            press("chkUpload1");
            EXPECT_EQ(list.topLevelItemCount(), 0) << "it was said of other groups";
        },
        FtpTab::UploadList);
}

TEST_F(FtpDialogTarget, EverythingIsSentOnceWhereThatIsTicked) {
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

}  // namespace nubivane::testing
