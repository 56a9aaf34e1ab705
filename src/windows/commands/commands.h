// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QObject>

#include <functional>
#include <span>
#include <vector>

namespace nubivane {

/// Every command by its control name, in the order of the table.
enum class Command {
    mnuNewProject,
    mnuOpenProject,
    mnuSaveProject,
    mnuSaveProjectAs,
    mnuVersions,
    mnuSetPrinter,
    mnuPrint,
    mnuEsci,
    mnuUndo,
    mnuRedo,
    mnuSelectAll,
    mnuDuplicate,
    mnuToFront,
    mnuRaise,
    mnuLower,
    mnuToBack,
    mnuAlignLeft,
    mnuAlignCentre,
    mnuAlignRight,
    mnuAlignTop,
    mnuAlignMiddle,
    mnuAlignBottom,
    mnuDistributeAcross,
    mnuDistributeDown,
    mnuReplace,
    mnuFindSymbol,
    mnuHistory,
    mnuViewMainToolbar,
    mnuViewMapToolbar,
    mnuViewLargeIcons,
    mnuViewSmallIcons,
    mnuZoomIn,
    mnuZoomOut,
    mnuZoomActual,
    mnuZoomWhole,
    mnuGuides,
    mnuGrid,
    mnuFold,
    mnuFullScreen,
    mnuCut,
    mnuCopy,
    mnuCopySymbols,
    mnuPaste,
    mnuLock,
    mnuDelSymbol,
    mnuDelAllSymbols,
    mnuRestore,
    mnuProperty,
    btnProperty,
    mnuCollection,
    mnuPack,
    mnuRefreshSymbols,
    mnuPulisci,
    mnuOpenMap,
    mnuFrameInsert,
    mnuFrameRemove,
    mnuMapRename,
    mnuFrameLeft,
    mnuFrameRight,
    subEsportaAvi,
    subEsportaFilm,
    subEsportaGifAni,
    subEsportaBmp,
    subEsportaGif,
    subEsportaJpg,
    subEsportaPng,
    subEsportaTif,
    mnuPreview,
    mnuCrea,
    mnuSaveSite,
    mnuImpostazioni,
    mnuInitialize,
    mnuInvia,
    mnuFtpSetting,
    mnuSommario,
    mnuWeb,
    mnuBugReport,
    mnuLastVersion,
    mnuInfo,
};

/// One row of the table of commands.
struct CommandRow {
    Command id;
    const char* name;      ///< its control name, also the action's object name
    const char* caption;   ///< with "&" before the access key
    const char* icon;      ///< file name in the icons' folder without extension, or empty
    const char* shortcut;  ///< key sequences parted by "; ", a standard key's name as "@Save", or
                           ///< empty
    const char* hint;      ///< what the tool tip says where the caption is too short; or empty
};

std::span<const CommandRow> commandTable();

/// All commands of the main window: one action each, shared by menu bar, popup menus and toolbars,
/// so that they always agree. A command without a handler is shown disabled.
class Commands : public QObject {
    Q_OBJECT

  public:
    explicit Commands(QObject* parent);

    QAction* operator[](Command id) const { return actions_[static_cast<std::size_t>(id)]; }
    /// The command of a control name; nothing for a name that is none.
    QAction* action(const QString& name) const;

    /// Gives a command its handler; from then on it can be enabled.
    void handle(Command id, std::function<void()> handler);
    /// Enables or disables a command as far as it has a handler.
    void setEnabled(std::initializer_list<Command> ids, bool enabled);
    void makeCheckable(std::initializer_list<Command> ids);

  private:
    std::vector<QAction*> actions_;  ///< in the order of the commands
    std::vector<bool> handled_;
};

}  // namespace nubivane
