// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_placement.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/model/forecast.h"
#include "windows/canvas/map_bounds.h"

namespace nubivane {

namespace {

/// The top left corner that centres a size on a position.
QPoint centred(QPoint position, QSize size) {
    return {position.x() - size.width() / 2, position.y() - size.height() / 2};
}

}  // namespace

SpritePlacement::SpritePlacement(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                                 Shell& shell)
    : workspace_(workspace), sprites_(sprites), selection_(selection), shell_(shell) {}

void SpritePlacement::drop(const QString& payload, QPoint position) {
    const QString kind = getField(payload, 1);
    if (workspace_.Status.CurrentTool != u"cursor" || (kind != u"symbol" && kind != u"text")) {
        return;
    }
    SpriteControl* control =
        kind == u"symbol" ? dropSymbol(getField(payload, 2), position) : dropLabel(position);
    if (!control) {
        return;
    }
    // The model keeps the position before this clamp until the first drag.
    sprites_.Move(*control,
                  QRect(insideMap(control->rect, workspace_.pctMap), control->rect.size()));
    sprites_.show(*control);
    sprites_.playingChanged();
    selection_.select(*control);
    projectChanged();
}

SpriteControl* SpritePlacement::dropSymbol(const QString& file, QPoint position) {
    if (!host_files::fileExists(file)) {
        shell_.messageBox({"Symbol not found.", Icon::Critical, Buttons::Ok, {}});
        return nullptr;
    }
    GifSymbol& control = sprites_.makeSymbol(file);
    if (!control.animation) {
        sprites_.discard(control);
        return nullptr;
    }
    selection_.clearSelection();
    const QSize size = control.animation->size();
    const QPoint corner = centred(position, size);
    const qint16 frame = workspace_.Status.CurrentFrame;
    const cSymbol& symbol = workspace_.Frames().Item(frame).Sprites().Symbols().Add(
        frame, "gifSymbol", control.Index, size.height(), size.width(), corner.x(), corner.y(),
        file, file, {}, {}, {});
    control.Tag = "1|" + symbol.Key_ + '|';
    control.rect = QRect(corner, size);
    control.StartAnimation(sprites_.now());
    return &control;
}

SpriteControl* SpritePlacement::dropLabel(QPoint position) {
    selection_.clearSelection();
    LblTesto& control = sprites_.makeLabel();
    const qint16 frame = workspace_.Status.CurrentFrame;
    cLabel& label = workspace_.Frames().Item(frame).Sprites().Labels().Add(
        frame, "lblTesto", control.Index, 14, 26, 0, 0, "Label", "Arial", "12", false, false, false,
        false, false, NoColor, 0, "0", 0, {});
    control.Tag = "2|" + label.Key_ + '|';
    control.show(label);
    const QPoint corner = centred(position, control.rect.size());
    label.PosX = corner.x();
    label.PosY = corner.y();
    control.rect.moveTo(corner);
    return &control;
}

}  // namespace nubivane
