// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_placement.h"

#include "engine/core/host_files.h"
#include "engine/core/shell.h"
#include "engine/export/label_painter.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_edits.h"
#include "engine/model/forecast.h"
#include "windows/canvas/map_bounds.h"
#include "windows/canvas/sprite_payload.h"

#include <QCoreApplication>

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

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
    const auto wanted = SpritePayload::read(payload);
    if (workspace_.Status.CurrentTool != Tool::cursor || !wanted) {
        return;
    }
    if (wanted->type == sprite_type::Symbol) {
        dropSymbol(wanted->file, position);
    } else {
        dropLabel(position);
    }
}

void SpritePlacement::dropSymbol(const QString& file, QPoint position) {
    if (!host_files::fileExists(file)) {
        shell_.messageBox(
            {QCoreApplication::translate("nubivane::SpritePlacement", "Symbol not found."),
             Icon::Critical,
             Buttons::Ok,
             {}});
        return;
    }
    const auto size = sprites_.sizeOf(file);
    if (!size) {
        return;
    }
    const QPoint corner = centred(position, *size);
    place(QT_TRANSLATE_NOOP("Edits", "Place symbol"), cSymbol{
                                                          .Name = u"gifSymbol"_s,
                                                          .PosX = corner.x(),
                                                          .PosY = corner.y(),
                                                          .Width = size->width(),
                                                          .Height = size->height(),
                                                          .FileGif = file,
                                                          .PathFileGif = file,
                                                      });
}

void SpritePlacement::dropLabel(QPoint position) {
    cLabel label{
        .Name = u"lblTesto"_s,
        .Width = 26,
        .Height = 14,
        .Font = {.Name = u"Arial"_s, .Size = 12},
        .BackColor = NoColor,
        .Text = u"Label"_s,
    };
    const QPoint corner = centred(position, labelSize(label));
    label.PosX = corner.x();
    label.PosY = corner.y();
    place(QT_TRANSLATE_NOOP("Edits", "Place label"), std::move(label));
}

/// The model keeps the position that was dropped at; the control stands inside the map.
void SpritePlacement::place(const char* name, SpriteRecord record) {
    selection_.clearSelection();
    const qint32 frame = workspace_.Status.CurrentFrame;
    auto edit = std::make_unique<AddSprite>(name, Marks::Project, workspace_.Frames().Item(frame),
                                            frame, std::move(record), Arrival::Dropped);
    const SpriteId id = edit->id();
    workspace_.edits().push(std::move(edit));
    if (SpriteControl* control = sprites_.find(id)) {
        selection_.select(*control);
    }
}

}  // namespace nubivane
