// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"
#include "cli/export_target.h"
#include "engine/core/error.h"
#include "engine/export/export_request.h"

namespace nubivane {

using namespace Qt::StringLiterals;

int runAniGif(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    const qint32 frame = frameNumber(context, context.arguments[1]);
    checkEnding(context.arguments[2], {u"gif"_s});
    const ExportTarget target(context.arguments[2], u"gif"_s);
    try {
        ConsoleWatcher watcher(context.shell);
        runExport(context.workspace,
                  AniGifRequest{.frame = frame,
                                .GifFileName = target.path(),
                                .compression = compressionOf(context),
                                .quality = qualityOf(context)},
                  watcher);
    } catch (const Error& error) {
        failSaving(error);
    }
    return target.deliver();
}

}  // namespace nubivane
