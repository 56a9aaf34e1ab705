// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"
#include "windows/canvas/sprite_marker.h"
#include "windows/commands/canvas_context.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace nubivane {

/// Cut, copy, paste, delete and restore of the selected sprites. The system clipboard holds a
/// marker of the one selected last, this class the copies (`clipSprite`), which outlive changes of
/// Frame and project.
class ClipboardCommands : public QObject {
    Q_OBJECT

  public:
    explicit ClipboardCommands(const CanvasContext& context);

    /// Whether the clipboard holds a sprite's marker: what paste is enabled by.
    bool clipboardHasSprite() const;

    void copySprite();
    /// The sprites stay on their Frame until they are pasted.
    void cutSprite();
    /// Puts the copies on the current Frame, selected: one near its top left corner, several as
    /// they stood to one another and none of them where another one stands. After a cut the sprites
    /// leave the Frame that they were cut on; from then on the marker is that of a copy.
    void pasteSprite();
    void deleteSprite();
    /// Gives the Symbol selected last the size of its picture.
    void restoreSprite();

  private:
    void take(bool cut);
    std::vector<SpriteRecord> pasted(bool afterCut) const;
    std::vector<std::unique_ptr<Edit>> removalOfCutSprites(const char* name);
    void refreshPaste();

    Workspace& workspace_;
    FrameCanvas& canvas_;
    Commands& commands_;
    std::vector<SpriteRecord> clipSprite_;  ///< from bottom to top
    SpriteKind clipKind_ = SpriteKind::Symbol;

    /// Where cut sprites are to be taken away.
    struct Origin {
        qint32 frame;
        std::weak_ptr<const void> identity;
        std::vector<SpriteId> ids;
    };
    std::optional<Origin> origin_;
};

}  // namespace nubivane
