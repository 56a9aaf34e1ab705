// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/map_view.h"

#include "windows/canvas/edge_scroll.h"
#include "windows/canvas/map_pan.h"
#include "windows/canvas/map_zoom.h"
#include "windows/commands/commands.h"
#include "windows/main/canvas_status.h"
#include "windows/main/editor_pane.h"
#include "windows/panes/frame_canvas.h"

#include <QApplication>
#include <QEvent>

namespace nubivane {

MapView::MapView(const CanvasContext& context, EditorPane& pane, StatusLine& line)
    : QObject(&pane),
      commands_(context.commands),
      window_(context.window),
      canvas_(context.canvas),
      pane_(pane),
      zoom_(*new MapZoom(context.viewport, context.canvas.widget())) {
    new EdgeScroll(context.viewport, canvas_.widget());
    new MapPan(context.viewport, canvas_.widget());
    new CanvasStatus(context.workspace, canvas_, zoom_, line);
    handleZoom();
    handleRoom();
}

void MapView::handleZoom() {
    commands_.handle(Command::mnuZoomIn, [this] { zoom_.zoomIn(); });
    commands_.handle(Command::mnuZoomOut, [this] { zoom_.zoomOut(); });
    commands_.handle(Command::mnuZoomActual, [this] { zoom_.zoomTo(Zoom()); });
    commands_.handle(Command::mnuZoomWhole, [this] { zoom_.showWhole(); });
}

void MapView::handleRoom() {
    commands_.makeCheckable({Command::mnuFold, Command::mnuFullScreen});
    commands_.handle(Command::mnuFold, [this] {
        pane_.setFolded(commands_[Command::mnuFold]->isChecked());
        const QWidget* keyboard = QApplication::focusWidget();
        if (pane_.isFolded() && (!keyboard || !keyboard->isVisible())) {
            canvas_.widget().setFocus();
        }
    });
    commands_.handle(Command::mnuFullScreen, [this] {
        const bool full = commands_[Command::mnuFullScreen]->isChecked();
        window_.setWindowState(full ? window_.windowState() | Qt::WindowFullScreen
                                    : window_.windowState() & ~Qt::WindowFullScreen);
    });
    window_.installEventFilter(this);
}

/// The desktop has ways of its own out of a full screen.
bool MapView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_ && event->type() == QEvent::WindowStateChange) {
        commands_[Command::mnuFullScreen]->setChecked(window_.isFullScreen());
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace nubivane
