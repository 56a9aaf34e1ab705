// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QMenu>

#include <stdexcept>

namespace nubivane {

/// The menu of a Frame's tab.
class FrameMenu : public testing::EditorFixture {
  protected:
    QMenu& menu() { return *window().findChild<QMenu*>("MenuMap"); }
    QAction& entry(const QString& name) {
        for (QAction* action : menu().actions()) {
            if (action->objectName() == name) {
                return *action;
            }
        }
        throw std::runtime_error("no entry " + name.toStdString());
    }
    void rightPress(int number) {
        QTabBar* bar = window().tabs().tabDay();
        QTest::mousePress(bar, Qt::RightButton, {}, bar->tabRect(number - 1).center());
    }
};

TEST_F(FrameMenu, ItHasInsertRemoveASeparatorAndRename) {
    start();
    QStringList rows;
    for (const QAction* action : menu().actions()) {
        rows << (action->isSeparator() ? QString("-")
                                       : action->objectName() + '|' + action->text());
    }
    EXPECT_EQ(rows,
              QStringList({"mnuMapInsert|Insert", "mnuMapDelete|Remove", "-", "mnuMapRename|Rename",
                           "mnuFrameLeft|Move to the left", "mnuFrameRight|Move to the right", "-",
                           "mnuMapUndo|Undo", "mnuMapRedo|Redo"}));
}

TEST_F(FrameMenu, ARightPressSelectsTheTabAndShowsIt) {
    start();
    trigger("mnuFrameInsert");
    rightPress(1);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    EXPECT_TRUE(menu().isVisible());
}

TEST_F(FrameMenu, ARightPressBesideTheTabsShowsItForTheSelectedTab) {
    start();
    trigger("mnuFrameInsert");
    QTabBar* bar = window().tabs().tabDay();
    QTest::mousePress(bar, Qt::RightButton, {}, bar->rect().center());
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_TRUE(menu().isVisible());
}

TEST_F(FrameMenu, ALeftPressDoesNotShowIt) {
    start();
    QTabBar* bar = window().tabs().tabDay();
    QTest::mousePress(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    EXPECT_FALSE(menu().isVisible());
}

TEST_F(FrameMenu, RemoveIsEnabledOnlyWithMoreThanOneFrame) {
    start();
    rightPress(1);
    EXPECT_FALSE(entry("mnuMapDelete").isEnabled());
    menu().hide();
    trigger("mnuFrameInsert");
    rightPress(1);
    EXPECT_TRUE(entry("mnuMapDelete").isEnabled());
}

TEST_F(FrameMenu, ItsEntriesDoWhatTheCommandsDo) {
    start();
    entry("mnuMapInsert").trigger();
    EXPECT_EQ(workspace.Frames().Count(), 2);
    entry("mnuMapDelete").trigger();
    EXPECT_EQ(workspace.Frames().Count(), 1);
    entry("mnuMapRename").trigger();
    EXPECT_TRUE(window().tabs().txtDay()->isVisible());
}

}  // namespace nubivane
