// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/frame_commands.h"

#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "windows/canvas/map_viewport.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"
#include "windows/panes/frame_tabs.h"

namespace nubivane {

FrameCommands::FrameCommands(Workspace& workspace, Shell& shell, FrameCanvas& canvas,
                             MapViewport& viewport, FrameTabs& tabs, Commands& commands)
    : workspace_(workspace),
      shell_(shell),
      canvas_(canvas),
      viewport_(viewport),
      tabs_(tabs),
      commands_(commands) {
    commands_.handle("mnuFrameInsert", [this] { insertFrame(); });
    commands_.handle("mnuFrameRemove", [this] { removeFrame(); });
    commands_.handle("mnuMapRename", [this] { tabs_.startRenaming(); });
    tabs_.frameSelected = [this] { changeFrame(); };
}

void FrameCommands::changeFrame() {
    const HourglassGuard hourglass(shell_);
    canvas_.resetDrawing();
    workspace_.storeCurrentFrame();
    canvas_.selection().clearSelection();
    canvas_.sprites().unloadFrameSprites(workspace_.Status.CurrentFrame);
    workspace_.Status.CurrentFrame = static_cast<qint16>(tabs_.selected());
    tabs_.showCaption();
    canvas_.showFrame(workspace_.Status.CurrentFrame);
    viewport_.update();
}

void FrameCommands::insertFrame() {
    workspace_.Frames().Add().Texts().Label = tabs_.freeFrameName();
    workspace_.pctPanel.append();
    tabs_.append(workspace_.Frames().Item(workspace_.Frames().Count()).Texts().Label);
    changeFrame();
    refresh();
}

void FrameCommands::removeFrame() {
    if (tabs_.selected() == 0 || workspace_.Frames().Count() < 2) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    canvas_.resetDrawing();
    canvas_.selection().clearSelection();
    canvas_.sprites().unloadFrameSprites(workspace_.Status.CurrentFrame);
    const int removed = tabs_.selected();
    workspace_.Frames().Remove(removed);
    tabs_.remove(removed);
    workspace_.pctPanel.remove(removed);
    tabs_.select(1);
    workspace_.Status.CurrentFrame = 1;
    canvas_.showFrame(1);
    refresh();
}

void FrameCommands::changeMap(const QString& path) {
    const HourglassGuard hourglass(shell_);
    const Picture map = Picture::fromEncoded(host_files::read(path, MaxPictureBytes));
    canvas_.resetDrawing();
    canvas_.selection().clearSelection();
    workspace_.Status.CurrentMap = path;
    workspace_.settings.set(Setting::CurrentMap, path);
    canvas_.sprites().unloadAllSprites();
    workspace_.Project = std::make_unique<cWrapper>();
    for (int i = 1; i <= tabs_.count(); ++i) {
        workspace_.Frames().Add().Texts().Label = tabs_.caption(i);
    }
    workspace_.clearTempPicture();
    workspace_.Status.CurrentFrame = 1;
    workspace_.pctMap.setPicture(map);
    tabs_.select(1);
    canvas_.showFrame(1);
    viewport_.setScrollBars();
    refresh();
}

void FrameCommands::refresh() {
    commands_.setEnabled({"mnuFrameRemove"}, workspace_.Frames().Count() > 1);
    framesChanged();
}

}  // namespace nubivane
