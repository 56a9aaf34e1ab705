// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/map_drawing.h"

#include "engine/core/error.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/model/edits/project_edits.h"
#include "windows/canvas/map_canvas.h"
#include "windows/drawing/color_tool.h"
#include "windows/drawing/draw_tool.h"
#include "windows/drawing/erase_tool.h"
#include "windows/drawing/figure_table.h"
#include "windows/drawing/figures.h"
#include "windows/drawing/tool_table.h"
#include "windows/drawing/weather_tools.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace nubivane {

MapDrawing::MapDrawing(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                       SpriteMouse& mouse, Shell& shell)
    : workspace_(workspace),
      sprites_(sprites),
      selection_(selection),
      shell_(shell),
      pen_(workspace.pctMap) {
    tools_.push_back(
        std::make_unique<CursorTool>(selection, sprites, mouse, [this] { Q_EMIT menuAsked(); }));
    addTools<DrawTool, EraseTool, ColorTool, LineTool, CurveTool, CircleTool, PolygonTool,
             FrontTool, IsolineTool, AreaTool, ArrowTool, TextTool>();
    connect(&choice_, &FigureChoice::changed, this, [this](Tool changedTool) {
        if (changedTool == workspace_.Status.CurrentTool) {
            refreshFigure();
            tellStep();
        }
    });
    workspace_.edits().watch(*this);
}

template <class... Tools>
void MapDrawing::addTools() {
    (tools_.push_back(std::make_unique<Tools>(*this)), ...);
}

MapDrawing::~MapDrawing() {
    if (canvas_) {
        canvas_->setFigure(nullptr);
    }
    workspace_.edits().unwatch(*this);
}

void MapDrawing::attach(MapCanvas& canvas) {
    canvas_ = &canvas;
    handles_.attach(canvas);
    canvas.setFigure(this);
    connect(&pen_, &MapPen::changed, canvas_, &MapCanvas::updateMap);
    connect(canvas_, &MapCanvas::mapPressed, this, &MapDrawing::press);
    connect(canvas_, &MapCanvas::mapMoved, this, &MapDrawing::move);
    connect(canvas_, &MapCanvas::mapReleased, this, &MapDrawing::release);
    connect(canvas_, &MapCanvas::left, this, [this] { handles_.setPreview({}); });
}

void MapDrawing::Init() {
    const auto color = workspace_.settings.number(Setting::DrawColor);
    pen_.DrawColor = color && *color >= 0 && *color <= White ? *color : White;
    pen_.takeWidth();
    workspace_.Status.CurrentTool = Tool::cursor;
    Q_EMIT changed();
}

DrawingTool& MapDrawing::tool() const {
    return *tools_[static_cast<std::size_t>(workspace_.Status.CurrentTool)];
}

/// The tool in hand, if it is one for weather figures.
WeatherTool* MapDrawing::weatherTool() const {
    return isWeatherTool(workspace_.Status.CurrentTool) ? static_cast<WeatherTool*>(&tool())
                                                        : nullptr;
}

QPoint MapDrawing::middleInSight() const {
    return canvas_->toMap(canvas_->visibleRegion().boundingRect().center());
}

QString MapDrawing::nextStep() const {
    return tool().nextStep();
}

void MapDrawing::tellStep() {
    Q_EMIT editAgainChanged();
    if (!canvas_) {
        return;
    }
    Q_EMIT canvas_->figureChanged();
    const QString sentence = nextStep();
    if (sentence != toldStep_) {
        toldStep_ = sentence;
        // Who cannot see the line below the map hears it with the map.
        canvas_->setAccessibleDescription(sentence);
        Q_EMIT stepTold(sentence);
    }
}

/// An export takes what is being drawn for a part of the picture. Drawn once more, its edges would
/// be darker.
void MapDrawing::edited(const ProjectChange&) {
    const WeatherTool* figure = weatherTool();
    if (figure && !applying_ && figure->canApply() && workspace_.pctMap.scratchArea().isEmpty()) {
        forgetFigure();
    }
}

void MapDrawing::chooseTool(std::size_t index) {
    reset();
    workspace_.Status.CurrentTool = toolTable.at(index).tool;
    if (index != 0) {
        selection_.clearSelection();
    }
    canvas_->setCursor(tool().pointer());
    tool().chosen();
    Q_EMIT changed();
    tellStep();
}

void MapDrawing::chooseFigure(weather::FigureKind kind) {
    choice_.setKind(kind);
    if (workspace_.Status.CurrentTool != toolOf(kind)) {
        chooseTool(static_cast<std::size_t>(toolOf(kind)));
    }
}

void MapDrawing::chooseColor() {
    if (const auto color = shell_.chooseColor(pen_.DrawColor)) {
        setDrawColor(*color);
    }
}

void MapDrawing::setDrawColor(qint32 color) {
    pen_.DrawColor = color;
    workspace_.settings.set(Setting::DrawColor, QString::number(color));
    Q_EMIT changed();
    refreshFigure();
}

void MapDrawing::refreshFigure() {
    const WeatherTool* figure = weatherTool();
    if (!drawAction_ && !(figure && figure->isUnfinished())) {
        return;
    }
    try {
        pen_.takeWidth();
        tool().redraw();
    } catch (const Error&) {
        // A width that is being typed is no number for a moment; the figure stays as it is.
    }
}

void MapDrawing::resetPointer() {
    canvas_->unsetCursor();
}

void MapDrawing::press(QPoint position, Qt::MouseButton button) {
    try {
        tool().press(position, button);
    } catch (const Error&) {
        // What was to be drawn is lost; the next press begins anew.
    }
}

void MapDrawing::move(QPoint position) {
    if (position.x() < 0 || position.x() > workspace_.pctMap.ScaleWidth() || position.y() < 0 ||
        position.y() > workspace_.pctMap.ScaleHeight()) {
        tool().leave(position);
        return;
    }
    canvas_->setCursor(tool().pointerAt(position));
    try {
        tool().move(position);
    } catch (const Error&) {
        // As for a press.
    }
}

void MapDrawing::release(Qt::MouseButton button) {
    tool().release(button);
}

void MapDrawing::DrawApply() {
    if (!tool().canApply()) {
        tellStep();
        return;
    }
    points_.penDown = false;
    try {
        tool().apply();
    } catch (const Error&) {
        // A figure that cannot be drawn is lost like a stroke.
    }
    const quint64 before = workspace_.edits().stateAfter(workspace_.edits().index());
    {
        const QScopedValueRollback applying(applying_, true);
        commit(tool().editName(), Snapshot::Later);
    }
    rememberFigure(before);
    forgetFigure();
}

/// A figure that changed no pixel was no edit.
void MapDrawing::rememberFigure(quint64 before) {
    const ProjectEdits& edits = workspace_.edits();
    const WeatherTool* figure = weatherTool();
    if (figure && edits.stateAfter(edits.index()) != before) {
        applied_.keep(edits, figure->figure(),
                      figure->taken() ? std::optional(figure->taken()->state) : std::nullopt);
        Q_EMIT editAgainChanged();
    }
}

bool MapDrawing::canEditAgain() const {
    return !isUnfinished() && applied_.canTakeUp(workspace_.edits());
}

void MapDrawing::editAgain() {
    if (!canEditAgain()) {
        return;
    }
    if (auto taken = applied_.takeUp(workspace_)) {
        const AppliedFigure& figure = taken->figure;
        chooseFigure(figure.kind);
        choice_.setLook(toolOf(figure.kind), figure.look);
        Q_EMIT widthAsked(figure.width);
        weatherTool()->take(std::move(*taken));
        Q_EMIT canvas_->gestureChanged();
    }
    Q_EMIT editAgainChanged();
}

void MapDrawing::DrawCancel() {
    pen_.wipe();
    forgetFigure();
}

bool MapDrawing::pressKey(const QKeyEvent& event) {
    const int key = event.key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const WeatherTool* figure = weatherTool();
    const bool edits = drawAction_ || (figure && figure->isUnfinished());
    if (edits && (enter || key == Qt::Key_Escape)) {
        enter ? DrawApply() : DrawCancel();
        return true;
    }
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && chooseByKey(key);
}

bool MapDrawing::chooseByKey(int key) {
    const Tool current = workspace_.Status.CurrentTool;
    if (isWeatherTool(current)) {
        const std::vector<weather::FigureKind> kinds = kindsOf(current);
        const int digit = key - Qt::Key_1;
        if (digit >= 0 && digit < static_cast<int>(kinds.size())) {
            chooseFigure(kinds[static_cast<std::size_t>(digit)]);
            return true;
        }
        if (key == Qt::Key_X) {
            flip();
            return true;
        }
    }
    if (key == Qt::Key_G) {
        editAgain();
        return true;
    }
    const auto row = std::find_if(toolTable.begin(), toolTable.end(),
                                  [key](const ToolRow& each) { return each.key == key; });
    if (row == toolTable.end()) {
        return false;
    }
    if (row->tool != current) {
        chooseTool(static_cast<std::size_t>(row->tool));
    }
    return true;
}

void MapDrawing::flip() {
    const Tool current = workspace_.Status.CurrentTool;
    FigureLook look = choice_.look(current);
    look.style.flipped = !look.style.flipped;
    choice_.setLook(current, look);
}

bool MapDrawing::pressMapKey(const QKeyEvent& key) {
    const bool known = tool().pressMapKey(key);
    if (known) {
        Q_EMIT canvas_->gestureChanged();
    }
    return known;
}

bool MapDrawing::isUnfinished() const {
    return points_.penDown || points_.pointCount() > 0 || tool().isUnfinished();
}

void MapDrawing::reset() {
    pen_.wipe();
    forgetFigure();
    startAnimation();
    tool().cancel();
}

void MapDrawing::setEnabled(bool enabled) {
    if (drawAction_) {
        drawAction_->setEnabled(enabled);
    }
}

QColor MapDrawing::colorAt(QPoint position) const {
    const QImage image = workspace_.pctMap.composite();
    return image.valid(position) ? image.pixelColor(position) : QColor();
}

QPoint MapDrawing::borderBetween(QPoint inside, QPoint outside) const {
    const QPoint way = outside - inside;
    const auto part = [](int from, int by, int far) {
        const int room = by > 0 ? far - from : -from;
        return by == 0 ? 1.0 : std::clamp(static_cast<double>(room) / by, 0.0, 1.0);
    };
    return inside + way * std::min(part(inside.x(), way.x(), workspace_.pctMap.ScaleWidth()),
                                   part(inside.y(), way.y(), workspace_.pctMap.ScaleHeight()));
}

void MapDrawing::loadDrawAction() {
    if (drawAction_) {
        return;
    }
    drawAction_ = new frmDrawAction(workspace_.settings, canvas_->window());
    connect(drawAction_, &frmDrawAction::applied, this, &MapDrawing::DrawApply);
    connect(drawAction_, &frmDrawAction::cancelled, this, &MapDrawing::DrawCancel);
    drawAction_->show();
}

void MapDrawing::setAnimation(bool on) {
    animationStopped_ = !on;
    for (int i = 1; i <= sprites_.gifSymbol().upperBound(); ++i) {
        if (GifSymbol* symbol = sprites_.gifSymbol().find(i)) {
            sprites_.setPlaying(*symbol, on);
        }
    }
}

/// Symbols that play already are not sent back to their first image.
void MapDrawing::startAnimation() {
    if (animationStopped_) {
        setAnimation(true);
    }
}

void MapDrawing::commit(const char* name, Snapshot snapshot) {
    workspace_.edits().push(std::make_unique<DrawOnFrame>(
        name, Marks::Project, workspace_.Status.CurrentFrame, snapshot));
}

void MapDrawing::commitStroke(const char* name) {
    commit(name, Snapshot::Now);
    startAnimation();
}

void MapDrawing::takeBack() {
    if (tool().isUnfinished()) {
        tool().takeBack();
        return;
    }
    if (points_.pointCount() <= 1) {
        reset();
        return;
    }
    points_.penDown = false;
    points_.removeLast();
    refreshFigure();
}

/// Points, and the window that would apply them.
void MapDrawing::forgetFigure() {
    points_.clear();
    tool().drop();
    if (drawAction_) {
        drawAction_->unload();
        drawAction_.clear();
    }
    if (canvas_) {
        Q_EMIT canvas_->gestureChanged();
    }
    Q_EMIT editAgainChanged();
    tellStep();
}

}  // namespace nubivane
