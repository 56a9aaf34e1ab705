// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/property_commands.h"

#include "windows/commands/commands.h"
#include "windows/commands/frm_replace.h"
#include "windows/properties/frm_frame_property.h"
#include "windows/properties/frm_label_property.h"
#include "windows/properties/frm_many_property.h"
#include "windows/properties/frm_symbol_property.h"

#include <QShortcut>

#include <utility>

namespace nubivane {

PropertyCommands::PropertyCommands(const CanvasContext& context, SymbolChooser chooser)
    : QObject(&context.window),
      workspace_(context.workspace),
      shell_(context.shell),
      canvas_(context.canvas),
      window_(context.window),
      chooser_(std::move(chooser)),
      spelling_(context.workspace.settings, Spelling::standardPlaces()) {
    for (const Command id : {Command::mnuProperty, Command::btnProperty}) {
        context.commands.handle(id, [this] { showSpriteProperties(); });
    }
    context.commands.handle(Command::mnuReplace, [this] {
        frmReplace(
            workspace_, [this](QWidget* over) { return chooser_(over); }, &window_)
            .exec();
    });
    // The menu's own key rests while the entry is disabled; this one stands in for it.
    const QAction* entry = context.commands[Command::mnuProperty];
    auto* key = new QShortcut(entry->shortcut(), &context.window);
    key->setEnabled(!entry->isEnabled());
    QObject::connect(entry, &QAction::enabledChanged, key,
                     [key](bool enabled) { key->setEnabled(!enabled); });
    QObject::connect(key, &QShortcut::activated, key, [this] { showSpriteProperties(); });
}

void PropertyCommands::showSpriteProperties() {
    const std::vector<SpriteId> selected = canvas_.selection().ids();
    if (selected.size() > 1) {
        frmManyProperty(workspace_, shell_, selected, &window_).Init();
        return;
    }
    SelectedSprite sprite(canvas_);
    if (canvas_.selection().isEmpty()) {
        frmFrameProperty(workspace_, shell_, spelling_, &window_).Init();
    } else if (!sprite.exists()) {
        return;
    } else if (workspace_.Status.CurrentShapeControlType == sprite_type::Symbol) {
        frmSymbolProperty(workspace_, shell_, sprite, chooser_, &window_).Init();
    } else {
        frmLabelProperty(workspace_, shell_, sprite, &window_).Init();
    }
}

}  // namespace nubivane
