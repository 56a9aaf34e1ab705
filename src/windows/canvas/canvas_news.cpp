// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/canvas_news.h"

#include "windows/canvas/canvas_access.h"
#include "windows/canvas/figure_access.h"
#include "windows/canvas/sprite_access.h"

#include <utility>

namespace nubivane {

CanvasNews::CanvasNews(MapCanvas& canvas) : QObject(&canvas), canvas_(canvas) {
    connect(&canvas.sprites(), &SpriteStack::arrived, this, &CanvasNews::tellArrival);
    connect(&canvas.sprites(), &SpriteStack::leaving, this, &CanvasNews::tellLeaving);
    connect(&canvas.selection(), &Selection::commandsChanged, this, &CanvasNews::tellSelection);
    connect(&canvas, &MapCanvas::figureChanged, this, &CanvasNews::tellFigure);
}

CanvasAccess& CanvasNews::access() const {
    return *static_cast<CanvasAccess*>(QAccessible::queryAccessibleInterface(&canvas_));
}

void CanvasNews::tell(QAccessible::Event what, QAccessibleInterface* about) {
    QAccessibleEvent event(about, what);
    QAccessible::updateAccessibility(&event);
}

void CanvasNews::tellArrival(const SpriteControl& control) {
    const auto index = QAccessible::isActive() ? canvas_.sprites().depthOf(control) : std::nullopt;
    if (index) {
        tell(QAccessible::ObjectCreated, &access().spriteAt(*index));
    }
}

/// It is there still.
void CanvasNews::tellLeaving(const SpriteControl& control) {
    const auto index = QAccessible::isActive() ? canvas_.sprites().depthOf(control) : std::nullopt;
    if (index) {
        tell(QAccessible::ObjectDestroyed, &access().spriteAt(*index));
    }
}

void CanvasNews::tellSelection() {
    if (!QAccessible::isActive()) {
        return;
    }
    tell(QAccessible::SelectionWithin, &access());
    const SpriteControl* last = canvas_.selection().control();
    const auto index = last ? canvas_.sprites().depthOf(*last) : std::nullopt;
    if (index && canvas_.hasFocus()) {
        tell(QAccessible::Focus, &access().spriteAt(*index));
    }
}

void CanvasNews::tellFigure() {
    if (!QAccessible::isActive() || !canvas_.figure()) {
        return;
    }
    FigureAccess& figure = access().figure();
    tellPoints(figure.childCount());
    const auto inHand = figure.isValid() ? canvas_.figure()->pointInHand() : std::nullopt;
    if (std::exchange(inHand_, inHand) != inHand && inHand && canvas_.hasFocus()) {
        tell(QAccessible::Focus, figure.child(*inHand));
    }
}

/// One with fewer points is another list.
void CanvasNews::tellPoints(int count) {
    const int before = std::exchange(points_, count);
    FigureAccess& figure = access().figure();
    if (before > count) {
        figure.setLeaving(true);
        tell(QAccessible::ObjectDestroyed, &figure);
        figure.setLeaving(false);
    }
    if (count > 0 && (before == 0 || before > count)) {
        tell(QAccessible::ObjectCreated, &figure);
        return;
    }
    for (int i = before; i < count; ++i) {
        tell(QAccessible::ObjectCreated, figure.child(i));
    }
}

}  // namespace nubivane
