// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/panes/selected_sprite.h"

#include <functional>

namespace nubivane {

class Commands;
class frmSymbolProperty;
class Shell;

/// The commands that open the property windows.
///
/// The entry `mnuProperty` is for the selected sprite and disabled without one. The bar's button
/// and F4 work always: with nothing selected they open the properties of the Frame.
class PropertyCommands {
  public:
    PropertyCommands(Workspace& workspace, Shell& shell, FrameCanvas& canvas, Commands& commands,
                     QWidget& window);

    /// Opens the properties of the selected sprite, or of the Frame when nothing is selected.
    void showSpriteProperties();

    /// Lets the person choose a symbol for the window; without it none can be chosen.
    std::function<void(frmSymbolProperty&)> openSymbolSelection;

  private:
    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget& window_;
};

}  // namespace nubivane
