#pragma once

#include "editor/clear_commands.h"
#include "editor/clipboard_commands.h"
#include "editor/collection_commands.h"
#include "editor/commands.h"
#include "editor/copy_special.h"
#include "editor/drawing/draw_strip.h"
#include "editor/export_commands.h"
#include "editor/frame_canvas.h"
#include "editor/frame_commands.h"
#include "editor/frame_tabs.h"
#include "editor/input_block.h"
#include "editor/map_viewport.h"
#include "editor/palette.h"
#include "editor/print_commands.h"
#include "editor/project_commands.h"
#include "editor/property_commands.h"
#include "editor/publish_commands.h"
#include "editor/recent_files_menu.h"
#include "editor/service_commands.h"
#include "editor/tool_strip.h"
#include "model/editor_view.h"
#include "picture/animation_cache.h"

#include <QMainWindow>
#include <QProgressBar>

#include <optional>

namespace nubivane {

class EditorPane;
class Shell;

/// The main window: the hub that owns menus, bars and layout and forwards every command to the
/// object that knows it.
class frmMap : public QMainWindow, public EditorView {
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
    FrameTabs& tabs() { return *tabs_; }
    Palette& palette() { return *palette_; }
    ToolStrip& toolStrip() { return *strip_; }
    EditorPane& pane() { return *pane_; }
    FrameCommands& frameCommands() { return frameCommands_; }
    ProjectCommands& projectCommands() { return projectCommands_; }
    CopySpecial& copySpecial() { return copySpecial_; }
    ClipboardCommands& clipboardCommands() { return clipboardCommands_; }
    PropertyCommands& propertyCommands() { return propertyCommands_; }
    PrintCommands& printCommands() { return printCommands_; }
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
    bool showMenuByKey(const QObject* watched, const QContextMenuEvent& event);
    void connectCanvas();
    void connectCommands();
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
    ToolStrip* strip_;
    Palette* palette_;
    FrameTabs* tabs_;
    DrawStrip* pctTlbDraw_;
    EditorPane* pane_;
    QProgressBar* pBarMain_;
    QMenu* menuPopup_;
    QMenu* menuMap_;
    RecentFilesMenu recentFiles_;
    FrameCommands frameCommands_;
    ProjectCommands projectCommands_;
    InputBlock inputBlock_;
    CollectionCommands collectionCommands_;
    CopySpecial copySpecial_;
    ClipboardCommands clipboardCommands_;
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
