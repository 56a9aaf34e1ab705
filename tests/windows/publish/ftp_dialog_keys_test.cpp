// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/ftp_dialog_fixture.h"

#include <QAccessible>

namespace nubivane::testing {

using FtpDialogKeys = FtpDialog;

TEST_F(FtpDialogKeys, ATextBoxSelectsItsWholeTextWhenItTakesTheFocus) {
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

TEST_F(FtpDialogKeys, ReturnIsOk) {
    run([this] {
        type(box("txtUrl"), "ftp.example.org");
        QTest::keyClick(&box("txtUrl"), Qt::Key_Return);
        EXPECT_FALSE(isOpen());
    });
    EXPECT_EQ(stored(Setting::FtpUrl), "ftp.example.org");
}

TEST_F(FtpDialogKeys, TheTabKeyWalksAsTheEyeDoes) {
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

TEST_F(FtpDialogKeys, NoTwoControlsInSightShareAnAccessKey) {
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

TEST_F(FtpDialogKeys, AccessKeysReachTheFrameInSight) {
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

TEST_F(FtpDialogKeys, EveryControlThatTakesTheFocusHasAName) {
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
