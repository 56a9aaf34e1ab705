// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMenu;
class QMenuBar;

namespace nubivane {

class Commands;

/// The menus that somebody has still to do with when they are built.
struct Menus {
    QMenu& file;    ///< `mnuFile` of the bar: the recent files come in before `mnuEsci`
    QMenu& sprite;  ///< `MenuPopup`: the menu of a sprite and of the bare map
    QMenu& frame;   ///< `MenuMap`: the menu of a Frame's tab
};

/// Fills the menu bar with the menu tree and makes the popup menus, which belong to the window of
/// the bar.
Menus buildMenus(QMenuBar& bar, const Commands& commands);

}  // namespace nubivane
