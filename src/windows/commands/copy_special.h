// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/sprite_edits.h"
#include "engine/model/workspace.h"
#include "windows/commands/canvas_context.h"

#include <QObject>
#include <QString>

namespace nubivane {

/// "Copy special...": all sprites of one Frame replace those of another.
class CopySpecial : public QObject {
    Q_OBJECT

  public:
    explicit CopySpecial(const CanvasContext& context);

    /// The request that `frmUtility` leaves: source and destination Frame and whether to cut (0 or
    /// 1), parted by "|". Empty means nothing to do.
    QString CopyInfo;

    /// Does what a request says. The Frames' pictures and drawings stay where they are. A request
    /// that names no two Frames does nothing.
    void copyBetweenFrames(const QString& request);

  private:
    void mnuCopySymbols();
    ReplaceSprites::Sprites copies(qint32 from, qint32 to, bool isShown);

    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget& window_;
};

}  // namespace nubivane
