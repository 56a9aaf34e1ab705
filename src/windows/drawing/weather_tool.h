// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/applied_figures.h"
#include "windows/drawing/drawing_tool.h"
#include "windows/drawing/figure_points.h"

#include <optional>
#include <vector>

namespace nubivane {

class MapDrawing;

/// A tool for the figures of weather maps. A click adds a point at the end, on the curve between
/// two points, a drag moves one, the right button removes it; keys do the same. The figure lives on
/// the scratch layer until it is applied, its handles above the canvas.
///
/// It may begin on symbols, below which it will lie.
class WeatherTool : public DrawingTool {
  public:
    WeatherTool(MapDrawing& drawing, Tool tool);

    void press(QPoint position, Qt::MouseButton button) final;
    void move(QPoint position) final;
    void leave(QPoint position) final;
    void release(Qt::MouseButton button) final;

    void apply() final;
    bool canApply() const final;
    const char* editName() const final;
    void redraw() final;

    std::vector<QPoint> figurePoints() const final { return points_.all(); }
    QString figureName() const final;
    std::optional<int> pointInHand() const final { return points_.current(); }
    void takePointInHand(int index) final;
    void removePoint(int index) final;

    bool isUnfinished() const final { return !points_.isEmpty() || taken_; }
    void takeBack() final;
    void drop() final;

    QString nextStep() const final;
    /// Insert or N adds a point, Delete or Backspace removes the one in hand, Page Up and Page Down
    /// go from point to point, arrows move it by a pixel, with Ctrl by ten.
    bool pressMapKey(const QKeyEvent& key) final;

    QCursor pointer() const final;
    QCursor pointerAt(QPoint position) const final;

    /// Goes on with a figure that had been applied.
    void take(FigureTakenUp taken);
    /// The figure that was taken up, until it is applied or dropped.
    const std::optional<FigureTakenUp>& taken() const { return taken_; }
    /// The figure as it stands, without its width.
    AppliedFigure figure() const;
    const FigurePoints& points() const { return points_; }

  protected:
    weather::FigureKind kind() const;
    const FigureLook& look() const;
    MapDrawing& drawing() const { return drawing_; }

    /// A click beside all points and the curve.
    virtual void place(QPoint position);
    /// The sentences, by how many points there are.
    virtual QString firstStep() const = 0;
    virtual QString laterStep() const = 0;
    /// What keeps a figure of enough points from being seen; empty where nothing does.
    virtual QString missing() const { return {}; }

    FigurePoints& editedPoints() { return points_; }
    QPoint onMap(QPoint position) const;

  private:
    weather::WeatherFigure drawn() const;
    std::optional<int> curveAt(QPoint position) const;
    QPainterPath segmentTo(QPoint position) const;
    void addByKey();
    bool step(const QKeyEvent& key);
    bool nudge(const QKeyEvent& key);
    void changed();

    MapDrawing& drawing_;
    Tool tool_;
    FigurePoints points_;
    std::optional<int> dragged_;
    std::optional<FigureTakenUp> taken_;
    mutable std::optional<weather::FigureKind> pointed_;  ///< the kind on the pointer
    mutable QCursor pointer_;
};

}  // namespace nubivane
