// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"
#include "cli/export_target.h"
#include "engine/core/error.h"
#include "engine/export/video_export.h"
#include "engine/video/video_writer.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A side in pixels; 0 when it is not given.
int sideOf(const CommandContext& context, const QString& option) {
    if (!context.options.contains(option)) {
        return 0;
    }
    bool isNumber = false;
    const int side = context.options.value(option).toInt(&isNumber);
    if (!isNumber || side < 2 || side > MaxVideoSide) {
        throw Error(
            error_number::OutOfRange, u"command line"_s,
            option + u" is no size of a video: \""_s + context.options.value(option) + u"\"."_s,
            QStringLiteral("it takes 2 to %1 pixels").arg(MaxVideoSide));
    }
    return side;
}

int run(CommandContext& context, decltype(saveAvi)& save, const QString& ending) {
    openNamedProject(context, context.arguments[0]);
    const qint32 frame = frameNumber(context, context.arguments[1]);
    checkSeekable(context.arguments[2], ending.toUpper());
    checkEnding(context.arguments[2], {ending});
    const VideoOptions options{
        .size = {sideOf(context, u"--width"_s), sideOf(context, u"--height"_s)},
        .compression = compressionOf(context),
    };
    try {
        ConsoleWatcher watcher(context.shell);
        save(context.workspace, frame, modelPath(context.arguments[2]), options, watcher);
    } catch (const Error& error) {
        failSaving(error);
    }
    return printWritten({context.arguments[2]});
}

}  // namespace

int runAvi(CommandContext& context) {
    return run(context, saveAvi, u"avi"_s);
}

int runMp4(CommandContext& context) {
    return run(context, saveMp4, u"mp4"_s);
}

}  // namespace nubivane
