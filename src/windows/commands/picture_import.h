// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/commands/canvas_context.h"

#include <QObject>
#include <QStringList>

namespace nubivane {

class Palette;

/// Picture files dropped from a file manager: each is checked as any import is, and copied into the
/// collection that the palette shows. Those dropped on the map are placed there too.
class PictureImport : public QObject {
    Q_OBJECT

  public:
    PictureImport(const CanvasContext& context, Palette& palette);

  private:
    /// The symbols that files have become; a message tells of each that is refused.
    QStringList import(const QStringList& files);

    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget& window_;
    Palette& palette_;
};

}  // namespace nubivane
