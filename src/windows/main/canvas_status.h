// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprite_id.h"

#include <QObject>

namespace nubivane {

class FrameCanvas;
class MapZoom;
class StatusLine;
class Workspace;

/// Keeps the status line in step with the canvas: pointer, selection and size.
class CanvasStatus : public QObject {
    Q_OBJECT

  public:
    CanvasStatus(const Workspace& workspace, FrameCanvas& canvas, MapZoom& zoom, StatusLine& line);

  private:
    void showSelection();
    QString shortName(const SpriteId& id) const;

    const Workspace& workspace_;
    FrameCanvas& canvas_;
    StatusLine& line_;
};

}  // namespace nubivane
