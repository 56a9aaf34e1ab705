// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/clipboard_commands.h"

#include "engine/model/edits/sprite_changes.h"
#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace nubivane {

namespace {

constexpr QPoint PastePosition(6, 6);

/// The kind of a copy that is there.
SpriteKind kindOf(const ClipSprite& sprite) {
    return std::holds_alternative<cSymbol>(sprite) ? SpriteKind::Symbol : SpriteKind::Label;
}

/// The name of an edit on one kind of sprite or the other.
const char* named(SpriteKind kind, const char* symbol, const char* label) {
    return kind == SpriteKind::Symbol ? symbol : label;
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
    clipSprite_ = {};
    origin_.reset();
    const cStatus& status = workspace_.Status;
    const auto id = status.selectedSprite();
    const cSprites& sprites = workspace_.Frames().Item(status.CurrentFrame).Sprites();
    if (!id || !sprites.contains(*id)) {
        return;
    }
    if (id->kind == SpriteKind::Symbol) {
        clipSprite_ = sprites.Symbols().Item(id->key);
    } else {
        clipSprite_ = sprites.Labels().Item(id->key);
    }
    if (cut) {
        // Not the copy's own Frame number: that one is stale once an earlier Frame was removed.
        origin_ = Origin{status.CurrentFrame, sprites.identity(), *id};
    }
    QGuiApplication::clipboard()->setText(SpriteMarker{kindOf(clipSprite_), cut}.text());
}

void ClipboardCommands::pasteSprite() {
    const auto marker = SpriteMarker::read(QGuiApplication::clipboard()->text());
    // A second editor may have put its own marker there since: it does not tell of this copy.
    if (!marker || std::holds_alternative<std::monostate>(clipSprite_) ||
        marker->kind != kindOf(clipSprite_)) {
        return;
    }
    const char* const name = named(marker->kind, QT_TRANSLATE_NOOP("Edits", "Paste symbol"),
                                   QT_TRANSLATE_NOOP("Edits", "Paste label"));
    const qint32 frame = workspace_.Status.CurrentFrame;
    auto paste = std::make_unique<AddSprite>(name, Marks::Nothing, workspace_.Frames().Item(frame),
                                             frame, pasted(), Arrival::Pasted);
    const SpriteId id = paste->id();
    auto removal = marker->cut ? removalOfCutSprite(name) : nullptr;
    if (marker->cut) {
        QGuiApplication::clipboard()->setText(SpriteMarker{marker->kind, false}.text());
    }
    if (removal) {
        auto both = std::make_unique<EditGroup>(name, Marks::Nothing, frame);
        both->add(std::move(removal));
        both->add(std::move(paste));
        workspace_.edits().push(std::move(both));
    } else {
        workspace_.edits().push(std::move(paste));
    }
    canvas_.selection().clearSelection();
    if (SpriteControl* control = canvas_.sprites().find(id)) {
        canvas_.selection().select(*control);
    }
}

/// The copy as it comes onto the map.
SpriteRecord ClipboardCommands::pasted() const {
    const auto placed = [](auto record) {
        record.PosX = PastePosition.x();
        record.PosY = PastePosition.y();
        return SpriteRecord(std::move(record));
    };
    if (const auto* symbol = std::get_if<cSymbol>(&clipSprite_)) {
        return placed(*symbol);
    }
    return placed(std::get<cLabel>(clipSprite_));
}

/// Nothing is removed in the place of a sprite that has left its Frame or whose Frame has another
/// number now.
std::unique_ptr<Edit> ClipboardCommands::removalOfCutSprite(const char* name) {
    const auto origin = std::exchange(origin_, std::nullopt);
    if (!origin || origin->frame > workspace_.Frames().Count()) {
        return nullptr;
    }
    const cSprites& sprites = workspace_.Frames().Item(origin->frame).Sprites();
    if (sprites.identity().lock() != origin->identity.lock() || !sprites.contains(origin->id)) {
        return nullptr;
    }
    return std::make_unique<RemoveSprite>(name, Marks::Nothing, origin->frame, origin->id);
}

void ClipboardCommands::deleteSprite() {
    const SpriteControl* control = canvas_.selection().control();
    if (!control) {
        return;
    }
    const SpriteId id = control->id;
    const qint32 frame = workspace_.Status.CurrentFrame;
    if (workspace_.Frames().Item(frame).Sprites().contains(id)) {
        workspace_.edits().push(std::make_unique<RemoveSprite>(
            named(id.kind, QT_TRANSLATE_NOOP("Edits", "Delete symbol"),
                  QT_TRANSLATE_NOOP("Edits", "Delete label")),
            Marks::Nothing, frame, id, canvas_.sprites().depthOf(*control)));
    }
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
