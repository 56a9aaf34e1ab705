// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_placement.h"

#include "engine/core/host_files.h"
#include "engine/core/shell.h"
#include "engine/export/label_painter.h"
#include "engine/model/edits/sprite_changes.h"
#include "engine/model/forecast.h"
#include "windows/canvas/free_place.h"
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

QRect rectOf(const SpriteRecord& record) {
    return std::visit(
        [](const auto& sprite) {
            return QRect(sprite.PosX, sprite.PosY, sprite.Width, sprite.Height);
        },
        record);
}

QSize sizeOf(const MapSurface& map) {
    return {map.ScaleWidth(), map.ScaleHeight()};
}

constexpr qsizetype MostAtOnce = 500;  // of symbols that one drop may bring

}  // namespace

SpritePlacement::SpritePlacement(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                                 Shell& shell)
    : workspace_(workspace), sprites_(sprites), selection_(selection), shell_(shell) {}

std::vector<QRect> SpritePlacement::taken() const {
    std::vector<QRect> rects;
    for (const SpriteControl* control : sprites_.controls()) {
        rects.push_back(control->rect);
    }
    return rects;
}

/// What a payload asks for, each at the position.
std::vector<SpriteRecord> SpritePlacement::wanted(const QString& payload, QPoint position) {
    const auto read = SpritePayload::read(payload);
    if (workspace_.Status.CurrentTool != Tool::cursor || !read) {
        return {};
    }
    if (read->type != sprite_type::Symbol) {
        return {labelAt(position)};
    }
    std::vector<SpriteRecord> records;
    if (auto first = symbolAt(read->file, position)) {
        records.push_back(std::move(*first));
        for (const QString& file : read->others.mid(0, MostAtOnce)) {
            if (host_files::fileExists(file)) {
                if (auto other = symbolAt(file, position)) {
                    records.push_back(std::move(*other));
                }
            }
        }
    }
    return records;
}

void SpritePlacement::drop(const QString& payload, QPoint position) {
    placeAll(wanted(payload, position));
}

void SpritePlacement::placeNear(const QString& payload, QPoint position) {
    auto records = wanted(payload, position);
    if (!records.empty()) {
        const QRect rect = rectOf(records.front());
        const QPoint offset = freeOffset({rect}, taken(), sizeOf(workspace_.pctMap));
        records.front() = movedTo(std::move(records.front()), rect.topLeft() + offset);
        placeAll(std::move(records));
    }
}

/// The first one where it is wanted, the others around it.
void SpritePlacement::placeAll(std::vector<SpriteRecord> records) {
    if (records.size() < 2) {
        if (!records.empty()) {
            place(std::move(records.front()));
        }
        return;
    }
    std::vector<QRect> there = taken();
    there.push_back(rectOf(records.front()));
    for (auto record = records.begin() + 1; record != records.end(); ++record) {
        const QRect rect = rectOf(*record);
        const QPoint offset = freeOffset({rect}, there, sizeOf(workspace_.pctMap));
        there.push_back(rect.translated(offset));
        *record = movedTo(std::move(*record), there.back().topLeft());
    }
    selection_.selectAll(addSprites(workspace_, std::move(records), Marks::Project,
                                    Arrival::Dropped, QT_TRANSLATE_NOOP("Edits", "Place symbols")));
}

std::optional<SpriteRecord> SpritePlacement::symbolAt(const QString& file, QPoint position) {
    if (!host_files::fileExists(file)) {
        shell_.messageBox(
            {QCoreApplication::translate("nubivane::SpritePlacement", "Symbol not found."),
             Icon::Critical,
             Buttons::Ok,
             {}});
        return std::nullopt;
    }
    const auto size = sprites_.sizeOf(file);
    if (!size) {
        return std::nullopt;
    }
    const QPoint corner = centred(position, *size);
    return cSymbol{
        .Name = u"gifSymbol"_s,
        .PosX = corner.x(),
        .PosY = corner.y(),
        .Width = size->width(),
        .Height = size->height(),
        .FileGif = file,
        .PathFileGif = file,
    };
}

SpriteRecord SpritePlacement::labelAt(QPoint position) const {
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
    return label;
}

/// The model keeps the position that was dropped at; the control stands inside the map.
void SpritePlacement::place(SpriteRecord record) {
    const char* const name = std::holds_alternative<cSymbol>(record)
                                 ? QT_TRANSLATE_NOOP("Edits", "Place symbol")
                                 : QT_TRANSLATE_NOOP("Edits", "Place label");
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
