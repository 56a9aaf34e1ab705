// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"
#include "windows/canvas/sprite_marker.h"
#include "windows/commands/canvas_context.h"

#include <QObject>

#include <memory>
#include <optional>
#include <variant>

namespace nubivane {

/// A copy of a sprite that is in no list, or nothing.
using ClipSprite = std::variant<std::monostate, cSymbol, cLabel>;

/// Cut, copy, paste, delete and restore of the selected sprite. The system clipboard holds a
/// marker, this class the copy (`clipSprite`), which outlives changes of Frame and project.
class ClipboardCommands : public QObject {
    Q_OBJECT

  public:
    explicit ClipboardCommands(const CanvasContext& context);

    /// Whether the clipboard holds a sprite's marker: what paste is enabled by.
    bool clipboardHasSprite() const;

    void copySprite();
    /// The sprite stays on its Frame until it is pasted.
    void cutSprite();
    /// Puts the copy on the current Frame near its top left corner, selected. After a cut the
    /// sprite leaves the Frame that it was cut on; from then on the marker is that of a copy.
    void pasteSprite();
    void deleteSprite();
    /// Gives the selected Symbol the size of its picture.
    void restoreSprite();

  private:
    void take(bool cut);
    SpriteRecord pasted() const;
    std::unique_ptr<Edit> removalOfCutSprite(const char* name);
    void refreshPaste();

    Workspace& workspace_;
    FrameCanvas& canvas_;
    Commands& commands_;
    ClipSprite clipSprite_;

    /// Where a cut sprite is to be taken away.
    struct Origin {
        qint32 frame;
        std::weak_ptr<const void> identity;
        SpriteId id;
    };
    std::optional<Origin> origin_;
};

}  // namespace nubivane
