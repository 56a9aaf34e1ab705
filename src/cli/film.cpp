// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"
#include "cli/export_target.h"
#include "engine/core/error.h"
#include "engine/export/export_request.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String OneSecond("100");

/// The whole part of a number counts, as in the editor.
qint16 intervalOf(const CommandContext& context) {
    bool isNumber = false;
    const double number = context.options.value(u"--interval"_s, OneSecond).toDouble(&isNumber);
    if (!isNumber || !(number >= MinFrameInterval && number < MaxFrameInterval + 1)) {
        throw Error(error_number::OutOfRange, u"command line"_s,
                    u"Insert a valid frames interval"_s,
                    QStringLiteral("--interval takes %1 to %2 hundredths of a second")
                        .arg(MinFrameInterval)
                        .arg(MaxFrameInterval));
    }
    return static_cast<qint16>(number);
}

}  // namespace

int runFilm(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    FilmRequest request{
        .current = frameNumber(context, context.options.value(u"--from"_s, u"1"_s)),
        .FrameInterval = intervalOf(context),
        .quality = qualityOf(context),
    };
    checkEnding(context.arguments[1], {u"gif"_s, u"mp4"_s});
    const ExportTarget target(context.arguments[1], u"gif"_s);
    try {
        ConsoleWatcher watcher(context.shell);
        request.path = target.path();
        request.format = request.path.endsWith(QLatin1String(".mp4"), Qt::CaseInsensitive)
                             ? FilmFormat::Mp4
                             : FilmFormat::Gif;
        runExport(context.workspace, request, watcher);
    } catch (const Error& error) {
        failSaving(error);
    }
    return target.deliver();
}

}  // namespace nubivane
