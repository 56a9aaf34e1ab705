// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/menus.h"

#include "windows/commands/commands.h"

#include <QMenu>
#include <QMenuBar>

#include <array>
#include <variant>
#include <vector>

namespace nubivane {

namespace {

struct MenuRow;

/// What stands in a menu: a command, a line, or a sub-menu.
struct Separator {};
using SubMenu = const MenuRow& (*)();
using MenuEntry = std::variant<Command, Separator, SubMenu>;

struct MenuRow {
    const char* name;
    const char* caption;
    char key;  ///< the access key's letter; 0 where the caption has its own or needs none
    std::vector<MenuEntry> entries;
};

const MenuRow& exportMenu() {
    static const MenuRow row = {
        "mnuEsporta",
        QT_TRANSLATE_NOOP("nubivane::Commands", "Export to"),
        0,
        {Command::subEsportaAvi, Command::subEsportaFilm, Command::subEsportaGifAni, Separator(),
         Command::subEsportaBmp, Command::subEsportaGif, Command::subEsportaJpg,
         Command::subEsportaPng, Command::subEsportaTif}};
    return row;
}

const MenuRow& arrangeMenu() {
    static const MenuRow row = {
        "mnuArrange",
        QT_TRANSLATE_NOOP("nubivane::Commands", "Arrange"),
        0,
        {Command::mnuToFront, Command::mnuRaise, Command::mnuLower, Command::mnuToBack, Separator(),
         Command::mnuAlignLeft, Command::mnuAlignCentre, Command::mnuAlignRight,
         Command::mnuAlignTop, Command::mnuAlignMiddle, Command::mnuAlignBottom, Separator(),
         Command::mnuDistributeAcross, Command::mnuDistributeDown}};
    return row;
}

const std::array<MenuRow, 8>& menuTree() {
    static const std::array<MenuRow, 8> tree = {{
        {"mnuFile",
         QT_TRANSLATE_NOOP("nubivane::Commands", "&File"),
         0,
         {Command::mnuNewProject, Command::mnuOpenProject, Separator(), Command::mnuSaveProject,
          Command::mnuSaveProjectAs, Command::mnuVersions, Separator(), Command::mnuSetPrinter,
          Command::mnuPrint, Separator(), Command::mnuEsci}},
        {"mnuEdit",
         QT_TRANSLATE_NOOP("nubivane::Commands", "Edit"),
         'e',
         {Command::mnuUndo, Command::mnuRedo, Separator(), Command::mnuCut, Command::mnuCopy,
          Command::mnuPaste, Command::mnuDuplicate, Command::mnuDelSymbol, Separator(),
          Command::mnuSelectAll, &arrangeMenu, Separator(), Command::mnuReplace,
          Command::mnuFindSymbol}},
        {"mnuView",
         QT_TRANSLATE_NOOP("nubivane::Commands", "View"),
         'v',
         {Command::mnuViewMainToolbar, Command::mnuViewMapToolbar, Separator(),
          Command::mnuViewLargeIcons, Command::mnuViewSmallIcons, Separator(), Command::mnuZoomIn,
          Command::mnuZoomOut, Command::mnuZoomActual, Command::mnuZoomWhole, Separator(),
          Command::mnuGuides, Command::mnuGrid, Separator(), Command::mnuFold,
          Command::mnuFullScreen, Separator(), Command::mnuHistory}},
        {"mnuSimboli",
         QT_TRANSLATE_NOOP("nubivane::Commands", "Symbols"),
         's',
         {Command::mnuCut, Command::mnuCopy, Command::mnuCopySymbols, Command::mnuPaste,
          Separator(), Command::mnuLock, Command::mnuDelSymbol, Command::mnuDelAllSymbols,
          Command::mnuRestore, Separator(), Command::mnuProperty, Separator(),
          Command::mnuCollection, Command::mnuPack, Separator(), Command::mnuRefreshSymbols}},
        {"mnuFile2",
         QT_TRANSLATE_NOOP("nubivane::Commands", "Map"),
         'm',
         {Command::mnuPulisci, Command::mnuOpenMap, Separator(), Command::mnuFrameInsert,
          Command::mnuFrameRemove, Separator(), &exportMenu}},
        {"mnuPagina",
         QT_TRANSLATE_NOOP("nubivane::Commands", "Html page"),
         'p',
         {Command::mnuPreview, Command::mnuCrea, Command::mnuSaveSite, Separator(),
          Command::mnuImpostazioni}},
        {"mnuFtp",
         QT_TRANSLATE_NOOP("nubivane::Commands", "Ftp"),
         't',
         {Command::mnuInitialize, Command::mnuInvia, Separator(), Command::mnuFtpSetting}},
        {"mnuGuida",
         QT_TRANSLATE_NOOP("nubivane::Commands", "Help"),
         'h',
         {Command::mnuSommario, Command::mnuWeb, Command::mnuBugReport, Separator(),
          Command::mnuLastVersion, Separator(), Command::mnuInfo}},
    }};
    return tree;
}

/// A caption with its access key marked.
QString withKey(QString caption, char key) {
    const qsizetype place =
        key == 0 ? -1 : caption.indexOf(QLatin1Char(key), 0, Qt::CaseInsensitive);
    return place < 0 ? caption : caption.insert(place, u'&');
}

void fill(QMenu& menu, const MenuRow& row, const Commands& commands) {
    menu.setObjectName(row.name);
    for (const MenuEntry& entry : row.entries) {
        if (const Command* command = std::get_if<Command>(&entry)) {
            menu.addAction(commands[*command]);
        } else if (const SubMenu* subMenu = std::get_if<SubMenu>(&entry)) {
            const MenuRow& below = (*subMenu)();
            fill(*menu.addMenu(Commands::tr(below.caption)), below, commands);
        } else {
            menu.addSeparator();
        }
    }
}

/// A popup entry that stands for a command under a name of its own.
void addProxy(QMenu& menu, const char* name, QAction* command) {
    QAction* entry = menu.addAction(command->icon(), command->text());
    entry->setObjectName(name);
    entry->setEnabled(command->isEnabled());
    QObject::connect(command, &QAction::changed, entry, [entry, command] {
        entry->setEnabled(command->isEnabled());
        entry->setText(command->text());
    });
    QObject::connect(entry, &QAction::triggered, command, &QAction::trigger);
}

/// The menu tree in the bar; its first menu.
QMenu& fillBar(QMenuBar& bar, const Commands& commands) {
    QMenu* first = nullptr;
    for (const MenuRow& row : menuTree()) {
        QMenu* menu = bar.addMenu(withKey(Commands::tr(row.caption), row.key));
        fill(*menu, row, commands);
        first = first ? first : menu;
    }
    return *first;
}

QMenu& buildSpriteMenu(const Commands& commands, QWidget* parent) {
    auto* menu = new QMenu(parent);
    menu->setObjectName("MenuPopup");
    addProxy(*menu, "subRestore", commands[Command::mnuRestore]);
    menu->addSeparator();
    addProxy(*menu, "subCut", commands[Command::mnuCut]);
    addProxy(*menu, "subCopy", commands[Command::mnuCopy]);
    addProxy(*menu, "subPaste", commands[Command::mnuPaste]);
    addProxy(*menu, "subDelete", commands[Command::mnuDelSymbol]);
    menu->addSeparator();
    addProxy(*menu, "subProperty", commands[Command::mnuProperty]);
    menu->addSeparator();
    addProxy(*menu, "subUndo", commands[Command::mnuUndo]);
    addProxy(*menu, "subRedo", commands[Command::mnuRedo]);
    menu->addSeparator();
    addProxy(*menu, "subDuplicate", commands[Command::mnuDuplicate]);
    fill(*menu->addMenu(Commands::tr(arrangeMenu().caption)), arrangeMenu(), commands);
    return *menu;
}

QMenu& buildFrameMenu(const Commands& commands, QWidget* parent) {
    auto* menu = new QMenu(parent);
    menu->setObjectName("MenuMap");
    addProxy(*menu, "mnuMapInsert", commands[Command::mnuFrameInsert]);
    addProxy(*menu, "mnuMapDelete", commands[Command::mnuFrameRemove]);
    menu->addSeparator();
    menu->addAction(commands[Command::mnuMapRename]);
    menu->addAction(commands[Command::mnuFrameLeft]);
    menu->addAction(commands[Command::mnuFrameRight]);
    menu->addSeparator();
    addProxy(*menu, "mnuMapUndo", commands[Command::mnuUndo]);
    addProxy(*menu, "mnuMapRedo", commands[Command::mnuRedo]);
    return *menu;
}

}  // namespace

Menus buildMenus(QMenuBar& bar, const Commands& commands) {
    return {fillBar(bar, commands), buildSpriteMenu(commands, bar.parentWidget()),
            buildFrameMenu(commands, bar.parentWidget())};
}

}  // namespace nubivane
