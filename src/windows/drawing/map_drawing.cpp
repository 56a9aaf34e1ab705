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
#include "windows/drawing/figures.h"

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
    // In the order of the table.
    tools_ = {
        std::make_unique<CursorTool>(selection, sprites, mouse, [this] { Q_EMIT menuAsked(); }),
        std::make_unique<DrawTool>(*this),
        std::make_unique<EraseTool>(*this),
        std::make_unique<ColorTool>(*this),
        std::make_unique<LineTool>(*this),
        std::make_unique<CurveTool>(*this),
        std::make_unique<CircleTool>(*this),
        std::make_unique<PolygonTool>(*this)};
}

MapDrawing::~MapDrawing() = default;

void MapDrawing::attach(MapCanvas& canvas) {
    canvas_ = &canvas;
    connect(&pen_, &MapPen::changed, canvas_, &MapCanvas::updateMap);
    connect(canvas_, &MapCanvas::mapPressed, this, &MapDrawing::press);
    connect(canvas_, &MapCanvas::mapMoved, this, &MapDrawing::move);
    connect(canvas_, &MapCanvas::mapReleased, this, &MapDrawing::release);
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

void MapDrawing::chooseTool(std::size_t index) {
    reset();
    workspace_.Status.CurrentTool = toolTable.at(index).tool;
    if (index != 0) {
        selection_.clearSelection();
    }
    canvas_->setCursor(tool().pointer());
    tool().chosen();
    Q_EMIT changed();
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
    if (!drawAction_) {
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
    points_.penDown = false;
    try {
        tool().apply();
    } catch (const Error&) {
        // A figure that cannot be drawn is lost like a stroke.
    }
    commit(toolTable[static_cast<std::size_t>(workspace_.Status.CurrentTool)].edit,
           Snapshot::Later);
    dropFigure();
}

void MapDrawing::DrawCancel() {
    pen_.wipe();
    dropFigure();
}

bool MapDrawing::pressKey(int key) {
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!drawAction_ || (!enter && key != Qt::Key_Escape)) {
        return false;
    }
    if (enter) {
        DrawApply();
    } else {
        DrawCancel();
    }
    return true;
}

void MapDrawing::reset() {
    pen_.wipe();
    dropFigure();
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
    if (points_.pointCount() <= 1) {
        reset();
        return;
    }
    points_.penDown = false;
    points_.removeLast();
    refreshFigure();
}

/// Points, and the window that would apply them.
void MapDrawing::dropFigure() {
    points_.clear();
    if (drawAction_) {
        drawAction_->unload();
        drawAction_.clear();
    }
    if (canvas_) {
        Q_EMIT canvas_->gestureChanged();
    }
}

}  // namespace nubivane
