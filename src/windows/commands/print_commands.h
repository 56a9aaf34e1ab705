// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/commands/canvas_context.h"
#include "windows/commands/page_printer.h"

#include <QImage>
#include <QObject>

#include <memory>

namespace nubivane {

/// Prints the canvas as it stands.
class PrintCommands : public QObject {
    Q_OBJECT

  public:
    explicit PrintCommands(const CanvasContext& context);

    /// Where it goes; at first the desktop's printers.
    std::unique_ptr<PagePrinter> printer;

    void printMap();

  private:
    const Workspace& workspace_;
    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget& window_;
};

}  // namespace nubivane
