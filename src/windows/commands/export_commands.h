// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QString>

class QWidget;

namespace nubivane {

class Commands;
class FrameCanvas;
class Shell;

/// The commands that make pictures, animations and videos, with the windows they go through.
class ExportCommands {
  public:
    ExportCommands(Workspace& workspace, Shell& shell, FrameCanvas& canvas, Commands& commands,
                   QWidget* window);

  private:
    void exportMap(const QString& filter);
    void restoreMapPicture();
    void subEsportaGifAni();
    void subEsportaFilm();
    void subEsportaAvi();

    Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget* window_;
};

}  // namespace nubivane
