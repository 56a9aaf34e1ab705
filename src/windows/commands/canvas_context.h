// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace nubivane {

class Commands;
class FrameCanvas;
class MapViewport;
class Shell;
class Workspace;

/// What the groups of commands work with, made once by the main window.
struct CanvasContext {
    Workspace& workspace;
    Shell& shell;
    FrameCanvas& canvas;
    MapViewport& viewport;
    Commands& commands;
    QWidget& window;  ///< over which their windows come
};

}  // namespace nubivane
