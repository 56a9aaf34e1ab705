// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/help_key.h"

#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/widgets/help_topic.h"

#include <QDialog>
#include <QTextEdit>
#include <QVBoxLayout>

namespace nubivane::testing {

namespace {

class HelpKeyTest : public WorkspaceFixture {
  protected:
    HelpKeyTest() { writeFile(host("Help/Nubivane.chm"), "x"); }

    /// A dialog of a name with a field that has the keyboard.
    void showDialog(const char* name) {
        dialog.setObjectName(name);
        showActive(dialog);
        field->setFocus();
    }

    HelpKey helpKey{workspace, shell};
    QDialog dialog;
    QLineEdit* field = new QLineEdit(&dialog);
};

}  // namespace

TEST_F(HelpKeyTest, OpensTheTopicOfTheWindow) {
    showDialog("frmSymbolProperty");
    QTest::keyClick(field, Qt::Key_F1);
    EXPECT_EQ(shell.helpTopics, QStringList("SymbolProperties.htm"));
    EXPECT_EQ(shell.opened, QStringList(host("Help/Nubivane.chm")));
}

TEST_F(HelpKeyTest, LeavesOtherWindowsAndKeysAlone) {
    showDialog("someOtherWindow");
    QTest::keyClick(field, Qt::Key_F1);
    dialog.setObjectName("frmFont");
    QTest::keyClick(field, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(field, Qt::Key_F2);
    QTest::keyClicks(field, "x");
    EXPECT_EQ(shell.helpTopics, QStringList());
    EXPECT_EQ(field->text(), "x");
}

TEST_F(HelpKeyTest, WithoutAHelpFileABoxSaysSo) {
    QFile::remove(host("Help/Nubivane.chm"));
    showDialog("frmFont");
    shell.expectMessage("Help not found.", Icon::Critical);
    QTest::keyClick(field, Qt::Key_F1);
}

TEST(HelpTopics, EachWindowHasItsOwn) {
    EXPECT_EQ(helpTopicOf("frmMap"), "index.htm");
    EXPECT_EQ(helpTopicOf("frmLabelProperty"), "LabelProperties.htm");
    EXPECT_EQ(helpTopicOf("frmFtp"), "ftpSettings.htm");
    EXPECT_EQ(helpTopicOf("frmHelp"), "");
    EXPECT_EQ(helpTopicOf(""), "");
}

}  // namespace nubivane::testing
