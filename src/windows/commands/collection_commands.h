// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/commands/canvas_context.h"

#include <QObject>

#include <functional>
#include <optional>

namespace nubivane {

class AnimationCache;
class FrameCommands;
class Palette;

/// The commands that open the windows of symbols and maps, and what follows from them.
class CollectionCommands : public QObject {
    Q_OBJECT

  public:
    CollectionCommands(const CanvasContext& context, AnimationCache& animations, Palette& palette,
                       FrameCommands& frameCommands);

    /// Shows the picker of a symbol over a window; the path chosen, an empty text where the person
    /// wants none, nothing after Escape.
    std::optional<QString> chooseSymbol(QWidget* over);

  private:
    void mnuCollection();
    QString chooseMap();
    void mnuOpenMap();

    Workspace& workspace_;
    AnimationCache& animations_;
    Shell& shell_;
    Palette& palette_;
    FrameCommands& frameCommands_;
    QWidget& window_;
};

}  // namespace nubivane
