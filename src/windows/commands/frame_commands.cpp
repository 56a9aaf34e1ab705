// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/frame_commands.h"

#include "engine/core/host_files.h"
#include "engine/core/shell.h"
#include "engine/model/edits/frame_edits.h"
#include "engine/model/edits/project_edits.h"
#include "windows/canvas/map_viewport.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_tabs.h"

namespace nubivane {

FrameCommands::FrameCommands(const CanvasContext& context, FrameTabs& tabs)
    : QObject(&context.window),
      workspace_(context.workspace),
      shell_(context.shell),
      viewport_(context.viewport),
      tabs_(tabs),
      commands_(context.commands) {
    commands_.handle(Command::mnuFrameInsert, [this] { insertFrame(); });
    commands_.handle(Command::mnuFrameRemove, [this] { removeFrame(); });
    commands_.handle(Command::mnuMapRename, [this] { tabs_.startRenaming(); });
    commands_.handle(Command::mnuFrameLeft, [this] { stepFrame(-1); });
    commands_.handle(Command::mnuFrameRight, [this] { stepFrame(1); });
    connect(&tabs_, &FrameTabs::frameSelected, this, &FrameCommands::changeFrame);
    connect(&tabs_, &FrameTabs::frameMoved, this, &FrameCommands::moveFrame);
    workspace_.edits().watch(*this);
}

FrameCommands::~FrameCommands() {
    workspace_.edits().unwatch(*this);
}

void FrameCommands::changeFrame() {
    const HourglassGuard hourglass(shell_);
    workspace_.edits().showFrame(tabs_.selected());
}

void FrameCommands::insertFrame() {
    const HourglassGuard hourglass(shell_);
    workspace_.edits().push(std::make_unique<InsertFrame>(tabs_.freeFrameName()));
}

void FrameCommands::removeFrame() {
    if (tabs_.selected() == 0 || workspace_.Frames().Count() < 2) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    workspace_.edits().push(std::make_unique<RemoveFrame>(tabs_.selected()));
}

void FrameCommands::moveFrame(int from, int to) {
    const HourglassGuard hourglass(shell_);
    workspace_.edits().push(std::make_unique<MoveFrame>(from, to));
}

void FrameCommands::stepFrame(int step) {
    const int to = tabs_.selected() + step;
    if (tabs_.selected() > 0 && to >= 1 && to <= workspace_.Frames().Count()) {
        moveFrame(tabs_.selected(), to);
    }
}

void FrameCommands::changeMap(const QString& path) {
    const HourglassGuard hourglass(shell_);
    Picture map = Picture::fromEncoded(host_files::read(path, MaxPictureBytes));
    workspace_.edits().push(std::make_unique<ChangeMap>(path, std::move(map)));
}

void FrameCommands::refresh() {
    commands_.setEnabled({Command::mnuFrameRemove, Command::mnuFrameLeft, Command::mnuFrameRight},
                         workspace_.Frames().Count() > 1);
    Q_EMIT framesCounted();
}

void FrameCommands::framesChanged() {
    viewport_.update();
    refresh();
}

void FrameCommands::edited(const ProjectChange& change) {
    if (change.map) {
        viewport_.setScrollBars();
    }
}

}  // namespace nubivane
