// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/pen_tool.h"

namespace nubivane {

/// "color": takes the drawing colour from the map and what is drawn on it.
class ColorTool : public PenTool {
  public:
    explicit ColorTool(MapDrawing& drawing);

  protected:
    void begin(QPoint position) override;
};

}  // namespace nubivane
