// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/program_folder.h"
#include "engine/model/color_table.h"
#include "engine/model/frame_panels.h"
#include "engine/model/frames.h"
#include "engine/model/map_surface.h"
#include "engine/model/status.h"

#include <memory>

namespace nubivane {

class SettingsStore;

/// Everything that is open: the project, what is current, the map surface and the Frames'
/// pictures, with the folder and the settings they belong to. The editor makes one and hands it
/// down by reference; the command line and each test make their own.
class Workspace {
  public:
    Workspace(ProgramFolder folder, SettingsStore& settings);

    const ProgramFolder folder;
    SettingsStore& settings;
    const ColorTable colorTable;

    std::unique_ptr<cWrapper> Project;  ///< replaced as a whole by opening and creating
    cStatus Status;
    bool ProjectChanged = false;    ///< unsaved work exists
    bool TabEventsEnabled = false;  ///< false while the tabs are rebuilt
    MapSurface pctMap;
    FramePanels pctPanel;

    cFrames& Frames() { return Project->Frames(); }
    const cFrames& Frames() const { return Project->Frames(); }

    /// A new project with one empty Frame.
    void resetProject();

    /// One empty panel for each Frame.
    void clearTempPicture();

    /// Copies the canvas into the current Frame's panel. Whoever needs the pictures of the whole
    /// project calls it first: this is the only state that lags behind the screen.
    void storeCurrentFrame();

    /// Gives every Frame that has no picture the bare map. Raises `Error` when the map cannot be
    /// read.
    void fillPanels();

    /// The file `CurrentMap` as a picture, read anew. Raises `Error`.
    Picture loadCurrentMap() const;
};

}  // namespace nubivane
