// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/picture_edits.h"
#include "windows/canvas/edited_figure.h"
#include "windows/drawing/applied_figures.h"
#include "windows/drawing/control_points.h"
#include "windows/drawing/cursor_tool.h"
#include "windows/drawing/drawing_tool.h"
#include "windows/drawing/figure_choice.h"
#include "windows/drawing/figure_handles.h"
#include "windows/drawing/frm_draw_action.h"
#include "windows/drawing/map_pen.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

namespace nubivane {

class MapCanvas;
class Shell;
class WeatherTool;

/// Drawing on the map: passes mouse and keys on to the current tool and holds what the tools share,
/// the control points, the pen, and the choice of the next weather figure. Which tool is current
/// stands in `Status`.
class MapDrawing : public QObject, private EditWatcher, private EditedFigure {
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
    /// Takes the tool in hand that draws a kind of figure, with that kind. A figure that is being
    /// edited with the same tool becomes one of that kind.
    void chooseFigure(weather::FigureKind kind);
    /// What the weather tools will draw.
    FigureChoice& choice() { return choice_; }
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
    /// Enter and Esc end the editing of a figure; letters take tools in hand, digits the kinds of a
    /// weather tool, X turns its figures over. True when the key did something.
    bool pressKey(const QKeyEvent& key);
    /// A key for the points of a weather figure, while the map has the keyboard.
    bool pressMapKey(const QKeyEvent& key);
    /// A stroke or a figure that is not committed yet.
    bool isUnfinished() const;
    /// Takes back the last point of a figure, or the stroke under way.
    void takeBack();
    /// The weather figure that was applied last can be taken up again, as long as it can be undone.
    bool canEditAgain() const;
    /// Takes it up: its points are there again, and Enter puts the changed figure in its place.
    void editAgain();
    /// What to do next with the tool in hand, in a sentence; empty for the cursor.
    QString nextStep() const;
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
    FigureHandles& handles() { return handles_; }
    /// The pixel in the middle of what is to be seen of the map.
    QPoint middleInSight() const;
    /// Says what to do next, if that is something new.
    void tellStep();
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
    void menuAsked();                        ///< the popup menu of the bare map
    void changed();                          ///< current tool or colour is another one
    void stepTold(const QString& sentence);  ///< what to do next
    void widthAsked(int width);              ///< the pen is to have another width
    void editAgainChanged();                 ///< `canEditAgain` may give another answer

  private:
    // EditWatcher.
    void edited(const ProjectChange&) override;
    void historyChanged() override { Q_EMIT editAgainChanged(); }

    // EditedFigure.
    QString figureName() const override { return tool().figureName(); }
    std::vector<QPoint> figurePoints() const override { return tool().figurePoints(); }
    std::optional<int> pointInHand() const override { return tool().pointInHand(); }
    void takePointInHand(int index) override { tool().takePointInHand(index); }
    void removePoint(int index) override { tool().removePoint(index); }
    void applyFigure() override { DrawApply(); }
    void dropFigure() override { DrawCancel(); }

    template <class... Tools>
    void addTools();
    DrawingTool& tool() const;
    WeatherTool* weatherTool() const;
    bool chooseByKey(int key);
    void flip();
    void rememberFigure(quint64 before);
    void press(QPoint position, Qt::MouseButton button);
    void move(QPoint position);
    void release(Qt::MouseButton button);
    void commit(const char* name, Snapshot snapshot);
    void startAnimation();
    void forgetFigure();

    Workspace& workspace_;
    SpriteStack& sprites_;
    Selection& selection_;
    Shell& shell_;
    QPointer<MapCanvas> canvas_;
    ControlPoints points_;
    MapPen pen_;
    FigureChoice choice_;
    FigureHandles handles_;
    AppliedFigures applied_;
    std::vector<std::unique_ptr<DrawingTool>> tools_;  ///< in the order of the table
    QPointer<frmDrawAction> drawAction_;
    bool animationStopped_ = false;
    bool applying_ = false;
    QString toldStep_;
};

}  // namespace nubivane
