// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/commands/canvas_context.h"

#include <QObject>
#include <QString>

namespace nubivane {

/// The commands that make pictures, animations and videos, with the windows they go through.
class ExportCommands : public QObject {
    Q_OBJECT

  public:
    explicit ExportCommands(const CanvasContext& context);

  private:
    void exportMap(const QString& filter);
    void restoreMapPicture();
    void subEsportaGifAni();
    void subEsportaFilm();
    void subEsportaAvi();

    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget& window_;
};

}  // namespace nubivane
