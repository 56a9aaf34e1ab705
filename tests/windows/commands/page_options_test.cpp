// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/clipboard_fixture.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace nubivane {

/// The page settings as the main window opens them.
class PageOptions : public testing::ClipboardFixture {
  protected:
    /// Opens the dialog by its menu entry, takes the steps in it, and closes it.
    void run(const std::function<void(QDialog&)>& steps) {
        bool opened = false;
        QTimer::singleShot(0, &window(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            opened = true;
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
            steps(*dialog);
            dialog->reject();
        });
        trigger("mnuImpostazioni");
        EXPECT_TRUE(opened);
    }
};

TEST_F(PageOptions, TheMenuEntryOpensThemInFrontOfTheWindow) {
    startActive();
    run([this](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmPageSetting");
        EXPECT_EQ(dialog.parentWidget(), &window());
    });
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(PageOptions, HelpWithoutAHelpFileTellsSo) {
    startActive();
    shell.expectMessage("Help not found.", Icon::Critical);
    run([](QDialog& dialog) { dialog.findChild<QPushButton*>("cmdHelp")->click(); });
}

TEST_F(PageOptions, KeysTypedInTheirFieldsActOnTheTextAndNotOnTheSelectedSprite) {
    startActive();
    const QString sprite = placeSymbol({100, 100});
    run([this](QDialog& dialog) {
        auto* field = dialog.findChild<QLineEdit*>("txtHTMLtitle");
        ASSERT_TRUE(QTest::qWaitFor([field] { return field->hasFocus(); }))
            << QApplication::focusWidget();
        field->selectAll();
        key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(clipboard().text(), "Forecast");
        key(Qt::Key_Delete);
        EXPECT_EQ(field->text(), "");
        key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(field->text(), "Forecast");
        key(Qt::Key_Left, Qt::ShiftModifier);
        EXPECT_EQ(field->selectedText(), "t");
    });
    EXPECT_EQ(symbols().Count(), 1);
    EXPECT_EQ(symbolRect(sprite), QRect(84, 84, 32, 32));
    EXPECT_FALSE(selection().isEmpty());
}

}  // namespace nubivane
