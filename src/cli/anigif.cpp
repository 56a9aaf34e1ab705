// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"
#include "engine/core/error.h"
#include "engine/export/gif_export.h"

namespace nubivane {

int runAniGif(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    const qint32 frame = frameNumber(context, context.arguments[1]);
    try {
        ConsoleWatcher watcher(context.shell);
        saveAniGif(context.workspace, frame, modelPath(context.arguments[2]),
                   compressionOf(context), watcher, qualityOf(context));
    } catch (const Error& error) {
        failSaving(error);
    }
    return printWritten({context.arguments[2]});
}

}  // namespace nubivane
