// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/commands.h"

#include "windows/widgets/icons.h"

#include <QKeySequence>

#include <array>

namespace nubivane {

namespace {

constexpr std::array table = {
    CommandRow{"mnuNewProject", "&New", "new", "@New", "New project"},
    CommandRow{"mnuOpenProject", "&Open", "open", "@Open", "Open project"},
    CommandRow{"mnuSaveProject", "&Save", "save", "@Save", "Save project"},
    CommandRow{"mnuSaveProjectAs", "Sav&e As...", "save-as", "Ctrl+Shift+S", ""},
    CommandRow{"mnuSetPrinter", "Print setup", "print-setup", "", ""},
    CommandRow{"mnuPrint", "Print", "print", "@Print", ""},
    CommandRow{"mnuEsci", "Exit", "exit", "@Quit", ""},
    CommandRow{"mnuViewMainToolbar", "Main toolbar", "", "", ""},
    CommandRow{"mnuViewMapToolbar", "Map toolbar", "", "", ""},
    CommandRow{"mnuViewLargeIcons", "Large icons", "", "", ""},
    CommandRow{"mnuViewSmallIcons", "Small icons", "", "", ""},
    CommandRow{"mnuCut", "Cut", "cut", "@Cut", ""},
    CommandRow{"mnuCopy", "Copy", "copy", "@Copy", ""},
    CommandRow{"mnuCopySymbols", "Copy special...", "copy-special", "", ""},
    CommandRow{"mnuPaste", "Paste", "paste", "@Paste", ""},
    CommandRow{"mnuLock", "Lock", "lock", "", "Lock the symbols in their places"},
    CommandRow{"mnuDelSymbol", "Delete", "delete", "@Delete", "Delete the selected symbol"},
    CommandRow{"mnuDelAllSymbols", "Delete all", "delete-all", "", ""},
    CommandRow{"mnuRestore", "Restore", "restore", "", "Restore"},
    CommandRow{"mnuProperty", "Property", "property", "F4", "Properties"},
    CommandRow{"btnProperty", "Property", "property", "", "Properties (F4)"},
    CommandRow{"mnuCollection", "Collections", "collections", "", "Symbol collections"},
    CommandRow{"mnuPack", "Get extended pack", "pack", "", ""},
    CommandRow{"mnuRefreshSymbols", "Refresh list", "refresh", "", ""},
    CommandRow{"mnuPulisci", "Clear", "clear", "", ""},
    CommandRow{"mnuOpenMap", "Select image", "select-image", "", "Select the map"},
    CommandRow{"mnuFrameInsert", "Insert", "frame-insert", "Ctrl+T", "Insert a map"},
    CommandRow{"mnuFrameRemove", "Remove", "frame-remove", "", "Remove the map"},
    CommandRow{"mnuMapRename", "Rename", "frame-rename", "F2", ""},
    CommandRow{"subEsportaAvi", "avi", "export-video", "", ""},
    CommandRow{"subEsportaFilm", "frames animation", "export-film", "", ""},
    CommandRow{"subEsportaGifAni", "gif animated", "export-gif", "", ""},
    CommandRow{"subEsportaBmp", "bitmap", "export-picture", "", ""},
    CommandRow{"subEsportaGif", "gif", "export-picture", "", ""},
    CommandRow{"subEsportaJpg", "jpg", "export-picture", "", ""},
    CommandRow{"subEsportaPng", "png", "export-picture", "", ""},
    CommandRow{"subEsportaTif", "tif", "export-picture", "", ""},
    CommandRow{"mnuPreview", "Preview", "preview", "", "Show the page made last"},
    CommandRow{"mnuCrea", "Create", "createhtml", "Ctrl+Return", "Create the web page"},
    CommandRow{"mnuImpostazioni", "Options", "page-options", "", ""},
    CommandRow{"mnuInitialize", "Initialize", "ftp-initialize", "", ""},
    CommandRow{"mnuInvia", "Upload files", "upload", "", "Upload the page"},
    CommandRow{"mnuFtpSetting", "Settings", "ftp-settings", "", ""},
    CommandRow{"mnuSommario", "Contents", "contents", "F1", "Help"},
    CommandRow{"mnuWeb", "Other software on the web...", "web", "", ""},
    CommandRow{"mnuBugReport", "Report a bug", "bug-report", "", ""},
    CommandRow{"mnuLastVersion", "Check for updates", "update", "", ""},
    CommandRow{"mnuInfo", "About Nubivane", "about", "", ""},
};

QKeySequence shortcutOf(const QString& text) {
    static const QHash<QString, QKeySequence::StandardKey> standard = {
        {"@New", QKeySequence::New},      {"@Open", QKeySequence::Open},
        {"@Save", QKeySequence::Save},    {"@Print", QKeySequence::Print},
        {"@Quit", QKeySequence::Quit},    {"@Cut", QKeySequence::Cut},
        {"@Copy", QKeySequence::Copy},    {"@Paste", QKeySequence::Paste},
        {"@Delete", QKeySequence::Delete}};
    const auto found = standard.constFind(text);
    if (found == standard.cend()) {
        return QKeySequence(text);
    }
    // Some desktops have no key for leaving; this one is known everywhere.
    const QKeySequence keys(*found);
    return keys.isEmpty() && *found == QKeySequence::Quit ? QKeySequence("Ctrl+Q") : keys;
}

}  // namespace

std::span<const CommandRow> commandTable() {
    return table;
}

Commands::Commands(QObject* parent) : QObject(parent) {
    for (const CommandRow& row : table) {
        auto* action = new QAction(tr(row.caption), this);
        action->setObjectName(row.name);
        if (*row.icon) {
            action->setIcon(programIcon(QLatin1String(row.icon)));
        }
        const QKeySequence keys = shortcutOf(row.shortcut);
        action->setShortcut(keys);
        QString hint = tr(*row.hint ? row.hint : row.caption).remove(u'&').remove("...");
        if (!keys.isEmpty()) {
            hint += " (" + keys.toString(QKeySequence::NativeText) + ')';
        }
        action->setToolTip(hint);
        action->setEnabled(false);
        actions_.insert(row.name, action);
    }
}

QAction* Commands::action(const QString& name) const {
    Q_ASSERT(actions_.contains(name));
    return actions_.value(name);
}

void Commands::handle(const char* name, std::function<void()> handler) {
    handled_[name] = true;
    action(name)->setEnabled(true);
    connect(action(name), &QAction::triggered, this, std::move(handler));
}

void Commands::setEnabled(std::initializer_list<const char*> names, bool enabled) {
    for (const char* name : names) {
        action(name)->setEnabled(enabled && handled_.value(name));
    }
}

void Commands::makeCheckable(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        action(name)->setCheckable(true);
    }
}

}  // namespace nubivane
