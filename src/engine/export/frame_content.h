// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprites.h"
#include "engine/picture/picture.h"

#include <QPoint>
#include <QString>

#include <vector>

namespace nubivane {

class ExportWatcher;
class Workspace;

/// What a Frame shows, copied from the model. Pictures are shared, so a copy costs little; and an
/// export that works on a thread of its own must not meet a model that changes.
struct FrameContent {
    struct Symbol {
        QPoint position;
        QString file;  ///< path text
    };

    qint32 number = 0;       ///< the Frame's
    Picture drawn;           ///< the map with what was drawn on it; empty while it is bare
    QString mapFile;         ///< the bare map, a path text
    qint32 symbolCount = 0;  ///< Symbols of the Frame, those that cannot be shown among them
    std::vector<Symbol> symbols;
    std::vector<cLabel> labels;
};

/// The content of a Frame, its sprites in the order of painting. Gives each sprite the `Index` that
/// it has on a stage; one whose name stands for no kind of element is left out. The canvas lags
/// behind the panels: whoever exports the Frame on it calls `Workspace::storeCurrentFrame` first.
/// Raises `Error` (OutOfRange) when there is no such Frame.
FrameContent contentOf(const Workspace& workspace, qint32 frame);

/// Tells the watcher of each Label that has letters for which no installed font has a form.
void remarkMissingLetters(const FrameContent& frame, ExportWatcher& watcher);

}  // namespace nubivane
