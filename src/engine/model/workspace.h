// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"
#include "engine/core/program_folder.h"
#include "engine/model/color_table.h"
#include "engine/model/frame_panels.h"
#include "engine/model/frames.h"
#include "engine/model/map_surface.h"
#include "engine/model/status.h"

#include <memory>
#include <optional>

namespace nubivane {

class ProjectEdits;
class SettingsStore;

/// The project that was read or written last, and how its files stood then.
struct OpenedPair {
    QString project;  ///< path text
    PairState state;
};

/// Everything that is open: the project, what is current, the map surface and the Frames'
/// pictures, with the folder and the settings they belong to. The editor makes one and hands it
/// down by reference; the command line and each test make their own.
class Workspace {
  public:
    Workspace(ProgramFolder folder, SettingsStore& settings);
    ~Workspace();

    const ProgramFolder folder;
    SettingsStore& settings;
    const ColorTable colorTable;

    std::unique_ptr<cWrapper> Project;  ///< replaced as a whole by opening and creating
    cStatus Status;
    std::optional<OpenedPair> opened;
    bool ProjectChanged = false;    ///< unsaved work exists
    bool TabEventsEnabled = false;  ///< false while the tabs are rebuilt
    MapSurface pctMap;
    FramePanels pctPanel;

    /// What the project holds, to be looked at. Only edits, and whatever puts a new project here,
    /// write it.
    const cFrames& Frames() const { return Project->Frames(); }

    /// What changes the project that is open goes through here.
    ProjectEdits& edits() { return *edits_; }
    const ProjectEdits& edits() const { return *edits_; }

    /// A new project with one empty Frame. Nothing of the old one can be undone.
    void resetProject();

    /// One empty panel for each Frame.
    void clearTempPicture();

    /// Copies the canvas into the current Frame's panel. Whoever needs the pictures of the whole
    /// project calls it first: this is the only state that lags behind the screen.
    void storeCurrentFrame();

    /// Makes a Frame the current one and puts its picture on the canvas, the bare map where it has
    /// none; without its map the canvas keeps what it shows.
    void showFrame(qint32 frame);

    /// Gives every Frame that has no picture the bare map. Raises `Error` when the map cannot be
    /// read.
    void fillPanels();

    /// The file `CurrentMap` as a picture, read anew. Raises `Error`.
    Picture loadCurrentMap() const;

  private:
    std::unique_ptr<ProjectEdits> edits_;
};

}  // namespace nubivane
