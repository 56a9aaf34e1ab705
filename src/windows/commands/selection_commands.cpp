// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/selection_commands.h"

#include "engine/model/edits/sprite_changes.h"
#include "windows/canvas/free_place.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"

namespace nubivane {

SelectionCommands::SelectionCommands(const CanvasContext& context)
    : QObject(&context.window),
      workspace_(context.workspace),
      canvas_(context.canvas),
      commands_(context.commands) {
    commands_.handle(Command::mnuSelectAll, [this] { selectAll(); });
    commands_.handle(Command::mnuDuplicate, [this] { duplicate(); });
    const auto refresh = [this] {
        commands_.setEnabled({Command::mnuDuplicate}, !canvas_.selection().isEmpty());
    };
    connect(&canvas_.selection(), &Selection::commandsChanged, this, refresh);
    refresh();
}

void SelectionCommands::selectAll() {
    if (workspace_.Status.CurrentTool != Tool::cursor) {
        canvas_.drawing().chooseTool(static_cast<std::size_t>(Tool::cursor));
    }
    std::vector<SpriteId> all;
    for (const SpriteControl* control : canvas_.sprites().controls()) {
        all.push_back(control->id);
    }
    canvas_.selection().selectAll(all);
}

void SelectionCommands::duplicate() {
    std::vector<QRect> wanted;
    std::vector<QRect> taken;
    for (const SpriteControl* control : canvas_.selection().controls()) {
        wanted.push_back(control->rect);
    }
    for (const SpriteControl* control : canvas_.sprites().controls()) {
        taken.push_back(control->rect);
    }
    const QSize map(workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
    const QPoint offset = visibleOffset(wanted, taken, map);
    std::vector<SpriteMove> copies;
    for (const SpriteControl* control : canvas_.selection().controls()) {
        copies.push_back({control->id, control->rect.topLeft() + offset});
    }
    if (!copies.empty()) {
        canvas_.selection().selectAll(copySprites(workspace_, copies, Marks::Project));
    }
}

}  // namespace nubivane
