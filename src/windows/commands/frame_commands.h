// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"
#include "engine/model/workspace.h"
#include "windows/commands/canvas_context.h"

#include <QObject>

namespace nubivane {

class FrameTabs;

/// The commands on Frames: showing, inserting, removing, moving, renaming them, and changing the
/// map under all of them.
class FrameCommands : public QObject, private EditWatcher {
    Q_OBJECT

  public:
    FrameCommands(const CanvasContext& context, FrameTabs& tabs);
    ~FrameCommands() override;

    /// Leaves the Frame on the canvas, its picture kept in its panel, and shows the selected tab's.
    void changeFrame();
    /// Puts another map under the project: all sprites and drawings of all Frames go.
    void changeMap(const QString& path);
    /// Enables the commands that need more than one Frame.
    void refresh();

  Q_SIGNALS:
    void framesCounted();  ///< Frames may have come or gone

  private:
    void insertFrame();
    void removeFrame();
    void moveFrame(int from, int to);
    void stepFrame(int step);

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
