// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_tool.h"

#include "engine/weather/curve.h"
#include "windows/drawing/figure_table.h"
#include "windows/drawing/map_drawing.h"
#include "windows/drawing/tool_pointers.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace nubivane {

namespace {

constexpr int CurveReach = 5;  // pixels of the screen in which a click is one on the curve
constexpr int FarStep = 10;    // of an arrow key with Ctrl
constexpr int KeyGap = 40;     // from the last point to one that a key adds

/// The middle of a pixel, so that a line of odd width is sharp where it is level.
QPointF middleOf(QPoint pixel) {
    return QPointF(pixel) + QPointF(0.5, 0.5);
}

QPoint pixelAt(const QPointF& place) {
    return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

}  // namespace

WeatherTool::WeatherTool(MapDrawing& drawing, Tool tool) : drawing_(drawing), tool_(tool) {}

weather::FigureKind WeatherTool::kind() const {
    return drawing_.choice().kind(tool_);
}

const FigureLook& WeatherTool::look() const {
    return drawing_.choice().look(tool_);
}

AppliedFigure WeatherTool::figure() const {
    return {kind(), look(), drawing_.pen().DrawWidth(), points_.all()};
}

weather::WeatherFigure WeatherTool::drawn() const {
    weather::WeatherFigure figure{kind(), {}, look().style};
    figure.style.width = drawing_.pen().DrawWidth();
    figure.style.color = look().penColor ? drawing_.pen().color() : QColor();
    std::transform(points_.all().begin(), points_.all().end(), std::back_inserter(figure.points),
                   middleOf);
    return figure;
}

/// Inside the map, as near as can be.
QPoint WeatherTool::onMap(QPoint position) const {
    const MapSurface& map = drawing_.workspace().pctMap;
    return {std::clamp(position.x(), 0, std::max(0, map.ScaleWidth() - 1)),
            std::clamp(position.y(), 0, std::max(0, map.ScaleHeight() - 1))};
}

std::optional<int> WeatherTool::curveAt(QPoint position) const {
    return drawn().pointBehind(middleOf(position), drawing_.handles().onMap(CurveReach));
}

void WeatherTool::press(QPoint position, Qt::MouseButton button) {
    const auto handle = drawing_.handles().at(position);
    if (button == Qt::RightButton && handle) {
        removePoint(*handle);
    }
    if (button != Qt::LeftButton) {
        return;
    }
    drawing_.tellBegin();
    if (handle) {
        points_.beginMove(*handle);
        dragged_ = handle;
    } else if (const auto behind = curveAt(position)) {
        points_.insert(*behind, onMap(position));
        dragged_ = behind;
    } else {
        place(onMap(position));
        dragged_ = points_.current();
    }
    changed();
}

void WeatherTool::place(QPoint position) {
    if (points_.count() < weather::rowOf(kind()).mostPoints) {
        points_.add(position);
    }
}

void WeatherTool::move(QPoint position) {
    if (dragged_ && *dragged_ < points_.count()) {
        points_.move(*dragged_, onMap(position));
        changed();
    } else {
        drawing_.handles().setPreview(segmentTo(position));
    }
}

/// How the figure would go on if the map were clicked there.
QPainterPath WeatherTool::segmentTo(QPoint position) const {
    const weather::KindRow& row = weather::rowOf(kind());
    if (points_.isEmpty() || points_.count() >= row.mostPoints || drawing_.handles().at(position) ||
        curveAt(position)) {
        return {};
    }
    std::vector<QPointF> points = drawn().points;
    const QPointF last = points.back();
    points.push_back(middleOf(position));
    const weather::Curve curve(
        points, row.closed ? weather::Curve::Ends::Closed : weather::Curve::Ends::Open);
    return curve.isEmpty() ? QPainterPath() : curve.between(curve.nearest(last), curve.length());
}

/// A point waits at the border until the pointer comes back.
void WeatherTool::leave(QPoint position) {
    if (dragged_) {
        move(position);
    } else {
        drawing_.handles().setPreview({});
    }
}

void WeatherTool::release(Qt::MouseButton button) {
    if (button == Qt::LeftButton) {
        dragged_.reset();
    }
}

void WeatherTool::removePoint(int index) {
    dragged_.reset();
    points_.remove(index);
    changed();
}

void WeatherTool::changed() {
    if (points_.isEmpty() && !taken_) {
        drawing_.DrawCancel();
    } else {
        redraw();
    }
}

void WeatherTool::redraw() {
    drawing_.pen().followWidth();
    apply();
    drawing_.handles().show(points_.all(), points_.current());
    drawing_.tellStep();
}

void WeatherTool::apply() {
    MapPen& pen = drawing_.pen();
    pen.wipe();
    if (taken_) {
        pen.lay(taken_->below, taken_->corner);
    }
    pen.draw(drawn().drawing());
}

bool WeatherTool::canApply() const {
    return !drawn().drawing().empty();
}

const char* WeatherTool::editName() const {
    const FigureRow& row = figureRow(kind());
    return taken_ ? row.editAgain : row.edit;
}

void WeatherTool::takeBack() {
    dragged_.reset();
    if (points_.takeBack()) {
        changed();
    } else {
        drawing_.DrawCancel();
    }
}

void WeatherTool::drop() {
    points_.clear();
    dragged_.reset();
    taken_.reset();
    drawing_.handles().show({}, {});
}

void WeatherTool::take(FigureTakenUp taken) {
    points_.start(taken.figure.points);
    taken_ = std::move(taken);
    redraw();
}

QString WeatherTool::nextStep() const {
    if (points_.isEmpty()) {
        return firstStep();
    }
    const int lacking = weather::rowOf(kind()).leastPoints - points_.count();
    if (lacking > 0) {
        return QCoreApplication::translate("nubivane::Figures",
                                           "%1: %n more point(s) needed. Esc: drop it.", nullptr,
                                           lacking)
            .arg(nameOf(kind()));
    }
    const QString lack = missing();
    return lack.isEmpty() ? laterStep() : lack;
}

bool WeatherTool::pressMapKey(const QKeyEvent& key) {
    const auto current = points_.current();
    switch (key.key()) {
        case Qt::Key_Insert:
        case Qt::Key_N:
            if (key.modifiers() & ~Qt::KeypadModifier) {
                return false;
            }
            addByKey();
            return true;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            if (current) {
                removePoint(*current);
            }
            return current.has_value();
        default:
            return current && (step(key) || nudge(key));
    }
}

/// Behind the point in hand: halfway to the next one, or beyond the last one as the line goes.
void WeatherTool::addByKey() {
    drawing_.tellBegin();
    const auto current = points_.current();
    const int most = weather::rowOf(kind()).mostPoints;
    if (!current) {
        place(onMap(drawing_.middleInSight()));
    } else if (points_.count() < most && *current + 1 < points_.count()) {
        points_.insert(*current + 1, onMap(pixelAt(drawn().halfway(*current))));
    } else if (points_.count() < most) {
        const QPoint last = points_.at(*current);
        const QPoint way = *current > 0 ? last - points_.at(*current - 1) : QPoint(1, 0);
        const int longest = std::max({std::abs(way.x()), std::abs(way.y()), 1});
        points_.add(onMap(last + way * KeyGap / longest));
    }
    changed();
}

QString WeatherTool::figureName() const {
    return nameOf(kind());
}

void WeatherTool::takePointInHand(int index) {
    points_.setCurrent(index);
    redraw();
}

bool WeatherTool::step(const QKeyEvent& key) {
    if (key.key() != Qt::Key_PageDown && key.key() != Qt::Key_PageUp) {
        return false;
    }
    const int count = points_.count();
    const int by = key.key() == Qt::Key_PageDown ? 1 : count - 1;
    takePointInHand((*points_.current() + by) % count);
    return true;
}

bool WeatherTool::nudge(const QKeyEvent& key) {
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier && modifiers != Qt::ControlModifier) {
        return false;
    }
    const int far = modifiers == Qt::ControlModifier ? FarStep : 1;
    QPoint way;
    switch (key.key()) {
        case Qt::Key_Left:
            way = {-far, 0};
            break;
        case Qt::Key_Right:
            way = {far, 0};
            break;
        case Qt::Key_Up:
            way = {0, -far};
            break;
        case Qt::Key_Down:
            way = {0, far};
            break;
        default:
            return false;
    }
    const int current = *points_.current();
    points_.beginMove(current);
    points_.move(current, onMap(points_.at(current) + way));
    redraw();
    return true;
}

/// Asked for with each move of the mouse, and drawn only when it becomes another one.
QCursor WeatherTool::pointer() const {
    if (pointed_ != kind()) {
        pointed_ = kind();
        pointer_ = figurePointer(kind());
    }
    return pointer_;
}

QCursor WeatherTool::pointerAt(QPoint position) const {
    if (drawing_.handles().at(position)) {
        return {Qt::SizeAllCursor};
    }
    return curveAt(position) ? QCursor(Qt::CrossCursor) : pointer();
}

}  // namespace nubivane
