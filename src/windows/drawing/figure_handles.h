// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/map_canvas.h"

#include <QPainterPath>
#include <QPointer>
#include <QTransform>

#include <optional>
#include <vector>

namespace nubivane {

/// The squares by which the points of a weather figure are seen and caught. They lie above the map
/// and never become part of its picture, and they are as large on the screen however large the map
/// is shown.
class FigureHandles : public CanvasOverlay {
  public:
    /// From the middle of a handle to its edge, pixels of the screen.
    static constexpr int Reach = 5;

    ~FigureHandles() override;

    /// Has the canvas show them from now on; it must not go before this.
    void attach(MapCanvas& canvas);
    void show(const std::vector<QPoint>& points, std::optional<int> current);
    /// Shows how the figure would go on if the map were clicked, until `show` or another one;
    /// pixels of the map, empty for nothing.
    void setPreview(const QPainterPath& preview);
    const QPainterPath& preview() const { return preview_; }
    void paint(QPainter& painter, const MapCanvas& canvas) const override;

    /// The handle at a position of the map, the one in hand first and then the topmost; nothing
    /// beside them all.
    std::optional<int> at(QPoint position) const;
    /// How many pixels of the map lie below an extent of the screen.
    qreal onMap(qreal screenPixels) const;

  private:
    QRect place(QPoint position) const;
    QTransform toCanvas() const;
    void refreshPreview();
    void paintPreview(QPainter& painter) const;
    void refresh();

    QPointer<MapCanvas> canvas_;
    std::vector<QPoint> points_;
    std::optional<int> current_;
    QPainterPath preview_;
};

}  // namespace nubivane
