// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/clipboard_commands.h"

#include "engine/model/edits/sprite_changes.h"
#include "windows/canvas/free_place.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

constexpr QPoint PastePosition(6, 6);

/// The name of an edit on a sprite of one kind or the other, or on several.
const char* named(std::size_t count, SpriteKind kind, const char* symbol, const char* label,
                  const char* many) {
    return count > 1 ? many : kind == SpriteKind::Symbol ? symbol : label;
}

QRect rectOf(const SpriteRecord& record) {
    return std::visit(
        [](const auto& sprite) {
            return QRect(sprite.PosX, sprite.PosY, sprite.Width, sprite.Height);
        },
        record);
}

}  // namespace

ClipboardCommands::ClipboardCommands(const CanvasContext& context)
    : QObject(&context.window),
      workspace_(context.workspace),
      canvas_(context.canvas),
      commands_(context.commands) {
    commands_.handle(Command::mnuCut, [this] { cutSprite(); });
    commands_.handle(Command::mnuCopy, [this] { copySprite(); });
    commands_.handle(Command::mnuPaste, [this] { pasteSprite(); });
    commands_.handle(Command::mnuDelSymbol, [this] { deleteSprite(); });
    commands_.handle(Command::mnuRestore, [this] { restoreSprite(); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &ClipboardCommands::refreshPaste);
    refreshPaste();
}

bool ClipboardCommands::clipboardHasSprite() const {
    return SpriteMarker::read(QGuiApplication::clipboard()->text()).has_value();
}

void ClipboardCommands::refreshPaste() {
    commands_.setEnabled({Command::mnuPaste}, clipboardHasSprite());
}

void ClipboardCommands::copySprite() {
    take(false);
}

void ClipboardCommands::cutSprite() {
    take(true);
}

void ClipboardCommands::take(bool cut) {
    clipSprite_.clear();
    origin_.reset();
    const cStatus& status = workspace_.Status;
    const auto last = status.selectedSprite();
    const cFrame& frame = workspace_.Frames().Item(status.CurrentFrame);
    std::vector<SpriteId> ids;
    for (const SpriteControl* control : canvas_.selection().controls()) {
        ids.push_back(control->id);
    }
    // A sprite whose control could not be made is in the model all the same.
    if (last && ids.empty()) {
        ids.push_back(*last);
    }
    std::erase_if(ids, [&frame](const SpriteId& id) { return !frame.Sprites().contains(id); });
    if (ids.empty()) {
        return;
    }
    for (const SpriteId& id : ids) {
        clipSprite_.push_back(recordOf(frame, id));
    }
    clipKind_ = last->kind;
    if (cut) {
        // Not the copy's own Frame number: that one is stale once an earlier Frame was removed.
        origin_ = Origin{status.CurrentFrame, frame.Sprites().identity(), ids};
    }
    QGuiApplication::clipboard()->setText(SpriteMarker{clipKind_, cut}.text());
}

void ClipboardCommands::pasteSprite() {
    const auto marker = SpriteMarker::read(QGuiApplication::clipboard()->text());
    // A second editor may have put its own marker there since: it does not tell of this copy.
    if (!marker || clipSprite_.empty() || marker->kind != clipKind_) {
        return;
    }
    const char* const name =
        named(clipSprite_.size(), clipKind_, QT_TRANSLATE_NOOP("Edits", "Paste symbol"),
              QT_TRANSLATE_NOOP("Edits", "Paste label"), QT_TRANSLATE_NOOP("Edits", "Paste"));
    const qint32 frame = workspace_.Status.CurrentFrame;
    auto group = std::make_unique<EditGroup>(name, Marks::Nothing, frame);
    if (marker->cut) {
        for (auto& removal : removalOfCutSprites(name)) {
            group->add(std::move(removal));
        }
        QGuiApplication::clipboard()->setText(SpriteMarker{marker->kind, false}.text());
    }
    std::vector<SpriteId> ids;
    for (SpriteRecord& record : pasted(marker->cut)) {
        auto paste =
            std::make_unique<AddSprite>(name, Marks::Nothing, workspace_.Frames().Item(frame),
                                        frame, std::move(record), Arrival::Pasted);
        ids.push_back(paste->id());
        group->add(std::move(paste));
    }
    if (marker->cut) {
        origin_.reset();
    }
    workspace_.edits().push(std::move(group));
    canvas_.selection().clearSelection();
    canvas_.selection().selectAll(ids);
}

/// The copies as they come onto the map.
std::vector<SpriteRecord> ClipboardCommands::pasted(bool afterCut) const {
    std::vector<QRect> wanted;
    for (const SpriteRecord& record : clipSprite_) {
        wanted.push_back(rectOf(record));
    }
    if (wanted.size() == 1) {
        wanted.front().moveTopLeft(PastePosition);
    }
    std::vector<QRect> taken;
    const cFrame& frame = workspace_.Frames().Item(workspace_.Status.CurrentFrame);
    for (const SpriteControl* control : canvas_.sprites().controls()) {
        const bool goes = afterCut && origin_ &&
                          frame.Sprites().identity().lock() == origin_->identity.lock() &&
                          std::count(origin_->ids.begin(), origin_->ids.end(), control->id) > 0;
        if (!goes) {
            taken.push_back(control->rect);
        }
    }
    const QSize map(workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
    // One alone has its one place.
    const QPoint offset = wanted.size() == 1 ? QPoint() : visibleOffset(wanted, taken, map);
    std::vector<SpriteRecord> records;
    for (std::size_t i = 0; i < clipSprite_.size(); ++i) {
        records.push_back(movedTo(clipSprite_[i], wanted[i].topLeft() + offset));
    }
    return records;
}

/// Nothing is removed in the place of a sprite that has left its Frame or whose Frame has another
/// number now.
std::vector<std::unique_ptr<Edit>> ClipboardCommands::removalOfCutSprites(const char* name) {
    std::vector<std::unique_ptr<Edit>> removals;
    if (!origin_ || origin_->frame > workspace_.Frames().Count()) {
        return removals;
    }
    const cSprites& sprites = workspace_.Frames().Item(origin_->frame).Sprites();
    if (sprites.identity().lock() != origin_->identity.lock()) {
        return removals;
    }
    for (auto id = origin_->ids.rbegin(); id != origin_->ids.rend(); ++id) {
        if (sprites.contains(*id)) {
            removals.push_back(
                std::make_unique<RemoveSprite>(name, Marks::Nothing, origin_->frame, *id));
        }
    }
    return removals;
}

void ClipboardCommands::deleteSprite() {
    std::vector<SpriteId> ids;
    for (const SpriteControl* control : canvas_.selection().controls()) {
        ids.push_back(control->id);
    }
    const auto& sprites = workspace_.Frames().Item(workspace_.Status.CurrentFrame).Sprites();
    std::erase_if(ids, [&sprites](const SpriteId& id) { return !sprites.contains(id); });
    if (ids.empty()) {
        return;
    }
    const char* const name =
        named(ids.size(), ids.back().kind, QT_TRANSLATE_NOOP("Edits", "Delete symbol"),
              QT_TRANSLATE_NOOP("Edits", "Delete label"), QT_TRANSLATE_NOOP("Edits", "Delete"));
    removeSprites(workspace_, ids, Marks::Nothing, name, [this](const SpriteId& id) {
        const SpriteControl* control = canvas_.sprites().find(id);
        return control ? canvas_.sprites().depthOf(*control) : std::nullopt;
    });
}

void ClipboardCommands::restoreSprite() {
    auto* control = dynamic_cast<GifSymbol*>(canvas_.selection().control());
    // A picture that cannot be read has no size to go back to.
    if (!control || !control->animation) {
        return;
    }
    canvas_.selection().clearSelection();
    const QSize size = control->animation->size();
    canvas_.sprites().Move(*control, QRect(control->rect.topLeft(), size));
    changeSprite<cSymbol>(workspace_, control->id, QT_TRANSLATE_NOOP("Edits", "Restore symbol"), {},
                          [size](cSymbol& symbol) {
                              symbol.Width = size.width();
                              symbol.Height = size.height();
                          });
    canvas_.selection().select(*control);
}

}  // namespace nubivane
