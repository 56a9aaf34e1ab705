// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/pen_tool.h"

#include <vector>

namespace nubivane {

/// A figure made from control points: each press adds one as long as there is room, a press on one
/// drags it. It lives on the scratch layer until it is applied.
class FigureTool : public PenTool {
  public:
    FigureTool(MapDrawing& drawing, int mostPoints);

    void apply() final;
    void redraw() final;

    std::vector<QPoint> figurePoints() const final { return controls(); }
    QString figureName() const final;

  protected:
    void begin(QPoint position) final;
    void go(QPoint position) override;

    /// Draws the figure on a clean scratch layer.
    virtual void drawFigure() = 0;
    /// The same for a figure that is being edited, all but its handles.
    virtual void drawEdited() { drawFigure(); }

    /// The points in use.
    std::vector<QPoint> controls() const;

  private:
    int mostPoints_;
};

}  // namespace nubivane
