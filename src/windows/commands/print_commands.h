// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/commands/page_printer.h"

#include <QImage>

#include <memory>

namespace nubivane {

class Commands;
class FrameCanvas;
class Shell;

/// Prints the canvas as it stands.
class PrintCommands {
  public:
    PrintCommands(Shell& shell, FrameCanvas& canvas, Commands& commands, QWidget* window);

    /// Where it goes; at first the desktop's printers.
    std::unique_ptr<PagePrinter> printer;

    void printMap();

  private:
    QImage canvasPicture();

    Shell& shell_;
    FrameCanvas& canvas_;
    QWidget* window_;
};

}  // namespace nubivane
