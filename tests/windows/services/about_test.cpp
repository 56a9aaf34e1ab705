// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/publisher.h"
#include "support/dialog_parts.h"
#include "support/scripted_shell.h"
#include "windows/services/frm_about.h"

#include <QLabel>

namespace nubivane::testing {

namespace {

class AboutBox : public ::testing::Test {
  protected:
    static Publisher publisher() {
        Publisher own;
        own.webAddress = "http://www.example.org/?a=1&b=<2>";
        own.supportAddress = "support@example.org";
        return own;
    }
    static void clickLink(QLabel& link) {
        QTest::mouseClick(&link, Qt::LeftButton, {}, {12, link.height() / 2});
    }

    ScriptedShell shell;
};

}  // namespace

TEST_F(AboutBox, TellsTitleAndVersion) {
    frmAbout window(publisher(), shell, nullptr);
    showActive(window);
    EXPECT_EQ(window.windowTitle(), "About Nubivane");
    EXPECT_EQ(part<QLabel>(window, "lblSoftware")->text(), "Nubivane");
    EXPECT_EQ(part<QLabel>(window, "lblVersion")->text(), "6.0.0 Beta");
    EXPECT_FALSE(part<QLabel>(window, "imgLogo")->pixmap().isNull());
    EXPECT_TRUE(part<QWidget>(window, "gradientAbout")->isVisible());
    EXPECT_TRUE(part<QWidget>(window, "lblLegal")->isVisible());
}

TEST_F(AboutBox, TheWebLinkOpensWhatItSays) {
    frmAbout window(publisher(), shell, nullptr);
    showActive(window);
    EXPECT_EQ(part<QLabel>(window, "lblAdditionalInformation")->text(),
              "For additional information see:");
    QLabel& link = *part<QLabel>(window, "lblWebLink");
    EXPECT_EQ(link.text(), "http://www.example.org/?a=1&b=<2>");
    clickLink(link);
    EXPECT_EQ(shell.openedAddresses, QStringList({"http://www.example.org/?a=1&b=<2>"}));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AboutBox, TheSupportLinkOpensALetterToIt) {
    frmAbout window(publisher(), shell, nullptr);
    showActive(window);
    EXPECT_EQ(part<QLabel>(window, "lblTechnicalSupport")->text(),
              "For technical support question:");
    QLabel& link = *part<QLabel>(window, "lblEMail");
    EXPECT_EQ(link.text(), "support@example.org");
    clickLink(link);
    EXPECT_EQ(shell.openedAddresses, QStringList({"mailto:support@example.org"}));
}

TEST_F(AboutBox, LinksWorkByKeyboardToo) {
    frmAbout window(publisher(), shell, nullptr);
    showActive(window);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "lblWebLink");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(shell.openedAddresses,
              QStringList({"http://www.example.org/?a=1&b=<2>", "mailto:support@example.org"}));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AboutBox, WithoutAnAddressThereIsNoLink) {
    frmAbout window(Publisher(), shell, nullptr);
    showActive(window);
    for (const char* name :
         {"lblAdditionalInformation", "lblWebLink", "lblTechnicalSupport", "lblEMail"}) {
        EXPECT_FALSE(part<QLabel>(window, name)->isVisible()) << name;
    }
}

TEST_F(AboutBox, OkReturnAndEscapeCloseIt) {
    for (const int way : {0, 1, 2}) {
        frmAbout window(publisher(), shell, nullptr);
        showActive(window);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdOK");
        if (way == 0) {
            clickPart(window, "cmdOK");
        } else {
            QTest::keyClick(QApplication::focusWidget(),
                            way == 1 ? Qt::Key_Return : Qt::Key_Escape);
        }
        EXPECT_FALSE(window.isVisible()) << way;
    }
}

}  // namespace nubivane::testing
