// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMenu;
class QMenuBar;
class QWidget;

namespace nubivane {

class Commands;

/// Fills the menu bar with the menu tree. The recent files come into the menu `mnuFile` before
/// `mnuEsci`.
void buildMenuBar(QMenuBar& bar, const Commands& commands);

/// `MenuPopup`: the menu of a sprite and of the bare map.
QMenu* buildSpriteMenu(const Commands& commands, QWidget* parent);

/// `MenuMap`: the menu of a Frame's tab.
QMenu* buildFrameMenu(const Commands& commands, QWidget* parent);

}  // namespace nubivane
