// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/canvas_status.h"

#include "engine/core/path_text.h"
#include "engine/model/workspace.h"
#include "windows/canvas/map_zoom.h"
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

void CanvasStatus::showSelection() {
    const SpriteControl* control = canvas_.selection().control();
    const QString name = control ? selectedName() : QString();
    line_.setSelection(name.isEmpty() ? QString()
                                      : tr("%1: %2, %3, %4 x %5")
                                            .arg(name)
                                            .arg(control->rect.x())
                                            .arg(control->rect.y())
                                            .arg(control->rect.width())
                                            .arg(control->rect.height()));
}

/// The file of a Symbol, the text of a Label.
QString CanvasStatus::selectedName() const {
    const auto id = workspace_.Status.selectedSprite();
    const qint32 shown = workspace_.Status.CurrentFrame;
    if (!id || shown < 1 || shown > workspace_.Frames().Count()) {
        return {};
    }
    const cSprites& sprites = workspace_.Frames().Item(shown).Sprites();
    if (!sprites.contains(*id)) {
        return {};
    }
    QString name = id->kind == SpriteKind::Symbol
                       ? stripExtension(getFileName(sprites.Symbols().Item(id->key).PathFileGif))
                       : sprites.Labels().Item(id->key).Text.simplified();
    if (name.size() > LongestName) {
        name = name.left(LongestName - 1) + QChar(0x2026);
    }
    return name;
}

}  // namespace nubivane
