// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/canvas_status.h"

#include "engine/model/workspace.h"
#include "windows/canvas/map_zoom.h"
#include "windows/canvas/sprite_name.h"
#include "windows/main/status_line.h"
#include "windows/panes/frame_canvas.h"

namespace nubivane {

namespace {

constexpr qsizetype LongestName = 24;

}  // namespace

CanvasStatus::CanvasStatus(const Workspace& workspace, FrameCanvas& canvas, MapZoom& zoom,
                           StatusLine& line)
    : QObject(&line), workspace_(workspace), canvas_(canvas), line_(line) {
    connect(&canvas.widget(), &MapCanvas::pointed, &line, [&line, &workspace](QPoint position) {
        const QRect map(0, 0, workspace.pctMap.ScaleWidth(), workspace.pctMap.ScaleHeight());
        line.setPosition(map.contains(position) ? std::optional(position) : std::nullopt);
    });
    connect(&canvas.widget(), &MapCanvas::left, &line, [&line] { line.setPosition({}); });
    connect(&canvas.selection(), &Selection::commandsChanged, this, &CanvasStatus::showSelection);
    connect(&canvas.selection(), &Selection::changed, this, &CanvasStatus::showSelection);
    connect(&zoom, &MapZoom::changed, &line,
            [&line, &zoom] { line.setZoom(zoom.zoom().percent()); });
    connect(&line, &StatusLine::zoomAsked, &zoom,
            [&zoom](int percent) { zoom.zoomTo(Zoom(percent)); });
    connect(&line, &StatusLine::wholeMapAsked, &zoom, &MapZoom::showWhole);
}

/// Of several sprites the room that they take together.
void CanvasStatus::showSelection() {
    const std::vector<SpriteControl*> controls = canvas_.selection().controls();
    QRect rect;
    for (const SpriteControl* control : controls) {
        rect |= control->rect;
    }
    const QString name = controls.size() == 1 ? shortName(controls.front()->id)
                         : controls.empty()   ? QString()
                                              : tr("%1 selected").arg(controls.size());
    line_.setSelection(name.isEmpty() ? QString()
                                      : tr("%1: %2, %3, %4 x %5")
                                            .arg(name)
                                            .arg(rect.x())
                                            .arg(rect.y())
                                            .arg(rect.width())
                                            .arg(rect.height()));
}

QString CanvasStatus::shortName(const SpriteId& id) const {
    const QString name = spriteName(workspace_, id);
    return name.size() > LongestName ? name.left(LongestName - 1) + QChar(0x2026) : name;
}

}  // namespace nubivane
