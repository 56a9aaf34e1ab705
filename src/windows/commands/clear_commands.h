// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

class Commands;
class FrameCanvas;
class MapViewport;
class Shell;
class Workspace;

/// What empties the Frame on the canvas, after a question: of its sprites, or of its drawings.
class ClearCommands {
  public:
    ClearCommands(Workspace& workspace, Shell& shell, FrameCanvas& canvas, MapViewport& viewport,
                  Commands& commands);

  private:
    /// `mnuDelAllSymbols`: takes away Symbols and Labels alike.
    void deleteAllSprites();
    /// `mnuPulisci`: gives the Frame the bare map; its sprites stay.
    void clearMap();

    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    MapViewport& viewport_;
};

}  // namespace nubivane
