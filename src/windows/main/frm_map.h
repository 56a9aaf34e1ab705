// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor_view.h"
#include "engine/picture/animation_cache.h"
#include "windows/canvas/map_viewport.h"
#include "windows/commands/arrange_commands.h"
#include "windows/commands/canvas_context.h"
#include "windows/commands/clear_commands.h"
#include "windows/commands/clipboard_commands.h"
#include "windows/commands/collection_commands.h"
#include "windows/commands/commands.h"
#include "windows/commands/copy_special.h"
#include "windows/commands/edit_commands.h"
#include "windows/commands/export_commands.h"
#include "windows/commands/frame_commands.h"
#include "windows/commands/menus.h"
#include "windows/commands/picture_import.h"
#include "windows/commands/print_commands.h"
#include "windows/commands/project_commands.h"
#include "windows/commands/property_commands.h"
#include "windows/commands/publish_commands.h"
#include "windows/commands/recent_files_menu.h"
#include "windows/commands/selection_commands.h"
#include "windows/commands/service_commands.h"
#include "windows/commands/version_commands.h"
#include "windows/main/draw_strip.h"
#include "windows/main/input_block.h"
#include "windows/main/tool_strip.h"
#include "windows/panes/frame_canvas.h"
#include "windows/panes/frame_tabs.h"
#include "windows/panes/palette.h"

#include <QMainWindow>
#include <QProgressBar>

#include <optional>

namespace nubivane {

class EditorPane;
class FigureOptions;
class Shell;
class StatusLine;

/// The main window: the hub that owns menus, bars and layout and forwards every command to the
/// object that knows it.
class frmMap : public QMainWindow, public EditorView, private EditWatcher {
    Q_OBJECT

  public:
    frmMap(Workspace& workspace, Shell& shell);
    ~frmMap() override;

    /// Builds the editor and opens the project named on the command line, or shows the default
    /// map. Called once, before the window is shown. Raises `Error` when the editor cannot start.
    void Init(const QString& projectFile);

    QProgressBar* pBarMain() const { return pBarMain_; }
    Commands& commands() { return commands_; }
    FrameCanvas& canvas() { return canvas_; }
    MapViewport& viewport() { return *viewport_; }
    DrawStrip& pctTlbDraw() { return *pctTlbDraw_; }
    FigureOptions& figureOptions() { return *figureOptions_; }
    FrameTabs& tabs() { return *tabs_; }
    Palette& palette() { return *palette_; }
    EditorPane& pane() { return *pane_; }
    ProjectCommands& projectCommands() { return projectCommands_; }
    bool locked() const;
    bool acceptsInput() const { return !inputBlock_.isActive(); }

    // EditorView.
    void setEnabled(bool enabled) override;
    void setCaption(const QString& text) override { setWindowTitle(text); }
    void clearSelection() override { canvas_.selection().clearSelection(); }
    void unloadFrameSprites() override;
    void resetDrawing() override { canvas_.resetDrawing(); }
    void rebuildPalette(const QStringList& folders) override;
    void rebuildFrameTabs() override;
    void showPicture() override { canvas_.widget().showPicture(); }
    void showMap() override;
    void selectFirstFrame() override;
    void refreshRecentFiles() override { recentFiles_.refresh(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    // EditWatcher.
    void edited(const ProjectChange&) override { refreshHint(); }

    bool showMenuByKey(const QObject* watched, const QContextMenuEvent& event);
    void showFrameMenu(QPoint globalPosition);
    void activate(const SpriteId& id);
    void connectCanvas();
    void connectCommands();
    void connectStatus();
    void refreshSelectionCommands();
    void refreshLock();
    void refreshHint();
    void orderFocus();
    void markChanged();
    bool queryUnload();
    void storeState();

    Workspace& workspace_;
    Shell& shell_;
    AnimationCache animations_;
    Commands commands_;
    MapViewport* viewport_;
    FrameCanvas canvas_;
    CanvasContext context_;
    ToolStrip* strip_;
    Palette* palette_;
    FrameTabs* tabs_;
    DrawStrip* pctTlbDraw_;
    FigureOptions* figureOptions_;
    EditorPane* pane_;
    StatusLine* statusLine_;
    QProgressBar* pBarMain_;
    Menus menus_;
    RecentFilesMenu recentFiles_;
    FrameCommands frameCommands_;
    EditCommands editCommands_;
    ProjectCommands projectCommands_;
    VersionCommands versionCommands_;
    InputBlock inputBlock_;
    CollectionCommands collectionCommands_;
    CopySpecial copySpecial_;
    ClipboardCommands clipboardCommands_;
    PictureImport pictureImport_;
    SelectionCommands selectionCommands_;
    ArrangeCommands arrangeCommands_;
    ClearCommands clearCommands_;
    PropertyCommands propertyCommands_;
    ExportCommands exportCommands_;
    PrintCommands printCommands_;
    PublishCommands publishCommands_;
    ServiceCommands serviceCommands_;
    QRect normalGeometry_;
    bool initialized_ = false;
};

}  // namespace nubivane
