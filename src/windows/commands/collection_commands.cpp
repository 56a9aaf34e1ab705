// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/collection_commands.h"

#include "engine/collections/map_files.h"
#include "engine/core/error.h"
#include "engine/core/shell.h"
#include "windows/collections/frm_maps_collection.h"
#include "windows/collections/frm_symbol_selection.h"
#include "windows/collections/frm_symbols_collection.h"
#include "windows/commands/commands.h"
#include "windows/commands/frame_commands.h"
#include "windows/panes/palette.h"

#include <utility>

namespace nubivane {

CollectionCommands::CollectionCommands(const CanvasContext& context, AnimationCache& animations,
                                       Palette& palette, FrameCommands& frameCommands)
    : QObject(&context.window),
      workspace_(context.workspace),
      animations_(animations),
      shell_(context.shell),
      palette_(palette),
      frameCommands_(frameCommands),
      window_(context.window) {
    context.commands.handle(Command::mnuCollection, [this] { mnuCollection(); });
    context.commands.handle(Command::mnuOpenMap, [this] { mnuOpenMap(); });
}

void CollectionCommands::mnuCollection() {
    frmSymbolsCollection(workspace_, animations_, shell_, &window_).exec();
    cSymbolsCollections& collections = workspace_.Status.SymbolsCollection();
    if (std::exchange(collections.IsChanged, false)) {
        palette_.loadSymbolsCollections();
    }
}

std::optional<QString> CollectionCommands::chooseSymbol(QWidget* over) {
    frmSymbolSelection window(workspace_, animations_, shell_, over);
    window.exec();
    return window.FileName();
}

/// Empty where none was chosen.
QString CollectionCommands::chooseMap() {
    frmMapsCollection window(workspace_, shell_, &window_);
    window.exec();
    return window.chosenMap();
}

void CollectionCommands::mnuOpenMap() {
    const QString map = chooseMap();
    // By the dialog's own measure: a map that it took for the one in use was chosen without the
    // question whether all symbols may go.
    if (map.isEmpty() || isCurrentMap(workspace_, map)) {
        return;
    }
    try {
        frameCommands_.changeMap(map);
    } catch (const Error& error) {
        shell_.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
    }
}

}  // namespace nubivane
