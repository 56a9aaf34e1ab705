// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/commands/canvas_context.h"

#include <QObject>

namespace nubivane {

/// Selecting all sprites of the Frame, and leaving copies of those that are selected beside them.
class SelectionCommands : public QObject {
    Q_OBJECT

  public:
    explicit SelectionCommands(const CanvasContext& context);

    /// Of all sprites the uppermost one counts as the one selected last.
    void selectAll();
    /// The copies are selected then. The clipboard is left alone.
    void duplicate();

  private:
    Workspace& workspace_;
    FrameCanvas& canvas_;
    Commands& commands_;
};

}  // namespace nubivane
