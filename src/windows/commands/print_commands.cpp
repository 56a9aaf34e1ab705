// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/print_commands.h"

#include "engine/core/error.h"
#include "engine/core/shell.h"
#include "engine/export/print_export.h"
#include "windows/commands/commands.h"
#include "windows/commands/desktop_printer.h"
#include "windows/panes/frame_canvas.h"

namespace nubivane {

using namespace Qt::StringLiterals;

PrintCommands::PrintCommands(const CanvasContext& context)
    : QObject(&context.window),
      printer(std::make_unique<DesktopPrinter>()),
      workspace_(context.workspace),
      shell_(context.shell),
      canvas_(context.canvas),
      window_(context.window) {
    context.commands.handle(Command::mnuSetPrinter, [this] { printer->setUp(&window_); });
    context.commands.handle(Command::mnuPrint, [this] { printMap(); });
}

void PrintCommands::printMap() {
    Selection& selection = canvas_.selection();
    try {
        const HourglassGuard hourglass(shell_);
        const bool framed = selection.shpSelector() != nullptr;
        selection.hideBorder();
        printer->print(partToPrint(canvas_.widget().image()),
                       titleOfPrint(workspace_, workspace_.Status.CurrentFrame));
        SpriteControl* control = selection.control();
        if (framed && control) {
            selection.selectSprite(*control);
        }
    } catch (const Error& error) {
        // The border of the selection stays hidden.
        shell_.messageBox({tr("An error occurred while printing."), Icon::Critical, Buttons::Ok,
                           QString::fromUtf8(error.what())});
    }
}

}  // namespace nubivane
