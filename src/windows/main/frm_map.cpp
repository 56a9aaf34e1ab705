// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/frm_map.h"

#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/history/version_store.h"
#include "engine/model/edits/project_edits.h"
#include "engine/project/save_project.h"
#include "engine/project/work_snapshot.h"
#include "windows/canvas/canvas_access.h"
#include "windows/canvas/label_editor.h"
#include "windows/canvas/sprite_keys.h"
#include "windows/drawing/figure_options.h"
#include "windows/main/editor_pane.h"
#include "windows/main/map_view.h"
#include "windows/main/startup.h"
#include "windows/main/status_line.h"
#include "windows/main/window_geometry.h"
#include "windows/properties/frm_symbol_property.h"
#include "windows/publish/frm_page_setting.h"
#include "windows/widgets/help_topic.h"
#include "windows/widgets/icons.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// In which a window has no place and size of its own.
constexpr Qt::WindowStates NotNormal =
    Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen;

}  // namespace

frmMap::frmMap(Workspace& workspace, Shell& shell)
    : workspace_(workspace),
      shell_(shell),
      commands_(this),
      viewport_(new MapViewport(this)),
      canvas_(
          workspace, animations_, shell,
          [this] {
              return workspace_.Status.CurrentTool == Tool::cursor && palette_->dropAllowed();
          },
          viewport_),
      context_{workspace, shell, canvas_, *viewport_, commands_, *this},
      strip_(new ToolStrip(commands_, workspace.settings, this)),
      palette_(new Palette(workspace, animations_, shell, this)),
      tabs_(new FrameTabs(workspace, shell, this)),
      pctTlbDraw_(new DrawStrip(canvas_.drawing(), commands_, this)),
      figureOptions_(new FigureOptions(canvas_.drawing(), this)),
      pane_(new EditorPane(*strip_, *palette_, *viewport_, *pctTlbDraw_, *tabs_)),
      statusLine_(new StatusLine(this)),
      pBarMain_(new QProgressBar(this)),
      menus_(buildMenus(*menuBar(), commands_)),
      recentFiles_(menus_.file, workspace.settings),
      frameCommands_(context_, *tabs_),
      editCommands_(context_),
      projectCommands_({workspace, shell, *this}, commands_),
      versionCommands_(workspace, shell, projectCommands_, commands_, this),
      inputBlock_(*this),
      collectionCommands_(context_, animations_, *palette_, frameCommands_),
      copySpecial_(context_),
      clipboardCommands_(context_),
      pictureImport_(context_, *palette_),
      selectionCommands_(context_),
      arrangeCommands_(context_),
      clearCommands_(context_),
      propertyCommands_(context_,
                        [this](QWidget* over) { return collectionCommands_.chooseSymbol(over); }),
      exportCommands_(context_),
      printCommands_(context_),
      publishCommands_({workspace, shell, *this}, commands_, this),
      serviceCommands_({workspace, shell, *this}, commands_, this) {
    setObjectName("frmMap");
    setWindowIcon(programIcon(u"nubivane"_s));
    setAcceptDrops(true);
    setCentralWidget(pane_);
    pane_->setOptions(*figureOptions_);
    connect(figureOptions_, &FigureOptions::shownChanged, pane_, &EditorPane::layoutMap);
    setStatusBar(statusLine_);
    CanvasAccess::install(canvas_.widget());
    viewport_->setMap(&canvas_.widget());
    new MapView(context_, *pane_, *statusLine_);
    pBarMain_->setObjectName("pBarMain");
    pBarMain_->setFixedSize(180, 12);
    pBarMain_->setTextVisible(false);
    pBarMain_->hide();
    menuBar()->setCornerWidget(pBarMain_);
    connectCanvas();
    connectCommands();
    connectStatus();
    qApp->installEventFilter(this);
    workspace_.edits().watch(*this);
}

frmMap::~frmMap() {
    workspace_.edits().unwatch(*this);
    qApp->removeEventFilter(this);
    // The widgets work with the members below, on other threads too: they go first.
    delete takeCentralWidget();
}

void frmMap::connectCanvas() {
    connect(&canvas_.selection(), &Selection::commandsChanged, this,
            &frmMap::refreshSelectionCommands);
    connect(viewport_, &MapViewport::groundPressed, this, &frmMap::clearSelection);
    const auto showMenu = [this] { menus_.sprite.popup(QCursor::pos()); };
    connect(&canvas_.mouse(), &SpriteMouse::menuAsked, this, showMenu);
    connect(&canvas_.drawing(), &MapDrawing::menuAsked, this, showMenu);
    connect(&canvas_.widget(), &MapCanvas::menuAsked, this, showMenu);
    connect(&canvas_.drawing(), &MapDrawing::projectChanged, this, &frmMap::markChanged);
    connect(&canvas_.widget(), &MapCanvas::spriteActivated, this, &frmMap::activate);
    connect(palette_, &Palette::placeAsked, this, [this](const QString& payload) {
        const QRect seen = viewport_->visibleMapRect();
        canvas_.placement().placeNear(payload, canvas_.widget().toMap(seen.center()));
        canvas_.widget().setFocus();
    });
    connect(palette_, &Palette::listsChanged, this, &frmMap::orderFocus);
    connect(&frameCommands_, &FrameCommands::framesCounted, this, &frmMap::refreshHint);
    connect(tabs_, &FrameTabs::projectChanged, this, &frmMap::markChanged);
    connect(tabs_, &FrameTabs::menuRequested, this, &frmMap::showFrameMenu);
}

/// A Label's text is typed where it stands, a Symbol shows its properties.
void frmMap::activate(const SpriteId& id) {
    if (id.kind == SpriteKind::Label) {
        canvas_.labelEditor().start(id);
    } else {
        propertyCommands_.showSpriteProperties();
    }
}

void frmMap::connectCommands() {
    commands_.handle(Command::mnuEsci, [this] { close(); });
    commands_.makeCheckable({Command::mnuLock});
    // Its icon would take the check mark's place.
    commands_[Command::mnuLock]->setIconVisibleInMenu(false);
    commands_.handle(Command::mnuLock, [] {});
    connect(commands_[Command::mnuLock], &QAction::toggled, this, [this] { refreshLock(); });
    refreshLock();
    commands_.handle(Command::mnuRefreshSymbols, [this] { palette_->refreshCurrentList(); });
    commands_.handle(Command::mnuFindSymbol, [this] {
        if (pane_->isFolded()) {
            commands_[Command::mnuFold]->trigger();
        }
        palette_->startSearch();
    });
    commands_.handle(Command::mnuSommario,
                     [this] { openHelpTopic(workspace_, shell_, u"index.htm"_s); });
    commands_.handle(Command::mnuImpostazioni, [this] {
        frmPageSetting dialog(workspace_, shell_, this);
        connect(&dialog, &frmPageSetting::helpAsked, this,
                [this](const QString& topic) { openHelpTopic(workspace_, shell_, topic); });
        dialog.Init();
    });
    // No menu of the bar holds these, and their keys must work.
    addActions({commands_[Command::mnuMapRename], commands_[Command::mnuFrameLeft],
                commands_[Command::mnuFrameRight]});
    connect(&recentFiles_, &RecentFilesMenu::chosen, &projectCommands_, &ProjectCommands::open);
    connect(&projectCommands_, &ProjectCommands::terminate, qApp, [] { QApplication::exit(1); });
}

void frmMap::connectStatus() {
    connect(&canvas_.drawing(), &MapDrawing::stepTold, statusLine_, &StatusLine::setTool);
    connect(&projectCommands_, &ProjectCommands::pageMade, this, [this](const QString& page) {
        statusLine_->tellFile(tr("The page is %1.").arg(QDir::toNativeSeparators(page)), page);
    });
    connect(statusLine_, &StatusLine::folderAsked, this,
            [this](const QString& folder) { shell_.openInBrowser(folder); });
}

void frmMap::Init(const QString& projectFile) {
    const HourglassGuard hourglass(shell_);
    initialized_ = false;
    prepareFolders(workspace_.folder);
    removeTemporaryFolder(workspace_.folder);
    palette_->loadTabs(restoreCheckedCollections(workspace_));

    canvas_.drawing().Init();
    workspace_.resetProject();
    workspace_.clearTempPicture();
    tabs_->setTabDay(true);
    if (!projectFile.isEmpty()) {
        projectCommands_.open(projectFile);
    }
    // After a project that could not be opened there must be a map to go on with.
    if (projectFile.isEmpty() || workspace_.pctMap.image().isEmpty()) {
        loadStartMap(workspace_);
        showMap();
    }
    nubivane::restoreGeometry(*this, workspace_.settings);
    normalGeometry_ = geometry();
    // Parts that have never been shown get their sizes here, so that the bars know their room.
    pane_->resize(geometry().size());
    pane_->setSplitterLeft(workspace_.settings.number(Setting::WindowSplitter).value_or(360));
    strip_->restore();
    commands_[Command::mnuLock]->setChecked(
        workspace_.settings.number(Setting::Locked).value_or(0) != 0);
    recentFiles_.refresh();
    ensurePoweredLabel(workspace_.settings);
    frameCommands_.refresh();
    refreshSelectionCommands();
    refreshHint();
    workspace_.ProjectChanged = false;
    // Even after opening a project: the caption takes its name with the first save.
    setCaption(tr("New project - %1").arg(ProgramTitle));
    initialized_ = true;
}

bool frmMap::locked() const {
    return commands_[Command::mnuLock]->isChecked();
}

void frmMap::markChanged() {
    workspace_.ProjectChanged = true;
    refreshHint();
}

void frmMap::refreshSelectionCommands() {
    const bool selected = !canvas_.selection().isEmpty();
    commands_.setEnabled(
        {Command::mnuCut, Command::mnuCopy, Command::mnuDelSymbol, Command::mnuProperty}, selected);
    commands_.setEnabled({Command::mnuRestore},
                         workspace_.Status.CurrentShapeControlType == sprite_type::Symbol);
}

/// The button shows how things stand, not what it would do.
void frmMap::refreshLock() {
    QAction* lock = commands_[Command::mnuLock];
    lock->setIcon(programIcon(locked() ? u"lock"_s : u"unlock"_s));
    canvas_.mouse().setLocked(locked());
    lock->setToolTip(locked() ? tr("Symbols are locked in their places")
                              : tr("Lock the symbols in their places"));
}

/// The keyboard walks as the eye does: bars, palette, splitter, map, drawing tools, Frame tabs.
void frmMap::orderFocus() {
    QList<QWidget*> order;
    for (ToolBar* bar : {strip_->standardBar(), strip_->mapBar()}) {
        for (QToolButton* button : bar->findChildren<QToolButton*>()) {
            order << button;
        }
    }
    order << palette_->focusOrder() << pane_->splitter() << &canvas_.widget()
          << pctTlbDraw_->focusOrder() << tabs_->tabDay() << figureOptions_->focusOrder();
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

/// A newcomer's first steps, until there is something on the map.
void frmMap::refreshHint() {
    const bool empty = palette_->currentList() && workspace_.Frames().Count() <= 1 &&
                       canvas_.sprites().controls().empty();
    viewport_->setHint(empty
                           ? tr("Drag a symbol from the list onto the map to begin, or select one "
                                "and press Enter.")
                           : QString());
}

void frmMap::unloadFrameSprites() {
    canvas_.selection().clearSelection();
    canvas_.sprites().unloadAllSprites();
}

void frmMap::rebuildPalette(const QStringList& folders) {
    palette_->loadTabs(folders);
}

void frmMap::rebuildFrameTabs() {
    tabs_->setTabDay(false);
    frameCommands_.refresh();
}

/// The window of a figure being drawn is not this one: it is closed to input by itself.
void frmMap::setEnabled(bool enabled) {
    inputBlock_.setActive(!enabled);
    canvas_.drawing().setEnabled(enabled);
    editCommands_.setEnabled(enabled);
}

void frmMap::showMap() {
    canvas_.widget().showPicture();
    viewport_->setScrollBars();
}

void frmMap::selectFirstFrame() {
    tabs_->select(1);
    frameCommands_.changeFrame();
    refreshHint();
}

/// The form sees keys before its controls: a selected sprite is nudged wherever the focus is, but
/// in a field, where Shift and arrows select text.
bool frmMap::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const auto* widget = static_cast<QWidget*>(watched);
        if (widget == &canvas_.widget() && canvas_.drawing().pressMapKey(key)) {
            return true;
        }
        if (widget->window() == this && !qobject_cast<const QLineEdit*>(widget) &&
            nudgeSelection(workspace_, canvas_.sprites(), canvas_.selection(), key,
                           widget == &canvas_.widget())) {
            return true;
        }
        if (widget == &canvas_.widget() &&
            stepSelection(workspace_, canvas_.sprites(), canvas_.selection(), key)) {
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu) {
        return showMenuByKey(watched, *static_cast<QContextMenuEvent*>(event));
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmMap::showFrameMenu(QPoint globalPosition) {
    frameCommands_.refresh();
    menus_.frame.popup(globalPosition);
}

/// The mouse has its own way to the same menus.
bool frmMap::showMenuByKey(const QObject* watched, const QContextMenuEvent& event) {
    if (event.reason() != QContextMenuEvent::Keyboard) {
        return false;
    }
    if (watched == &canvas_.widget()) {
        menus_.sprite.popup(canvas_.widget().mapToGlobal(event.pos()));
        return true;
    }
    if (watched == tabs_->tabDay()) {
        const QTabBar& tabs = *tabs_->tabDay();
        showFrameMenu(tabs.mapToGlobal(tabs.tabRect(tabs.currentIndex()).center()));
        return true;
    }
    return false;
}

/// What no control wanted: the keys for a figure work wherever the keyboard is.
void frmMap::keyPressEvent(QKeyEvent* event) {
    if (canvas_.drawing().pressKey(*event) ||
        (event->key() == Qt::Key_V && event->modifiers() == Qt::NoModifier &&
         figureOptions_->takeKeyboard())) {
        return;
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && canvas_.widget().hasFocus() && canvas_.selection().ids().size() == 1) {
        activate(canvas_.selection().ids().front());
        return;
    }
    if (event->key() != Qt::Key_Escape) {
        QMainWindow::keyPressEvent(event);
    } else if (workspace_.Status.CurrentTool != Tool::cursor) {
        canvas_.drawing().chooseTool(static_cast<std::size_t>(Tool::cursor));
    } else {
        clearSelection();
    }
}

void frmMap::closeEvent(QCloseEvent* event) {
    if (!queryUnload()) {
        event->ignore();
        return;
    }
    shell_.setPointer(Pointer::ArrowWithHourglass);
    shell_.processEvents();
    keepUnsavedWork(workspace_, VersionCause::ClosedWithoutSaving);
    canvas_.resetDrawing();
    unloadFrameSprites();
    storeState();
    shell_.setPointer(Pointer::Default);
    event->accept();
}

bool frmMap::queryUnload() {
    return confirmLeavingProject({workspace_, shell_, *this});
}

void frmMap::storeState() {
    storeGeometry(*this, normalGeometry_, workspace_.settings);
    workspace_.settings.set(Setting::WindowSplitter, QString::number(pane_->splitterLeft()));
    workspace_.settings.set(Setting::Locked, locked() ? u"1"_s : u"0"_s);
}

void frmMap::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (initialized_ && !(windowState() & NotNormal)) {
        normalGeometry_ = geometry();
    }
}

void frmMap::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    if (initialized_ && !(windowState() & NotNormal)) {
        normalGeometry_.moveTo(geometry().topLeft());
    }
}

void frmMap::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().toLocalFile().endsWith(u".nvpf"_s, Qt::CaseInsensitive)) {
        event->acceptProposedAction();
    }
}

void frmMap::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    projectCommands_.open(host_files::toModel(event->mimeData()->urls().first().toLocalFile()));
}

}  // namespace nubivane
