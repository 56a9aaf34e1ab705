// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/figure_tool.h"

namespace nubivane {

/// "curvy": one Bezier curve through up to 15 control points, their polygon dotted while it is
/// edited.
class CurveTool : public FigureTool {
  public:
    explicit CurveTool(MapDrawing& drawing, int mostPoints = 15);

  protected:
    void drawFigure() override;
    void drawEdited() override;
};

/// "line": the curve of two points.
class LineTool : public CurveTool {
  public:
    explicit LineTool(MapDrawing& drawing);
};

/// "circle": around its first point through its second.
class CircleTool : public FigureTool {
  public:
    explicit CircleTool(MapDrawing& drawing);

  protected:
    void go(QPoint position) override;
    void drawFigure() override;
    void drawEdited() override;
};

/// "poly": up to 15 points joined by lines, the last one not to the first.
class PolygonTool : public FigureTool {
  public:
    explicit PolygonTool(MapDrawing& drawing);

  protected:
    void drawFigure() override;
    void drawEdited() override;

  private:
    void drawLines();
};

}  // namespace nubivane
