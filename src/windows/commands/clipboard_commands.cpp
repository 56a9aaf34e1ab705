// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/clipboard_commands.h"

#include "windows/commands/commands.h"
#include "windows/panes/frame_canvas.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace nubivane {

namespace {

constexpr QPoint PastePosition(6, 6);

/// The kind of a sprite, which is its place among the alternatives.
qint16 typeOf(const ClipSprite& sprite) {
    static_assert(sprite_type::Symbol == 1 && sprite_type::Label == 2);
    return static_cast<qint16>(sprite.index());
}

void removeSprite(cSprites& sprites, const QString& type, const QString& key) {
    std::visit(
        [&key](auto list) {
            if constexpr (!std::is_same_v<decltype(list), std::monostate>) {
                if (list->contains(key)) {
                    list->Remove(key);
                }
            }
        },
        sprites.evalSprite(type));
}

}  // namespace

ClipboardCommands::ClipboardCommands(Workspace& workspace, FrameCanvas& canvas, Commands& commands)
    : workspace_(workspace), canvas_(canvas), commands_(commands) {
    commands_.handle("mnuCut", [this] { cutSprite(); });
    commands_.handle("mnuCopy", [this] { copySprite(); });
    commands_.handle("mnuPaste", [this] { pasteSprite(); });
    commands_.handle("mnuDelSymbol", [this] { deleteSprite(); });
    commands_.handle("mnuRestore", [this] { restoreSprite(); });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &ClipboardCommands::refreshPaste);
    refreshPaste();
}

bool ClipboardCommands::clipboardHasSprite() const {
    return SpriteMarker::read(QGuiApplication::clipboard()->text()).has_value();
}

void ClipboardCommands::refreshPaste() {
    commands_.setEnabled({"mnuPaste"}, clipboardHasSprite());
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
    const QString& key = status.CurrentShapeControlKey;
    const cSprites& sprites = workspace_.Frames().Item(status.CurrentFrame).Sprites();
    if (status.CurrentShapeControlType == sprite_type::Symbol && sprites.Symbols().contains(key)) {
        clipSprite_ = sprites.Symbols().Copy(sprites.Symbols().Item(key));
    } else if (status.CurrentShapeControlType == sprite_type::Label &&
               sprites.Labels().contains(key)) {
        clipSprite_ = sprites.Labels().Copy(sprites.Labels().Item(key));
    } else {
        return;
    }
    if (cut) {
        // Not the copy's own Frame number: that one is stale once an earlier Frame was removed.
        origin_ = Origin{status.CurrentFrame, sprites.identity(), key};
    }
    QGuiApplication::clipboard()->setText(SpriteMarker{typeOf(clipSprite_), cut}.text());
}

void ClipboardCommands::pasteSprite() {
    const auto marker = SpriteMarker::read(QGuiApplication::clipboard()->text());
    // A second editor may have put its own marker there since: it does not tell of this copy.
    if (!marker || marker->type != typeOf(clipSprite_)) {
        return;
    }
    if (marker->cut) {
        removeCutSprite();
        QGuiApplication::clipboard()->setText(SpriteMarker{marker->type, false}.text());
    }
    SpriteControl* control =
        std::visit([this](const auto& copy) { return add(copy); }, clipSprite_);
    canvas_.sprites().show(*control);
    canvas_.sprites().playingChanged();
    canvas_.selection().clearSelection();
    canvas_.selection().select(*control);
    spritesChanged();
}

/// Nothing is removed in the place of a sprite that has left its Frame or whose Frame has another
/// number now.
void ClipboardCommands::removeCutSprite() {
    const auto origin = std::exchange(origin_, std::nullopt);
    if (!origin || origin->frame > workspace_.Frames().Count()) {
        return;
    }
    cSprites& sprites = workspace_.Frames().Item(origin->frame).Sprites();
    if (sprites.identity().lock() != origin->identity.lock()) {
        return;
    }
    const QString type = QString::number(typeOf(clipSprite_));
    if (origin->frame == workspace_.Status.CurrentFrame) {
        if (SpriteControl* control = canvas_.sprites().find(type, origin->key)) {
            canvas_.sprites().discard(*control);
        }
    }
    removeSprite(sprites, type, origin->key);
}

SpriteControl* ClipboardCommands::add(const std::unique_ptr<cSymbol>& copy) {
    GifSymbol& control = canvas_.sprites().makeSymbol(copy->PathFileGif);
    const qint16 frame = workspace_.Status.CurrentFrame;
    const cSymbol& symbol = workspace_.Frames().Item(frame).Sprites().Symbols().Add(
        frame, copy->Name, control.Index, copy->Height, copy->Width, PastePosition.x(),
        PastePosition.y(), copy->FileGif, copy->PathFileGif, copy->Link, copy->Tooltip, copy->Note);
    control.Tag = "1|" + symbol.Key_ + '|';
    control.rect = QRect(PastePosition, QSize(symbol.Width, symbol.Height));
    control.StartAnimation(canvas_.sprites().now());
    return &control;
}

SpriteControl* ClipboardCommands::add(const std::unique_ptr<cLabel>& copy) {
    LblTesto& control = canvas_.sprites().makeLabel();
    const qint16 frame = workspace_.Status.CurrentFrame;
    const cLabel& label = workspace_.Frames().Item(frame).Sprites().Labels().Add(
        frame, copy->Name, control.Index, copy->Height, copy->Width, PastePosition.x(),
        PastePosition.y(), copy->Text, copy->FontName, QString::number(copy->FontSize),
        copy->FontBold, copy->FontItalic, copy->FontUnderline, copy->FontOverline,
        copy->FontStrikethourht, copy->BackColor, copy->Forecolor, QString::number(copy->Border),
        copy->BorderColor, copy->Note);
    control.Tag = "2|" + label.Key_ + '|';
    control.show(label);  // its background appears when the Frame is shown anew
    control.rect.moveTo(PastePosition);
    return &control;
}

void ClipboardCommands::deleteSprite() {
    SpriteControl* control = canvas_.selection().control();
    if (!control) {
        return;
    }
    const QString type = control->type();
    const QString key = control->key();
    canvas_.sprites().discard(*control);
    canvas_.selection().clearSelection();
    removeSprite(workspace_.Frames().Item(workspace_.Status.CurrentFrame).Sprites(), type, key);
    spritesChanged();
}

void ClipboardCommands::restoreSprite() {
    auto* control = dynamic_cast<GifSymbol*>(canvas_.selection().control());
    const cSymbols& symbols =
        workspace_.Frames().Item(workspace_.Status.CurrentFrame).Sprites().Symbols();
    // A picture that cannot be read has no size to go back to.
    if (!control || !control->animation || !symbols.contains(control->key())) {
        return;
    }
    canvas_.selection().clearSelection();
    const QSize size = control->animation->size();
    canvas_.sprites().Move(*control, QRect(control->rect.topLeft(), size));
    cSymbol& symbol = symbols.Item(control->key());
    symbol.Width = size.width();
    symbol.Height = size.height();
    canvas_.selection().select(*control);
}

}  // namespace nubivane
