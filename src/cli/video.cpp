// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"
#include "cli/export_target.h"
#include "engine/core/error.h"
#include "engine/export/export_request.h"

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

int run(CommandContext& context, VideoFormat format, const QString& ending) {
    openNamedProject(context, context.arguments[0]);
    const qint32 frame = frameNumber(context, context.arguments[1]);
    checkSeekable(context.arguments[2], ending.toUpper());
    checkEnding(context.arguments[2], {ending});
    const VideoRequest request{
        .frame = frame,
        .path = modelPath(context.arguments[2]),
        .format = format,
        .size = {sideOf(context, u"--width"_s), sideOf(context, u"--height"_s)},
        .compression = compressionOf(context),
    };
    try {
        ConsoleWatcher watcher(context.shell);
        runExport(context.workspace, request, watcher);
    } catch (const Error& error) {
        failSaving(error);
    }
    return printWritten({context.arguments[2]});
}

}  // namespace

int runAvi(CommandContext& context) {
    return run(context, VideoFormat::Avi, u"avi"_s);
}

int runMp4(CommandContext& context) {
    return run(context, VideoFormat::Mp4, u"mp4"_s);
}

}  // namespace nubivane
