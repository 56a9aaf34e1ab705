// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <functional>

namespace nubivane {

class Commands;
class FrameCanvas;
class FrameTabs;
class MapViewport;
class Shell;

/// The commands on Frames: showing, inserting, removing, renaming them, and changing the map under
/// all of them.
class FrameCommands {
  public:
    FrameCommands(Workspace& workspace, Shell& shell, FrameCanvas& canvas, MapViewport& viewport,
                  FrameTabs& tabs, Commands& commands);

    /// Leaves the Frame on the canvas, its picture kept in its panel, and shows the selected tab's.
    void changeFrame();
    /// Puts another map under the project: all sprites and drawings of all Frames go.
    void changeMap(const QString& path);
    /// Enables the commands that need more than one Frame.
    void refresh();

    std::function<void()> framesChanged;  ///< Frames came or went, or all sprites with them

  private:
    void insertFrame();
    void removeFrame();

    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    MapViewport& viewport_;
    FrameTabs& tabs_;
    Commands& commands_;
};

}  // namespace nubivane
