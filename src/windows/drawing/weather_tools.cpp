// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_tools.h"

#include "windows/drawing/figure_table.h"
#include "windows/drawing/map_drawing.h"

namespace nubivane {

namespace {

/// From a wind barb's place to the handle of its direction, in widths of the pen.
constexpr int BarbReach = 15;

}  // namespace

QString FrontTool::firstStep() const {
    return tr("%1: click the points of the front; Enter draws it. Esc: back to the cursor.")
        .arg(nameOf(kind()));
}

QString FrontTool::laterStep() const {
    return tr("Click the next point; X turns the front over, Enter draws it, Esc drops it.");
}

QString IsolineTool::firstStep() const {
    return tr("%1: click the points of the line; Enter draws it. Esc: back to the cursor.")
        .arg(nameOf(kind()));
}

QString IsolineTool::laterStep() const {
    return tr("Click the next point; Enter draws the line, Esc drops it.");
}

QString AreaTool::firstStep() const {
    return tr("%1: click the points around the area; Enter draws it. Esc: back to the cursor.")
        .arg(nameOf(kind()));
}

QString AreaTool::laterStep() const {
    return tr("Click the next point around the area; Enter draws it, Esc drops it.");
}

void ArrowTool::place(QPoint position) {
    const weather::KindRow& row = weather::rowOf(kind());
    FigurePoints& points = editedPoints();
    if (row.family == weather::FigureFamily::WindBarb && points.isEmpty()) {
        const int reach = BarbReach * drawing().pen().DrawWidth();
        const QPoint north = onMap(position - QPoint(0, reach));
        points.set({position, north == position ? onMap(position + QPoint(0, reach)) : north});
    } else if (points.count() < row.mostPoints) {
        points.add(position);
    } else if (row.mostPoints == 2) {
        points.beginMove(1);
        points.move(1, position);
    }
}

QString ArrowTool::firstStep() const {
    if (kind() == weather::FigureKind::WindBarb) {
        return tr("Wind barb: click its place; Enter draws it. Esc: back to the cursor.");
    }
    return tr("%1: click its points from tail to head; Enter draws it. Esc: back to the cursor.")
        .arg(nameOf(kind()));
}

QString ArrowTool::laterStep() const {
    if (kind() == weather::FigureKind::WindBarb) {
        return tr("Click where the wind blows from; Enter draws the barb, Esc drops it.");
    }
    return tr("Click where its head is to be; Enter draws the arrow, Esc drops it.");
}

QString TextTool::firstStep() const {
    return tr(
        "Text along a curve: click the points below the text; Enter draws it. Esc: back to "
        "the cursor.");
}

QString TextTool::laterStep() const {
    return tr("Click the next point; Enter draws the text, Esc drops it.");
}

QString TextTool::missing() const {
    return look().style.text.trimmed().isEmpty() ? tr("Type the text in its field below the map.")
                                                 : QString();
}

}  // namespace nubivane
