// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/order_sprites.h"
#include "windows/commands/alignment.h"
#include "windows/commands/canvas_context.h"

#include <QObject>

namespace nubivane {

/// The commands that put the selected sprites in order, above and below one another and in lines,
/// and those that draw them to guides and a grid while they are dragged.
class ArrangeCommands : public QObject {
    Q_OBJECT

  public:
    explicit ArrangeCommands(const CanvasContext& context);

    /// Among the others of their kind: Labels lie above all Symbols.
    void stack(Stacking stacking);
    void align(Alignment alignment);
    void distribute(Qt::Orientation direction);

  private:
    void handleSnapping();
    void takeSnapping();
    void askGrid();
    void moveTo(const char* name, const std::vector<QRect>& places);
    void refresh();

    Workspace& workspace_;
    FrameCanvas& canvas_;
    Commands& commands_;
    QWidget& window_;
};

}  // namespace nubivane
