// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"
#include "windows/main/next_start.h"

#include <QMenu>

namespace nubivane {

namespace {

/// The rows of the menu `mnuFile` from the last separator before the recent files on.
QStringList tailOfFileMenu(frmMap& window) {
    QStringList rows;
    for (const QAction* action : window.findChild<QMenu*>("mnuFile")->actions()) {
        rows << (action->isSeparator() ? "-" + action->objectName()
                                       : action->objectName() + '|' + action->text());
    }
    return rows.mid(rows.indexOf("mnuPrint|Print") + 1);
}

}  // namespace

class RecentFilesEntries : public testing::EditorFixture {
  protected:
    /// Saves the open project under a name of the program folder.
    void saveAs(const QString& name) {
        shell.expectSaveDialog("Save project as", model(name));
        trigger("mnuSaveProjectAs");
    }
    QString entry(int number, const QString& name) {
        return "mnuWindow" + QString::number(number) + "|&" + QString::number(number) + ' ' +
               host(name);
    }
    void triggerEntry(frmMap& of, int number) {
        for (QAction* action : of.findChild<QMenu*>("mnuFile")->actions()) {
            if (action->objectName() == "mnuWindow" + QString::number(number)) {
                return action->trigger();
            }
        }
        FAIL() << "no entry " << number;
    }
};

TEST_F(RecentFilesEntries, WithoutFilesThereIsNoSeparatorForThem) {
    start();
    EXPECT_EQ(tailOfFileMenu(window()), QStringList({"-", "mnuEsci|Exit"}));
}

TEST_F(RecentFilesEntries, TheyStandInOrderAboveExit) {
    settings.setList(SettingList::RecentFiles,
                     {model("a.nvpf"), model("b.nvpf"), model("c.nvpf"), model("d.nvpf")});
    start();
    EXPECT_EQ(tailOfFileMenu(window()),
              QStringList({"-", entry(1, "a.nvpf"), entry(2, "b.nvpf"), entry(3, "c.nvpf"),
                           entry(4, "d.nvpf"), "-mnuWindowSep", "mnuEsci|Exit"}));
}

TEST_F(RecentFilesEntries, AGapInTheSettingsEndsThem) {
    settings.setList(SettingList::RecentFiles, {model("a.nvpf"), "", model("c.nvpf")});
    start();
    EXPECT_EQ(tailOfFileMenu(window()),
              QStringList({"-", entry(1, "a.nvpf"), "-mnuWindowSep", "mnuEsci|Exit"}));
}

TEST_F(RecentFilesEntries, ASaveAddsTheFirst) {
    start();
    saveAs("a.nvpf");
    EXPECT_EQ(tailOfFileMenu(window()),
              QStringList({"-", entry(1, "a.nvpf"), "-mnuWindowSep", "mnuEsci|Exit"}));
}

TEST_F(RecentFilesEntries, AnEntryKeepsItsCaptionUntilTheNextStart) {
    start();
    saveAs("a.nvpf");
    saveAs("b.nvpf");
    // The settings are right, the menu was built once for each place.
    EXPECT_EQ(settings.list(SettingList::RecentFiles),
              QStringList({model("b.nvpf"), model("a.nvpf")}));
    EXPECT_EQ(tailOfFileMenu(window()), QStringList({"-", entry(1, "a.nvpf"), entry(2, "a.nvpf"),
                                                     "-mnuWindowSep", "mnuEsci|Exit"}));
    testing::NextStart next(workspace, settings);
    EXPECT_EQ(tailOfFileMenu(next.window), QStringList({"-", entry(1, "b.nvpf"), entry(2, "a.nvpf"),
                                                        "-mnuWindowSep", "mnuEsci|Exit"}));
}

TEST_F(RecentFilesEntries, NeverMoreThanFour) {
    start();
    for (const char* name : {"a.nvpf", "b.nvpf", "c.nvpf", "d.nvpf", "e.nvpf"}) {
        saveAs(name);
    }
    EXPECT_EQ(settings.list(SettingList::RecentFiles),
              QStringList({model("e.nvpf"), model("d.nvpf"), model("c.nvpf"), model("b.nvpf")}));
    testing::NextStart next(workspace, settings);
    EXPECT_EQ(tailOfFileMenu(next.window),
              QStringList({"-", entry(1, "e.nvpf"), entry(2, "d.nvpf"), entry(3, "c.nvpf"),
                           entry(4, "b.nvpf"), "-mnuWindowSep", "mnuEsci|Exit"}));
}

TEST_F(RecentFilesEntries, AClickOpensTheFileOfTheCaption) {
    start();
    saveAs("a.nvpf");
    placeSymbol({100, 100});
    saveAs("b.nvpf");
    // The first entry still says "a.nvpf", though "b.nvpf" is the first in the settings.
    triggerEntry(window(), 1);
    EXPECT_EQ(workspace.Status.CurrentProject, model("a.nvpf"));
    EXPECT_EQ(window().windowTitle(), "a.nvpf - Nubivane");
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 0);
}

TEST_F(RecentFilesEntries, APathWithBlanksOpens) {
    start();
    saveAs("the whole week.nvpf");
    trigger("mnuNewProject");
    triggerEntry(window(), 1);
    EXPECT_EQ(window().windowTitle(), "the whole week.nvpf - Nubivane");
}

TEST_F(RecentFilesEntries, AnAmpersandInAPathIsShownAndOpens) {
    start();
    saveAs("sat&sun.nvpf");
    EXPECT_EQ(tailOfFileMenu(window()).at(1), entry(1, "sat&&sun.nvpf"));
    trigger("mnuNewProject");
    triggerEntry(window(), 1);
    EXPECT_EQ(window().windowTitle(), "sat&sun.nvpf - Nubivane");
}

TEST_F(RecentFilesEntries, AFileThatHasGoneOpensWithoutAMessageUnderItsName) {
    settings.setList(SettingList::RecentFiles, {model("gone.nvpf")});
    start();
    triggerEntry(window(), 1);
    EXPECT_EQ(workspace.Status.CurrentProject, model("gone.nvpf"));
    EXPECT_EQ(workspace.Frames().Count(), 1);
}

TEST_F(RecentFilesEntries, AClickAsksWhenThereIsUnsavedWork) {
    start();
    saveAs("a.nvpf");
    placeSymbol({100, 100});
    shell.expectMessage("The project has been changed. Save file before closing ?",
                        Icon::Exclamation, Buttons::YesNoCancel, Answer::Cancel);
    triggerEntry(window(), 1);
    EXPECT_EQ(frame().Sprites().Symbols().Count(), 1);
    workspace.ProjectChanged = false;
}

}  // namespace nubivane
