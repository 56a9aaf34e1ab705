// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/map_drawing.h"

#include "engine/core/error.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "windows/canvas/map_canvas.h"
#include "windows/drawing/color_tool.h"
#include "windows/drawing/draw_tool.h"
#include "windows/drawing/erase_tool.h"
#include "windows/drawing/figures.h"

#include <utility>

namespace nubivane {

MapDrawing::MapDrawing(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                       SpriteMouse& mouse, Shell& shell)
    : workspace_(workspace),
      sprites_(sprites),
      selection_(selection),
      shell_(shell),
      pen_(workspace.pctMap) {
    auto cursor = std::make_unique<CursorTool>(selection, sprites, mouse);
    cursor->showMenu = [this] { showMenu(); };
    // In the order of the table.
    tools_ = {std::move(cursor),
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
    pen_.changed = [this](const QRect& area) { canvas_->updateMap(area); };
    canvas.mapPressed = [this](QPoint position, Qt::MouseButton button) {
        press(position, button);
    };
    canvas.mapMoved = [this](QPoint position) { move(position); };
    canvas.mapReleased = [this](Qt::MouseButton button) { release(button); };
}

void MapDrawing::Init() {
    const auto color = workspace_.settings.number(Setting::DrawColor);
    pen_.DrawColor = color && *color >= 0 && *color <= White ? *color : White;
    pen_.takeWidth();
    workspace_.Status.CurrentTool = toolTable.front().name;
    changed();
}

/// Nothing for a name that is no tool's.
DrawingTool* MapDrawing::tool() const {
    for (std::size_t i = 0; i < toolTable.size(); ++i) {
        if (workspace_.Status.CurrentTool == QLatin1String(toolTable[i].name)) {
            return tools_[i].get();
        }
    }
    return nullptr;
}

void MapDrawing::chooseTool(std::size_t index) {
    reset();
    workspace_.Status.CurrentTool = toolTable.at(index).name;
    if (index != 0) {
        selection_.clearSelection();
    }
    canvas_->setCursor(tool()->pointer());
    tool()->chosen();
    changed();
}

void MapDrawing::chooseColor() {
    if (const auto color = shell_.chooseColor(pen_.DrawColor)) {
        setDrawColor(*color);
    }
}

void MapDrawing::setDrawColor(qint32 color) {
    pen_.DrawColor = color;
    workspace_.settings.set(Setting::DrawColor, QString::number(color));
    changed();
    refreshFigure();
}

void MapDrawing::refreshFigure() {
    if (!drawAction_) {
        return;
    }
    try {
        pen_.takeWidth();
        if (DrawingTool* current = tool()) {
            current->redraw();
        }
    } catch (const Error&) {
        // A width that is being typed is no number for a moment; the figure stays as it is.
    }
}

void MapDrawing::resetPointer() {
    canvas_->unsetCursor();
}

void MapDrawing::press(QPoint position, Qt::MouseButton button) {
    try {
        if (DrawingTool* current = tool()) {
            current->press(position, button);
        }
    } catch (const Error&) {
        // What was to be drawn is lost; the next press begins anew.
    }
}

void MapDrawing::move(QPoint position) {
    if (position.x() < 0 || position.x() > workspace_.pctMap.ScaleWidth() || position.y() < 0 ||
        position.y() > workspace_.pctMap.ScaleHeight()) {
        return;
    }
    if (DrawingTool* current = tool()) {
        canvas_->setCursor(current->pointerAt(position));
        try {
            current->move(position);
        } catch (const Error&) {
            // As for a press.
        }
    }
}

void MapDrawing::release(Qt::MouseButton button) {
    if (DrawingTool* current = tool()) {
        current->release(button);
    }
}

void MapDrawing::DrawApply() {
    points_.penDown = false;
    try {
        if (DrawingTool* current = tool()) {
            current->apply();
        }
    } catch (const Error&) {
        // A figure that cannot be drawn is lost like a stroke.
    }
    commit();
    projectChanged();
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
    if (DrawingTool* current = tool()) {
        current->cancel();
    }
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

void MapDrawing::loadDrawAction() {
    if (drawAction_) {
        return;
    }
    drawAction_ = new frmDrawAction(workspace_.settings, canvas_->window());
    drawAction_->DrawApply = [this] { DrawApply(); };
    drawAction_->DrawCancel = [this] { DrawCancel(); };
    drawAction_->show();
}

void MapDrawing::setAnimation(bool on) {
    animationStopped_ = !on;
    for (int i = 1; i <= sprites_.gifSymbol().upperBound(); ++i) {
        GifSymbol* symbol = sprites_.gifSymbol().find(i);
        if (symbol && on) {
            symbol->StartAnimation(sprites_.now());
        } else if (symbol) {
            symbol->StopAnimation();
        }
    }
    sprites_.playingChanged();
}

/// Symbols that play already are not sent back to their first image.
void MapDrawing::startAnimation() {
    if (animationStopped_) {
        setAnimation(true);
    }
}

void MapDrawing::commit() {
    canvas_->takeOver(workspace_.pctMap.commitScratchLayer());
}

void MapDrawing::commitStroke() {
    // As long as the last snapshot shares the pixels, drawing on them would copy the whole picture.
    if (workspace_.pctMap.ScaleWidth() > 0) {
        workspace_.pctPanel.setPicture(workspace_.Status.CurrentFrame, Picture());
    }
    commit();
    workspace_.storeCurrentFrame();
    startAnimation();
}

/// Points, and the window that would apply them.
void MapDrawing::dropFigure() {
    points_.clear();
    if (drawAction_) {
        drawAction_->unload();
        drawAction_.clear();
    }
}

}  // namespace nubivane
