// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/clear_commands.h"

#include "engine/core/error.h"
#include "engine/core/shell.h"
#include "engine/model/edits/picture_edits.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_edits.h"
#include "windows/canvas/map_viewport.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"

#include <QCoreApplication>

namespace nubivane {

namespace {

bool confirmed(Shell& shell, const QString& question) {
    return shell.messageBox({question, Icon::Question, Buttons::YesNo, {}, true}) == Answer::Yes;
}

}  // namespace

ClearCommands::ClearCommands(const CanvasContext& context)
    : QObject(&context.window),
      workspace_(context.workspace),
      shell_(context.shell),
      canvas_(context.canvas),
      viewport_(context.viewport) {
    context.commands.handle(Command::mnuDelAllSymbols, [this] { deleteAllSprites(); });
    context.commands.handle(Command::mnuPulisci, [this] { clearMap(); });
}

void ClearCommands::deleteAllSprites() {
    if (!confirmed(shell_, tr("Are you sure you want to delete all symbols in the map ?"))) {
        return;
    }
    canvas_.selection().clearSelection();
    workspace_.edits().push(std::make_unique<ReplaceSprites>(
        QT_TRANSLATE_NOOP("Edits", "Delete all"), Marks::Nothing,
        std::vector{ReplaceSprites::Row{workspace_.Status.CurrentFrame, {}}}));
}

void ClearCommands::clearMap() {
    if (!confirmed(shell_, tr("Are you sure you want to clear map ?"))) {
        return;
    }
    Picture map;
    try {
        map = workspace_.loadCurrentMap();
    } catch (const Error& error) {
        shell_.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
        return;
    }
    // A figure still being drawn is of this Frame's drawings too.
    canvas_.resetDrawing();
    workspace_.edits().push(std::make_unique<ClearDrawings>(workspace_.Status.CurrentFrame, map));
    viewport_.update();
}

}  // namespace nubivane
