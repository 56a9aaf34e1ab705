// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/picture_edits.h"
#include "windows/drawing/control_points.h"
#include "windows/drawing/cursor_tool.h"
#include "windows/drawing/drawing_tool.h"
#include "windows/drawing/frm_draw_action.h"
#include "windows/drawing/map_pen.h"
#include "windows/drawing/tool_table.h"

#include <QObject>
#include <QPointer>

#include <array>
#include <memory>

namespace nubivane {

class MapCanvas;
class Shell;

/// Drawing on the map: passes the mouse on to the current tool and holds what the tools share, the
/// control points and the pen. Which tool is current stands in `Status`.
class MapDrawing : public QObject {
    Q_OBJECT

  public:
    MapDrawing(Workspace& workspace, SpriteStack& sprites, Selection& selection, SpriteMouse& mouse,
               Shell& shell);
    ~MapDrawing() override;

    /// Ties the canvas to the tools.
    void attach(MapCanvas& canvas);
    /// Starts with the tool "cursor", and colour and width as setting and field say.
    void Init();

    /// The click on `btnDraw(index)`.
    void chooseTool(std::size_t index);
    /// The click on `pctSelectedColor`.
    void chooseColor();
    void setDrawColor(qint32 color);
    qint32 DrawColor() const { return pen_.DrawColor; }
    /// Shows the figure that is being edited with another colour or width.
    void refreshFigure();
    /// The map's pointer as if no tool had one, until the mouse moves over the map again.
    void resetPointer();

    void DrawApply();
    void DrawCancel();
    /// Enter and Esc end the editing of a figure. True when the key did.
    bool pressKey(int key);
    /// A stroke or a figure that is not committed yet.
    bool isUnfinished() const { return points_.penDown || points_.pointCount() > 0; }
    /// Takes back the last point of a figure, or the stroke under way.
    void takeBack();
    /// Drops everything that is not committed: another Frame comes onto the canvas, or the project
    /// is being saved.
    void reset();
    /// The floating window is shut with the main window.
    void setEnabled(bool enabled);

    // What the tools need.
    /// A stroke or a point begins: from here on there is something to save.
    void tellBegin() { Q_EMIT projectChanged(); }
    Workspace& workspace() { return workspace_; }
    ControlPoints& points() { return points_; }
    MapPen& pen() { return pen_; }
    /// The map's colour with what is drawn on it; an invalid one beside the map.
    QColor colorAt(QPoint position) const;
    /// Where the way from a position on the map to one beside it meets the map's border.
    QPoint borderBetween(QPoint inside, QPoint outside) const;
    void loadDrawAction();
    /// Starts or stops the animation of every Symbol.
    void setAnimation(bool on);
    /// Makes what was drawn part of the map and of the Frame's snapshot.
    void commitStroke(const char* name);

  Q_SIGNALS:
    void projectChanged();
    void menuAsked();  ///< the popup menu of the bare map
    void changed();    ///< current tool or colour is another one

  private:
    DrawingTool& tool() const;
    void press(QPoint position, Qt::MouseButton button);
    void move(QPoint position);
    void release(Qt::MouseButton button);
    void commit(const char* name, Snapshot snapshot);
    void startAnimation();
    void dropFigure();

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    Shell& shell_;
    MapCanvas* canvas_ = nullptr;
    ControlPoints points_;
    MapPen pen_;
    std::array<std::unique_ptr<DrawingTool>, toolTable.size()> tools_;
    QPointer<frmDrawAction> drawAction_;
    bool animationStopped_ = false;
};

}  // namespace nubivane
