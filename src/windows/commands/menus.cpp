// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/menus.h"

#include "windows/commands/commands.h"

#include <QMenu>
#include <QMenuBar>

#include <array>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace nubivane {

namespace {

constexpr char Separator[] = "-";

/// Entries are names of commands, "-" for a separator, or "mnuEsporta" for the one sub-menu.
struct MenuRow {
    const char* name;
    const char* caption;
    std::vector<const char*> entries;
};

const MenuRow exportMenu = {
    "mnuEsporta",
    "Export to",
    {"subEsportaAvi", "subEsportaFilm", "subEsportaGifAni", Separator, "subEsportaBmp",
     "subEsportaGif", "subEsportaJpg", "subEsportaPng", "subEsportaTif"}};

const std::array<MenuRow, 7>& menuTree() {
    static const std::array<MenuRow, 7> tree = {{
        {"mnuFile",
         "&File",
         {"mnuNewProject", "mnuOpenProject", Separator, "mnuSaveProject", "mnuSaveProjectAs",
          Separator, "mnuSetPrinter", "mnuPrint", Separator, "mnuEsci"}},
        {"mnuView",
         "View",
         {"mnuViewMainToolbar", "mnuViewMapToolbar", Separator, "mnuViewLargeIcons",
          "mnuViewSmallIcons"}},
        {"mnuSimboli",
         "Symbols",
         {"mnuCut", "mnuCopy", "mnuCopySymbols", "mnuPaste", Separator, "mnuLock", "mnuDelSymbol",
          "mnuDelAllSymbols", "mnuRestore", Separator, "mnuProperty", Separator, "mnuCollection",
          "mnuPack", Separator, "mnuRefreshSymbols"}},
        {"mnuFile2",
         "Map",
         {"mnuPulisci", "mnuOpenMap", Separator, "mnuFrameInsert", "mnuFrameRemove", Separator,
          "mnuEsporta"}},
        {"mnuPagina", "Html page", {"mnuPreview", "mnuCrea", Separator, "mnuImpostazioni"}},
        {"mnuFtp", "Ftp", {"mnuInitialize", "mnuInvia", Separator, "mnuFtpSetting"}},
        {"mnuGuida",
         "Help",
         {"mnuSommario", "mnuWeb", "mnuBugReport", Separator, "mnuLastVersion", Separator,
          "mnuInfo"}},
    }};
    return tree;
}

void fill(QMenu& menu, const MenuRow& row, const Commands& commands) {
    menu.setObjectName(row.name);
    for (const char* entry : row.entries) {
        const std::string_view name = entry;
        if (name == Separator) {
            menu.addSeparator();
        } else if (name == exportMenu.name) {
            fill(*menu.addMenu(QObject::tr(exportMenu.caption)), exportMenu, commands);
        } else {
            menu.addAction(commands[entry]);
        }
    }
}

/// A popup entry that stands for a command under a name of its own.
void addProxy(QMenu& menu, const char* name, QAction* command) {
    QAction* entry = menu.addAction(command->icon(), command->text());
    entry->setObjectName(name);
    entry->setEnabled(command->isEnabled());
    QObject::connect(command, &QAction::changed, entry,
                     [entry, command] { entry->setEnabled(command->isEnabled()); });
    QObject::connect(entry, &QAction::triggered, command, &QAction::trigger);
}

}  // namespace

void buildMenuBar(QMenuBar& bar, const Commands& commands) {
    for (const MenuRow& row : menuTree()) {
        fill(*bar.addMenu(QObject::tr(row.caption)), row, commands);
    }
}

QMenu* buildSpriteMenu(const Commands& commands, QWidget* parent) {
    auto* menu = new QMenu(parent);
    menu->setObjectName("MenuPopup");
    addProxy(*menu, "subRestore", commands["mnuRestore"]);
    menu->addSeparator();
    addProxy(*menu, "subCut", commands["mnuCut"]);
    addProxy(*menu, "subCopy", commands["mnuCopy"]);
    addProxy(*menu, "subPaste", commands["mnuPaste"]);
    addProxy(*menu, "subDelete", commands["mnuDelSymbol"]);
    menu->addSeparator();
    addProxy(*menu, "subProperty", commands["mnuProperty"]);
    return menu;
}

QMenu* buildFrameMenu(const Commands& commands, QWidget* parent) {
    auto* menu = new QMenu(parent);
    menu->setObjectName("MenuMap");
    addProxy(*menu, "mnuMapInsert", commands["mnuFrameInsert"]);
    addProxy(*menu, "mnuMapDelete", commands["mnuFrameRemove"]);
    menu->addSeparator();
    menu->addAction(commands["mnuMapRename"]);
    return menu;
}

}  // namespace nubivane
