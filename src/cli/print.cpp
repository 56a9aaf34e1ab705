// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"
#include "cli/export_target.h"
#include "engine/core/error.h"
#include "engine/export/export_request.h"

namespace nubivane {

using namespace Qt::StringLiterals;

int runPrint(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    const qint32 frame = frameNumber(context, context.arguments[1]);
    checkEnding(context.arguments[2], {u"pdf"_s});
    const ExportTarget target(context.arguments[2], u"pdf"_s);
    try {
        ConsoleWatcher watcher(context.shell);
        runExport(context.workspace, PrintRequest{.frame = frame, .path = target.path()}, watcher);
    } catch (const Error& error) {
        throw Error(error.number(), error.source(), u"An error occurred while printing."_s,
                    QString::fromUtf8(error.what()));
    }
    return target.deliver();
}

}  // namespace nubivane
