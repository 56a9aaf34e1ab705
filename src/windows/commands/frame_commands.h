// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"
#include "engine/model/workspace.h"

#include <functional>

namespace nubivane {

class Commands;
class FrameTabs;
class MapViewport;
class Shell;

/// The commands on Frames: showing, inserting, removing, moving, renaming them, and changing the
/// map under all of them.
class FrameCommands : private EditWatcher {
  public:
    FrameCommands(Workspace& workspace, Shell& shell, MapViewport& viewport, FrameTabs& tabs,
                  Commands& commands);
    ~FrameCommands() override;

    /// Leaves the Frame on the canvas, its picture kept in its panel, and shows the selected tab's.
    void changeFrame();
    /// Puts another map under the project: all sprites and drawings of all Frames go.
    void changeMap(const QString& path);
    /// Enables the commands that need more than one Frame.
    void refresh();

    std::function<void()> framesCounted;  ///< Frames may have come or gone

  private:
    void insertFrame();
    void removeFrame();
    void moveFrame(int from, int to);

    // EditWatcher.
    void framesChanged() override;
    void edited(const ProjectChange& change) override;

    Workspace& workspace_;
    Shell& shell_;
    MapViewport& viewport_;
    FrameTabs& tabs_;
    Commands& commands_;
};

}  // namespace nubivane
