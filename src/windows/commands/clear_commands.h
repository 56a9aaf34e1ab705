// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/commands/canvas_context.h"

#include <QObject>

namespace nubivane {

/// What empties the Frame on the canvas, after a question: of its sprites, or of its drawings.
class ClearCommands : public QObject {
    Q_OBJECT

  public:
    explicit ClearCommands(const CanvasContext& context);

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
