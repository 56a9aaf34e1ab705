// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace nubivane {

namespace {

/// The text of a menu's head, with the mark of an access key where the caption itself has one.
QString captionOf(const QMenu& menu) {
    return menu.objectName() == u"mnuFile" ? menu.title() : menu.title().remove(u'&');
}

/// "name|caption" of each entry, "-" for a separator, sub-menus indented below their entry.
QStringList rowsOf(const QList<QAction*>& actions, const QString& indent = {}) {
    QStringList rows;
    for (const QAction* action : actions) {
        if (action->isSeparator()) {
            rows << indent + '-';
        } else if (const QMenu* menu = action->menu()) {
            rows << indent + menu->objectName() + '|' + captionOf(*menu);
            rows << rowsOf(menu->actions(), indent + "  ");
        } else {
            rows << indent + action->objectName() + '|' + action->text();
        }
    }
    return rows;
}

const QStringList MenuTree = {
    "mnuFile|&File",
    "  mnuNewProject|&New",
    "  mnuOpenProject|&Open",
    "  -",
    "  mnuSaveProject|&Save",
    "  mnuSaveProjectAs|Sav&e As...",
    "  mnuVersions|Earlier versions...",
    "  -",
    "  mnuSetPrinter|Print setup",
    "  mnuPrint|Print",
    "  -",
    "  mnuEsci|Exit",
    "mnuEdit|Edit",
    "  mnuUndo|Undo",
    "  mnuRedo|Redo",
    "  -",
    "  mnuCut|Cut",
    "  mnuCopy|Copy",
    "  mnuPaste|Paste",
    "  mnuDuplicate|Duplicate",
    "  mnuDelSymbol|Delete",
    "  -",
    "  mnuSelectAll|Select all",
    "  mnuArrange|Arrange",
    "    mnuToFront|Bring to front",
    "    mnuRaise|Raise",
    "    mnuLower|Lower",
    "    mnuToBack|Send to back",
    "    -",
    "    mnuAlignLeft|Align left",
    "    mnuAlignCentre|Align centers",
    "    mnuAlignRight|Align right",
    "    mnuAlignTop|Align top",
    "    mnuAlignMiddle|Align middles",
    "    mnuAlignBottom|Align bottom",
    "    -",
    "    mnuDistributeAcross|Distribute across",
    "    mnuDistributeDown|Distribute down",
    "  -",
    "  mnuReplace|Find and replace...",
    "  mnuFindSymbol|Find symbol",
    "mnuView|View",
    "  mnuViewMainToolbar|Main toolbar",
    "  mnuViewMapToolbar|Map toolbar",
    "  -",
    "  mnuViewLargeIcons|Large icons",
    "  mnuViewSmallIcons|Small icons",
    "  -",
    "  mnuZoomIn|Zoom in",
    "  mnuZoomOut|Zoom out",
    "  mnuZoomActual|Actual size",
    "  mnuZoomWhole|Whole map",
    "  -",
    "  mnuGuides|Guides",
    "  mnuGrid|Grid...",
    "  -",
    "  mnuFold|Fold palette and bars",
    "  mnuFullScreen|Full screen",
    "  -",
    "  mnuHistory|History",
    "mnuSimboli|Symbols",
    "  mnuCut|Cut",
    "  mnuCopy|Copy",
    "  mnuCopySymbols|Copy special...",
    "  mnuPaste|Paste",
    "  -",
    "  mnuLock|Lock",
    "  mnuDelSymbol|Delete",
    "  mnuDelAllSymbols|Delete all",
    "  mnuRestore|Restore",
    "  -",
    "  mnuProperty|Property",
    "  -",
    "  mnuCollection|Collections",
    "  mnuPack|Get extended pack",
    "  -",
    "  mnuRefreshSymbols|Refresh list",
    "mnuFile2|Map",
    "  mnuPulisci|Clear",
    "  mnuOpenMap|Select image",
    "  -",
    "  mnuFrameInsert|Insert",
    "  mnuFrameRemove|Remove",
    "  -",
    "  mnuEsporta|Export to",
    "    subEsportaAvi|avi",
    "    subEsportaFilm|frames animation",
    "    subEsportaGifAni|gif animated",
    "    -",
    "    subEsportaBmp|bitmap",
    "    subEsportaGif|gif",
    "    subEsportaJpg|jpg",
    "    subEsportaPng|png",
    "    subEsportaTif|tif",
    "mnuPagina|Html page",
    "  mnuPreview|Preview",
    "  mnuCrea|Create",
    "  mnuSaveSite|Save site as...",
    "  -",
    "  mnuImpostazioni|Options",
    "mnuFtp|Ftp",
    "  mnuInitialize|Initialize",
    "  mnuInvia|Upload files",
    "  -",
    "  mnuFtpSetting|Settings",
    "mnuGuida|Help",
    "  mnuSommario|Contents",
    "  mnuWeb|Other software on the web...",
    "  mnuBugReport|Report a bug",
    "  -",
    "  mnuLastVersion|Check for updates",
    "  -",
    "  mnuInfo|About Nubivane",
};

const QStringList SpriteMenu = {"subRestore|Restore",
                                "-",
                                "subCut|Cut",
                                "subCopy|Copy",
                                "subPaste|Paste",
                                "subDelete|Delete",
                                "-",
                                "subProperty|Property",
                                "-",
                                "subUndo|Undo",
                                "subRedo|Redo",
                                "-",
                                "subDuplicate|Duplicate",
                                "mnuArrange|Arrange",
                                "  mnuToFront|Bring to front",
                                "  mnuRaise|Raise",
                                "  mnuLower|Lower",
                                "  mnuToBack|Send to back",
                                "  -",
                                "  mnuAlignLeft|Align left",
                                "  mnuAlignCentre|Align centers",
                                "  mnuAlignRight|Align right",
                                "  mnuAlignTop|Align top",
                                "  mnuAlignMiddle|Align middles",
                                "  mnuAlignBottom|Align bottom",
                                "  -",
                                "  mnuDistributeAcross|Distribute across",
                                "  mnuDistributeDown|Distribute down"};

}  // namespace

using MenusOfTheEditor = testing::EditorFixture;

TEST_F(MenusOfTheEditor, TheTreeHasEveryEntryInItsPlace) {
    start();
    EXPECT_THAT(rowsOf(window().menuBar()->actions()), ::testing::ElementsAreArray(MenuTree));
}

TEST_F(MenusOfTheEditor, TheMenuOfASpriteHasItsEntriesInOrder) {
    start();
    EXPECT_THAT(rowsOf(window().findChild<QMenu*>("MenuPopup")->actions()),
                ::testing::ElementsAreArray(SpriteMenu));
}

TEST_F(MenusOfTheEditor, TheMenuOfASpriteIsEnabledAsTheCommandsAre) {
    start();
    const QList<std::pair<const char*, const char*>> pairs = {
        {"subRestore", "mnuRestore"},  {"subCut", "mnuCut"},
        {"subCopy", "mnuCopy"},        {"subPaste", "mnuPaste"},
        {"subDelete", "mnuDelSymbol"}, {"subProperty", "mnuProperty"}};
    for (const bool selected : {false, true, false}) {
        if (selected) {
            placeSymbol({200, 150});
        } else {
            window().clearSelection();
        }
        for (const auto& [entry, command] : pairs) {
            const auto* action = window().findChild<QAction*>(entry);
            ASSERT_TRUE(action) << entry;
            EXPECT_EQ(action->isEnabled(), window().commands().action(command)->isEnabled())
                << entry;
        }
    }
    workspace.ProjectChanged = false;
}

TEST_F(MenusOfTheEditor, ARightClickOnASpriteShowsItsMenu) {
    start();
    placeSymbol({200, 150});
    click({200, 150}, Qt::RightButton);
    EXPECT_TRUE(window().findChild<QMenu*>("MenuPopup")->isVisible());
    workspace.ProjectChanged = false;
}

TEST_F(MenusOfTheEditor, NoTwoCommandsShareAKey) {
    start();
    QHash<QString, QString> keys;
    for (const CommandRow& row : commandTable()) {
        for (const QKeySequence& key : window().commands()[row.id]->shortcuts()) {
            const QString text = key.toString();
            EXPECT_FALSE(keys.contains(text))
                << row.name << " and " << keys.value(text).toStdString();
            keys.insert(text, row.name);
        }
    }
    EXPECT_TRUE(keys.contains("Ctrl+S"));
}

TEST_F(MenusOfTheEditor, RefreshListReadsTheFolderAgain) {
    start();
    const ListImage* list = window().palette().currentList();
    ASSERT_TRUE(list);
    const int before = list->symbols().rowCount();
    testing::writeFile(host("Symbols/set-1/fog.gif"),
                       testing::readFile(host("Symbols/set-1/sun.gif")));
    trigger("mnuRefreshSymbols");
    EXPECT_EQ(window().palette().currentList()->symbols().rowCount(), before + 1);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(MenusOfTheEditor, WithoutAHelpFileABoxSaysSo) {
    start();
    shell.expectMessage("Help not found.", Icon::Critical);
    trigger("mnuSommario");
}

TEST_F(MenusOfTheEditor, TheKeyF1AsksForTheHelp) {
    start();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    shell.expectMessage("Help not found.", Icon::Critical);
    canvas().setFocus();
    key(Qt::Key_F1);
}

TEST(CommandTable, ACommandThatNobodyHandlesStaysDisabled) {
    Commands commands(nullptr);
    commands.setEnabled({Command::mnuCut}, true);
    EXPECT_FALSE(commands[Command::mnuCut]->isEnabled());
    int calls = 0;
    commands.handle(Command::mnuCut, [&calls] { ++calls; });
    EXPECT_TRUE(commands[Command::mnuCut]->isEnabled());
    commands[Command::mnuCut]->trigger();
    EXPECT_EQ(calls, 1);
    commands.setEnabled({Command::mnuCut}, false);
    EXPECT_FALSE(commands[Command::mnuCut]->isEnabled());
}

TEST_F(MenusOfTheEditor, EachTopMenuHasAnAccessKeyOfItsOwn) {
    start();
    QSet<QString> keys;
    for (const QAction* head : window().menuBar()->actions()) {
        const QKeySequence key = QKeySequence::mnemonic(head->text());
        EXPECT_FALSE(key.isEmpty()) << head->text().toStdString();
        EXPECT_FALSE(keys.contains(key.toString())) << key.toString().toStdString();
        keys << key.toString();
    }
}

TEST_F(MenusOfTheEditor, TheEntryOfTheLockShowsItsCheckMarkAndNoIconInItsPlace) {
    start();
    QAction* lock = window().commands()[Command::mnuLock];
    EXPECT_TRUE(lock->isCheckable());
    EXPECT_FALSE(lock->isIconVisibleInMenu());
    EXPECT_FALSE(lock->icon().isNull());  // the button still has it
}

}  // namespace nubivane
