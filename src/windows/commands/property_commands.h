// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/spelling/spelling.h"
#include "windows/commands/canvas_context.h"
#include "windows/panes/selected_sprite.h"
#include "windows/properties/symbol_chooser.h"

#include <QObject>

#include <functional>

namespace nubivane {

/// The commands that open the property windows.
///
/// The entry `mnuProperty` is for the selected sprite and disabled without one. The bar's button
/// and F4 work always: with nothing selected they open the properties of the Frame.
class PropertyCommands : public QObject {
    Q_OBJECT

  public:
    /// `chooser` lets the person choose another picture for a Symbol.
    PropertyCommands(const CanvasContext& context, SymbolChooser chooser);

    /// Opens the properties of the selected sprite, or of the Frame when nothing is selected.
    void showSpriteProperties();

    /// Another way to choose, for those who have no person in front of them.
    void setChooser(SymbolChooser chooser) { chooser_ = std::move(chooser); }

  private:
    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget& window_;
    SymbolChooser chooser_;
    Spelling spelling_;
};

}  // namespace nubivane
