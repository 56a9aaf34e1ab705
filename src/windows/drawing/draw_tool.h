// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/pen_tool.h"

namespace nubivane {

/// "draw": lines by hand, committed stroke by stroke.
class DrawTool : public PenTool {
  public:
    explicit DrawTool(MapDrawing& drawing);

  protected:
    void begin(QPoint position) override;
    void go(QPoint position) override;
    void goOut(QPoint position) override;
    void end() override;
};

}  // namespace nubivane
