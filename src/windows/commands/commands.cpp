// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/commands.h"

#include "windows/widgets/icons.h"

#include <QKeySequence>

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array table = {
    CommandRow{Command::mnuNewProject, "mnuNewProject",
               QT_TRANSLATE_NOOP("nubivane::Commands", "&New"), "new", "@New",
               QT_TRANSLATE_NOOP("nubivane::Commands", "New project")},
    CommandRow{Command::mnuOpenProject, "mnuOpenProject",
               QT_TRANSLATE_NOOP("nubivane::Commands", "&Open"), "open", "@Open",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Open project")},
    CommandRow{Command::mnuSaveProject, "mnuSaveProject",
               QT_TRANSLATE_NOOP("nubivane::Commands", "&Save"), "save", "@Save",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Save project")},
    CommandRow{Command::mnuSaveProjectAs, "mnuSaveProjectAs",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Sav&e As..."), "save-as", "Ctrl+Shift+S",
               ""},
    CommandRow{Command::mnuVersions, "mnuVersions",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Earlier versions..."), "versions", "", ""},
    CommandRow{Command::mnuSetPrinter, "mnuSetPrinter",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Print setup"), "print-setup", "", ""},
    CommandRow{Command::mnuPrint, "mnuPrint", QT_TRANSLATE_NOOP("nubivane::Commands", "Print"),
               "print", "@Print", ""},
    CommandRow{Command::mnuEsci, "mnuEsci", QT_TRANSLATE_NOOP("nubivane::Commands", "Exit"), "exit",
               "@Quit", ""},
    CommandRow{Command::mnuUndo, "mnuUndo", QT_TRANSLATE_NOOP("nubivane::Commands", "Undo"), "undo",
               "Ctrl+Z", ""},
    CommandRow{Command::mnuRedo, "mnuRedo", QT_TRANSLATE_NOOP("nubivane::Commands", "Redo"), "redo",
               "Ctrl+Shift+Z; Ctrl+Y", ""},
    CommandRow{Command::mnuSelectAll, "mnuSelectAll",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Select all"), "", "@SelectAll", ""},
    CommandRow{Command::mnuDuplicate, "mnuDuplicate",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Duplicate"), "", "Ctrl+D", ""},
    CommandRow{Command::mnuToFront, "mnuToFront",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Bring to front"), "", "Ctrl+Home", ""},
    CommandRow{Command::mnuRaise, "mnuRaise", QT_TRANSLATE_NOOP("nubivane::Commands", "Raise"), "",
               "Ctrl+PgUp", ""},
    CommandRow{Command::mnuLower, "mnuLower", QT_TRANSLATE_NOOP("nubivane::Commands", "Lower"), "",
               "Ctrl+PgDown", ""},
    CommandRow{Command::mnuToBack, "mnuToBack",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Send to back"), "", "Ctrl+End", ""},
    CommandRow{Command::mnuAlignLeft, "mnuAlignLeft",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Align left"), "", "", ""},
    CommandRow{Command::mnuAlignCentre, "mnuAlignCentre",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Align centers"), "", "", ""},
    CommandRow{Command::mnuAlignRight, "mnuAlignRight",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Align right"), "", "", ""},
    CommandRow{Command::mnuAlignTop, "mnuAlignTop",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Align top"), "", "", ""},
    CommandRow{Command::mnuAlignMiddle, "mnuAlignMiddle",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Align middles"), "", "", ""},
    CommandRow{Command::mnuAlignBottom, "mnuAlignBottom",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Align bottom"), "", "", ""},
    CommandRow{Command::mnuDistributeAcross, "mnuDistributeAcross",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Distribute across"), "", "", ""},
    CommandRow{Command::mnuDistributeDown, "mnuDistributeDown",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Distribute down"), "", "", ""},
    CommandRow{Command::mnuReplace, "mnuReplace",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Find and replace..."), "", "Ctrl+F",
               QT_TRANSLATE_NOOP("nubivane::Commands",
                                 "Replace a text, a symbol or a font in all Frames")},
    CommandRow{Command::mnuFindSymbol, "mnuFindSymbol",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Find symbol"), "", "Ctrl+Shift+F",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Search in all symbols")},
    CommandRow{Command::mnuHistory, "mnuHistory",
               QT_TRANSLATE_NOOP("nubivane::Commands", "History"), "history", "Ctrl+H", ""},
    CommandRow{Command::mnuViewMainToolbar, "mnuViewMainToolbar",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Main toolbar"), "", "", ""},
    CommandRow{Command::mnuViewMapToolbar, "mnuViewMapToolbar",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Map toolbar"), "", "", ""},
    CommandRow{Command::mnuViewLargeIcons, "mnuViewLargeIcons",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Large icons"), "", "", ""},
    CommandRow{Command::mnuViewSmallIcons, "mnuViewSmallIcons",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Small icons"), "", "", ""},
    CommandRow{Command::mnuZoomIn, "mnuZoomIn", QT_TRANSLATE_NOOP("nubivane::Commands", "Zoom in"),
               "",
               "Ctrl++; Ctrl+=", QT_TRANSLATE_NOOP("nubivane::Commands", "Show the map larger")},
    CommandRow{Command::mnuZoomOut, "mnuZoomOut",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Zoom out"), "", "Ctrl+-",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Show the map smaller")},
    CommandRow{Command::mnuZoomActual, "mnuZoomActual",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Actual size"), "", "Ctrl+0",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Show the map at 100 %")},
    CommandRow{Command::mnuZoomWhole, "mnuZoomWhole",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Whole map"), "", "Ctrl+9",
               QT_TRANSLATE_NOOP("nubivane::Commands",
                                 "Show the whole map, whatever the size of the window")},
    CommandRow{Command::mnuGuides, "mnuGuides", QT_TRANSLATE_NOOP("nubivane::Commands", "Guides"),
               "", "",
               QT_TRANSLATE_NOOP("nubivane::Commands",
                                 "Draw what is dragged to the edges and centres of others")},
    CommandRow{Command::mnuGrid, "mnuGrid", QT_TRANSLATE_NOOP("nubivane::Commands", "Grid..."), "",
               "", ""},
    CommandRow{Command::mnuFold, "mnuFold",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Fold palette and bars"), "", "F9",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Leave the window to the map")},
    CommandRow{Command::mnuFullScreen, "mnuFullScreen",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Full screen"), "", "F11", ""},
    CommandRow{Command::mnuCut, "mnuCut", QT_TRANSLATE_NOOP("nubivane::Commands", "Cut"), "cut",
               "@Cut", ""},
    CommandRow{Command::mnuCopy, "mnuCopy", QT_TRANSLATE_NOOP("nubivane::Commands", "Copy"), "copy",
               "@Copy", ""},
    CommandRow{Command::mnuCopySymbols, "mnuCopySymbols",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Copy special..."), "copy-special", "", ""},
    CommandRow{Command::mnuPaste, "mnuPaste", QT_TRANSLATE_NOOP("nubivane::Commands", "Paste"),
               "paste", "@Paste", ""},
    CommandRow{Command::mnuLock, "mnuLock", QT_TRANSLATE_NOOP("nubivane::Commands", "Lock"), "lock",
               "", QT_TRANSLATE_NOOP("nubivane::Commands", "Lock the symbols in their places")},
    CommandRow{Command::mnuDelSymbol, "mnuDelSymbol",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Delete"), "delete", "@Delete",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Delete the selected symbol")},
    CommandRow{Command::mnuDelAllSymbols, "mnuDelAllSymbols",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Delete all"), "delete-all", "", ""},
    CommandRow{Command::mnuRestore, "mnuRestore",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Restore"), "restore", "",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Restore")},
    CommandRow{Command::mnuProperty, "mnuProperty",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Property"), "property", "F4",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Properties")},
    CommandRow{Command::btnProperty, "btnProperty",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Property"), "property", "",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Properties (F4)")},
    CommandRow{Command::mnuCollection, "mnuCollection",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Collections"), "collections", "",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Symbol collections")},
    CommandRow{Command::mnuPack, "mnuPack",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Get extended pack"), "pack", "", ""},
    CommandRow{Command::mnuRefreshSymbols, "mnuRefreshSymbols",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Refresh list"), "refresh", "", ""},
    CommandRow{Command::mnuPulisci, "mnuPulisci", QT_TRANSLATE_NOOP("nubivane::Commands", "Clear"),
               "clear", "", ""},
    CommandRow{Command::mnuOpenMap, "mnuOpenMap",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Select image"), "select-image", "",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Select the map")},
    CommandRow{Command::mnuFrameInsert, "mnuFrameInsert",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Insert"), "frame-insert", "Ctrl+T",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Insert a map")},
    CommandRow{Command::mnuFrameRemove, "mnuFrameRemove",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Remove"), "frame-remove", "",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Remove the map")},
    CommandRow{Command::mnuMapRename, "mnuMapRename",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Rename"), "frame-rename", "F2", ""},
    CommandRow{Command::mnuFrameLeft, "mnuFrameLeft",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Move to the left"), "", "Ctrl+Shift+PgUp",
               ""},
    CommandRow{Command::mnuFrameRight, "mnuFrameRight",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Move to the right"), "",
               "Ctrl+Shift+PgDown", ""},
    CommandRow{Command::subEsportaAvi, "subEsportaAvi",
               QT_TRANSLATE_NOOP("nubivane::Commands", "avi"), "export-video", "", ""},
    CommandRow{Command::subEsportaFilm, "subEsportaFilm",
               QT_TRANSLATE_NOOP("nubivane::Commands", "frames animation"), "export-film", "", ""},
    CommandRow{Command::subEsportaGifAni, "subEsportaGifAni",
               QT_TRANSLATE_NOOP("nubivane::Commands", "gif animated"), "export-gif", "", ""},
    CommandRow{Command::subEsportaBmp, "subEsportaBmp",
               QT_TRANSLATE_NOOP("nubivane::Commands", "bitmap"), "export-picture", "", ""},
    CommandRow{Command::subEsportaGif, "subEsportaGif",
               QT_TRANSLATE_NOOP("nubivane::Commands", "gif"), "export-picture", "", ""},
    CommandRow{Command::subEsportaJpg, "subEsportaJpg",
               QT_TRANSLATE_NOOP("nubivane::Commands", "jpg"), "export-picture", "", ""},
    CommandRow{Command::subEsportaPng, "subEsportaPng",
               QT_TRANSLATE_NOOP("nubivane::Commands", "png"), "export-picture", "", ""},
    CommandRow{Command::subEsportaTif, "subEsportaTif",
               QT_TRANSLATE_NOOP("nubivane::Commands", "tif"), "export-picture", "", ""},
    CommandRow{Command::mnuPreview, "mnuPreview",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Preview"), "preview", "",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Show the page made last")},
    CommandRow{Command::mnuCrea, "mnuCrea", QT_TRANSLATE_NOOP("nubivane::Commands", "Create"),
               "createhtml", "Ctrl+Return",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Create the web page")},
    CommandRow{Command::mnuSaveSite, "mnuSaveSite",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Save site as..."), "save-as", "", ""},
    CommandRow{Command::mnuImpostazioni, "mnuImpostazioni",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Options"), "page-options", "", ""},
    CommandRow{Command::mnuInitialize, "mnuInitialize",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Initialize"), "ftp-initialize", "", ""},
    CommandRow{Command::mnuInvia, "mnuInvia",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Upload files"), "upload", "",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Upload the page")},
    CommandRow{Command::mnuFtpSetting, "mnuFtpSetting",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Settings"), "ftp-settings", "", ""},
    CommandRow{Command::mnuSommario, "mnuSommario",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Contents"), "contents", "F1",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Help")},
    CommandRow{Command::mnuWeb, "mnuWeb",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Other software on the web..."), "web", "",
               ""},
    CommandRow{Command::mnuBugReport, "mnuBugReport",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Report a bug"), "bug-report", "", ""},
    CommandRow{Command::mnuLastVersion, "mnuLastVersion",
               QT_TRANSLATE_NOOP("nubivane::Commands", "Check for updates"), "update", "", ""},
    CommandRow{Command::mnuInfo, "mnuInfo",
               QT_TRANSLATE_NOOP("nubivane::Commands", "About Nubivane"), "about", "", ""},
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
        {u"@New"_s, QKeySequence::New},       {u"@Open"_s, QKeySequence::Open},
        {u"@Save"_s, QKeySequence::Save},     {u"@Print"_s, QKeySequence::Print},
        {u"@Quit"_s, QKeySequence::Quit},     {u"@Cut"_s, QKeySequence::Cut},
        {u"@Copy"_s, QKeySequence::Copy},     {u"@Paste"_s, QKeySequence::Paste},
        {u"@Delete"_s, QKeySequence::Delete}, {u"@SelectAll"_s, QKeySequence::SelectAll}};
    const auto found = standard.constFind(text);
    if (found == standard.cend()) {
        return text.isEmpty() ? QList<QKeySequence>() : QKeySequence::listFromString(text);
    }
    // Some desktops have no key for leaving; this one is known everywhere.
    const QKeySequence keys(*found);
    return {keys.isEmpty() && *found == QKeySequence::Quit ? QKeySequence(u"Ctrl+Q"_s) : keys};
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
        const QList<QKeySequence> keys = shortcutsOf(QLatin1String(row.shortcut));
        action->setShortcuts(keys);
        QString hint = tr(*row.hint ? row.hint : row.caption).remove(u'&').remove(u"..."_s);
        if (!keys.isEmpty()) {
            hint += u" ("_s + keys.front().toString(QKeySequence::NativeText) + u')';
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
