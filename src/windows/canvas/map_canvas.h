// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/edited_figure.h"
#include "windows/canvas/map_grid.h"
#include "windows/canvas/selection.h"
#include "windows/canvas/sprite_mouse.h"
#include "windows/canvas/zoom.h"

#include <QPixmap>
#include <QWidget>

#include <functional>

class QHelpEvent;

namespace nubivane {

class CanvasClock;
class MapCanvas;

/// What lies above map and sprites while it is edited, such as handles. It is no part of any
/// picture, and its sizes are pixels of the screen.
class CanvasOverlay {
  public:
    virtual ~CanvasOverlay() = default;
    /// The painter's pixels are those of the canvas.
    virtual void paint(QPainter& painter, const MapCanvas& canvas) const = 0;
};

/// The widget `pctMap`: paints the map's layers, the sprites and the selection's border, and
/// forwards the mouse. It has a border of one pixel and shows the map larger or smaller; everybody
/// else works in pixels of the map, which `toMap` and `toWidget` turn to and from.
class MapCanvas : public QWidget {
    Q_OBJECT

  public:
    /// `dropAllowed` tells whether a drop would be taken now.
    MapCanvas(Workspace& workspace, SpriteStack& sprites, Selection& selection, SpriteMouse& mouse,
              CanvasClock& clock, std::function<bool()> dropAllowed, QWidget* parent);

    QPoint toMap(QPoint widgetPosition) const { return zoom_.toMap(widgetPosition - QPoint(1, 1)); }
    QRect toWidget(const QRect& mapRect) const { return zoom_.toScreen(mapRect).translated(1, 1); }

    Workspace& workspace() const { return workspace_; }
    SpriteStack& sprites() const { return sprites_; }
    Selection& selection() const { return selection_; }
    QSize mapSize() const { return picture_.size(); }
    Zoom zoom() const { return zoom_; }
    void setZoom(Zoom zoom);

    /// Shows the lines of a grid, so many pixels of the map apart; 0 for none.
    void setGrid(int distance);

    /// Takes over the picture of the surface anew: its size and all its pixels.
    void showPicture();
    /// Takes over a part of the surface's persistent layer, which was drawn on.
    void takeOver(const QRect& mapRect);
    /// The canvas as it is at 100 %, with its border.
    QImage image() const;
    /// The map with its sprites as they stand, made small.
    QImage thumbnail(QSize bounds) const;
    /// Shows something above the map from now on; it has to outlive the canvas, or be taken away
    /// by a null pointer. Whoever changes it has `update` called.
    void setOverlay(const CanvasOverlay* overlay) { overlay_ = overlay; }
    /// The figure that is being drawn on it; it has to outlive the canvas, or be taken away by a
    /// null pointer. Whoever changes it has `figureChanged` emitted.
    void setFigure(EditedFigure* figure) { figure_ = figure; }
    EditedFigure* figure() const { return figure_; }
    /// Paints a part of the map again.
    void updateMap(const QRect& mapRect);

    /// A sprite that is being dragged or resized goes on to a position of the widget, under which
    /// the map has moved.
    void dragTo(QPoint widgetPosition);

  Q_SIGNALS:
    /// What the mouse does on the bare map.
    void mapPressed(QPoint position, Qt::MouseButton button);
    void mapMoved(QPoint position);
    void mapReleased(Qt::MouseButton button);
    /// A drop was taken; the text is the drag's payload.
    void dropped(const QString& payload, QPoint position);
    /// Picture files of this machine were dropped; paths with backslashes.
    void picturesDropped(const QStringList& files, QPoint position);
    /// A stroke, a figure or a gesture may have begun or ended.
    void gestureChanged();
    /// The figure under edit has begun, changed or gone.
    void figureChanged();
    /// Something is being dragged over the map, or is no longer. Position of the widget.
    void dragMoved(QPoint widgetPosition);
    void dragEnded();
    /// A map of another size is shown.
    void mapResized();
    /// The pointer is over a pixel of the map.
    void pointed(QPoint position);
    void left();
    /// A sprite was clicked twice with the cursor.
    void spriteActivated(const SpriteId& id);
    void menuAsked();  ///< the popup menu of what is selected

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void showToolTip(const QHelpEvent& event);
    void paintMap(QPainter& painter, const QRect& mapRect) const;
    void paintBorder(QPainter& painter, const QRect& onMap) const;
    void fitSize();

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    SpriteMouse& mouse_;
    CanvasClock& clock_;
    std::function<bool()> dropAllowed_;
    Zoom zoom_;
    MapGrid grid_;
    const CanvasOverlay* overlay_ = nullptr;
    EditedFigure* figure_ = nullptr;
    Qt::KeyboardModifiers keys_;  ///< held while something is dragged
    QPixmap picture_;             ///< the surface's persistent layer as it is shown
};

}  // namespace nubivane
