// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/commands.h"

#include "windows/widgets/icons.h"

#include <QKeySequence>

#include <array>

namespace nubivane {

namespace {

constexpr std::array table = {
    CommandRow{Command::mnuNewProject, "mnuNewProject", "&New", "new", "@New", "New project"},
    CommandRow{Command::mnuOpenProject, "mnuOpenProject", "&Open", "open", "@Open", "Open project"},
    CommandRow{Command::mnuSaveProject, "mnuSaveProject", "&Save", "save", "@Save", "Save project"},
    CommandRow{Command::mnuSaveProjectAs, "mnuSaveProjectAs", "Sav&e As...", "save-as",
               "Ctrl+Shift+S", ""},
    CommandRow{Command::mnuSetPrinter, "mnuSetPrinter", "Print setup", "print-setup", "", ""},
    CommandRow{Command::mnuPrint, "mnuPrint", "Print", "print", "@Print", ""},
    CommandRow{Command::mnuEsci, "mnuEsci", "Exit", "exit", "@Quit", ""},
    CommandRow{Command::mnuUndo, "mnuUndo", "Undo", "undo", "Ctrl+Z", ""},
    CommandRow{Command::mnuRedo, "mnuRedo", "Redo", "redo", "Ctrl+Shift+Z; Ctrl+Y", ""},
    CommandRow{Command::mnuHistory, "mnuHistory", "History", "history", "Ctrl+H", ""},
    CommandRow{Command::mnuViewMainToolbar, "mnuViewMainToolbar", "Main toolbar", "", "", ""},
    CommandRow{Command::mnuViewMapToolbar, "mnuViewMapToolbar", "Map toolbar", "", "", ""},
    CommandRow{Command::mnuViewLargeIcons, "mnuViewLargeIcons", "Large icons", "", "", ""},
    CommandRow{Command::mnuViewSmallIcons, "mnuViewSmallIcons", "Small icons", "", "", ""},
    CommandRow{Command::mnuCut, "mnuCut", "Cut", "cut", "@Cut", ""},
    CommandRow{Command::mnuCopy, "mnuCopy", "Copy", "copy", "@Copy", ""},
    CommandRow{Command::mnuCopySymbols, "mnuCopySymbols", "Copy special...", "copy-special", "",
               ""},
    CommandRow{Command::mnuPaste, "mnuPaste", "Paste", "paste", "@Paste", ""},
    CommandRow{Command::mnuLock, "mnuLock", "Lock", "lock", "", "Lock the symbols in their places"},
    CommandRow{Command::mnuDelSymbol, "mnuDelSymbol", "Delete", "delete", "@Delete",
               "Delete the selected symbol"},
    CommandRow{Command::mnuDelAllSymbols, "mnuDelAllSymbols", "Delete all", "delete-all", "", ""},
    CommandRow{Command::mnuRestore, "mnuRestore", "Restore", "restore", "", "Restore"},
    CommandRow{Command::mnuProperty, "mnuProperty", "Property", "property", "F4", "Properties"},
    CommandRow{Command::btnProperty, "btnProperty", "Property", "property", "", "Properties (F4)"},
    CommandRow{Command::mnuCollection, "mnuCollection", "Collections", "collections", "",
               "Symbol collections"},
    CommandRow{Command::mnuPack, "mnuPack", "Get extended pack", "pack", "", ""},
    CommandRow{Command::mnuRefreshSymbols, "mnuRefreshSymbols", "Refresh list", "refresh", "", ""},
    CommandRow{Command::mnuPulisci, "mnuPulisci", "Clear", "clear", "", ""},
    CommandRow{Command::mnuOpenMap, "mnuOpenMap", "Select image", "select-image", "",
               "Select the map"},
    CommandRow{Command::mnuFrameInsert, "mnuFrameInsert", "Insert", "frame-insert", "Ctrl+T",
               "Insert a map"},
    CommandRow{Command::mnuFrameRemove, "mnuFrameRemove", "Remove", "frame-remove", "",
               "Remove the map"},
    CommandRow{Command::mnuMapRename, "mnuMapRename", "Rename", "frame-rename", "F2", ""},
    CommandRow{Command::subEsportaAvi, "subEsportaAvi", "avi", "export-video", "", ""},
    CommandRow{Command::subEsportaFilm, "subEsportaFilm", "frames animation", "export-film", "",
               ""},
    CommandRow{Command::subEsportaGifAni, "subEsportaGifAni", "gif animated", "export-gif", "", ""},
    CommandRow{Command::subEsportaBmp, "subEsportaBmp", "bitmap", "export-picture", "", ""},
    CommandRow{Command::subEsportaGif, "subEsportaGif", "gif", "export-picture", "", ""},
    CommandRow{Command::subEsportaJpg, "subEsportaJpg", "jpg", "export-picture", "", ""},
    CommandRow{Command::subEsportaPng, "subEsportaPng", "png", "export-picture", "", ""},
    CommandRow{Command::subEsportaTif, "subEsportaTif", "tif", "export-picture", "", ""},
    CommandRow{Command::mnuPreview, "mnuPreview", "Preview", "preview", "",
               "Show the page made last"},
    CommandRow{Command::mnuCrea, "mnuCrea", "Create", "createhtml", "Ctrl+Return",
               "Create the web page"},
    CommandRow{Command::mnuSaveSite, "mnuSaveSite", "Save site as...", "save-as", "", ""},
    CommandRow{Command::mnuImpostazioni, "mnuImpostazioni", "Options", "page-options", "", ""},
    CommandRow{Command::mnuInitialize, "mnuInitialize", "Initialize", "ftp-initialize", "", ""},
    CommandRow{Command::mnuInvia, "mnuInvia", "Upload files", "upload", "", "Upload the page"},
    CommandRow{Command::mnuFtpSetting, "mnuFtpSetting", "Settings", "ftp-settings", "", ""},
    CommandRow{Command::mnuSommario, "mnuSommario", "Contents", "contents", "F1", "Help"},
    CommandRow{Command::mnuWeb, "mnuWeb", "Other software on the web...", "web", "", ""},
    CommandRow{Command::mnuBugReport, "mnuBugReport", "Report a bug", "bug-report", "", ""},
    CommandRow{Command::mnuLastVersion, "mnuLastVersion", "Check for updates", "update", "", ""},
    CommandRow{Command::mnuInfo, "mnuInfo", "About Nubivane", "about", "", ""},
};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].id != static_cast<Command>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(isInOrder(), "a command finds its row by its number");

QList<QKeySequence> shortcutsOf(const QString& text) {
    static const QHash<QString, QKeySequence::StandardKey> standard = {
        {"@New", QKeySequence::New},      {"@Open", QKeySequence::Open},
        {"@Save", QKeySequence::Save},    {"@Print", QKeySequence::Print},
        {"@Quit", QKeySequence::Quit},    {"@Cut", QKeySequence::Cut},
        {"@Copy", QKeySequence::Copy},    {"@Paste", QKeySequence::Paste},
        {"@Delete", QKeySequence::Delete}};
    const auto found = standard.constFind(text);
    if (found == standard.cend()) {
        return text.isEmpty() ? QList<QKeySequence>() : QKeySequence::listFromString(text);
    }
    // Some desktops have no key for leaving; this one is known everywhere.
    const QKeySequence keys(*found);
    return {keys.isEmpty() && *found == QKeySequence::Quit ? QKeySequence("Ctrl+Q") : keys};
}

}  // namespace

std::span<const CommandRow> commandTable() {
    return table;
}

Commands::Commands(QObject* parent) : QObject(parent), handled_(table.size()) {
    for (const CommandRow& row : table) {
        auto* action = new QAction(tr(row.caption), this);
        action->setObjectName(row.name);
        if (*row.icon) {
            action->setIcon(programIcon(QLatin1String(row.icon)));
        }
        const QList<QKeySequence> keys = shortcutsOf(row.shortcut);
        action->setShortcuts(keys);
        QString hint = tr(*row.hint ? row.hint : row.caption).remove(u'&').remove("...");
        if (!keys.isEmpty()) {
            hint += " (" + keys.front().toString(QKeySequence::NativeText) + ')';
        }
        action->setToolTip(hint);
        action->setEnabled(false);
        actions_.push_back(action);
    }
}

QAction* Commands::action(const QString& name) const {
    return findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
}

void Commands::handle(Command id, std::function<void()> handler) {
    handled_[static_cast<std::size_t>(id)] = true;
    QAction* const action = (*this)[id];
    action->setEnabled(true);
    connect(action, &QAction::triggered, this, std::move(handler));
}

void Commands::setEnabled(std::initializer_list<Command> ids, bool enabled) {
    for (const Command id : ids) {
        (*this)[id]->setEnabled(enabled && handled_[static_cast<std::size_t>(id)]);
    }
}

void Commands::makeCheckable(std::initializer_list<Command> ids) {
    for (const Command id : ids) {
        (*this)[id]->setCheckable(true);
    }
}

}  // namespace nubivane
