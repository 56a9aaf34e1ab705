// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/property_commands.h"

#include "windows/commands/commands.h"
#include "windows/properties/frm_frame_property.h"
#include "windows/properties/frm_label_property.h"
#include "windows/properties/frm_symbol_property.h"

#include <QShortcut>

namespace nubivane {

PropertyCommands::PropertyCommands(Workspace& workspace, Shell& shell, FrameCanvas& canvas,
                                   Commands& commands, QWidget& window)
    : workspace_(workspace), shell_(shell), canvas_(canvas), window_(window) {
    for (const Command id : {Command::mnuProperty, Command::btnProperty}) {
        commands.handle(id, [this] { showSpriteProperties(); });
    }
    // The menu's own key rests while the entry is disabled; this one stands in for it.
    const QAction* entry = commands[Command::mnuProperty];
    auto* key = new QShortcut(entry->shortcut(), &window);
    key->setEnabled(!entry->isEnabled());
    QObject::connect(entry, &QAction::enabledChanged, key,
                     [key](bool enabled) { key->setEnabled(!enabled); });
    QObject::connect(key, &QShortcut::activated, key, [this] { showSpriteProperties(); });
}

void PropertyCommands::showSpriteProperties() {
    SelectedSprite sprite(canvas_);
    if (canvas_.selection().isEmpty()) {
        frmFrameProperty(workspace_, shell_, &window_).Init();
    } else if (!sprite.exists()) {
        return;
    } else if (workspace_.Status.CurrentShapeControlType == sprite_type::Symbol) {
        frmSymbolProperty properties(workspace_, shell_, sprite, &window_);
        properties.openSymbolSelection = openSymbolSelection;
        properties.Init();
    } else {
        frmLabelProperty(workspace_, shell_, sprite, &window_).Init();
    }
}

}  // namespace nubivane
