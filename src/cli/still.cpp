// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"
#include "cli/export_target.h"
#include "engine/core/error.h"
#include "engine/core/parallel.h"
#include "engine/export/export_request.h"

#include <utility>
#include <vector>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String Number("%d");

/// The files of all Frames, from a name that holds their number once.
QStringList filesOfAll(const CommandContext& context, const QString& name) {
    if (name.count(QLatin1String(Number)) != 1) {
        throw Error(
            error_number::InvalidArgument, u"command line"_s,
            u"The name of the files must hold %d once."_s,
            u"\"all\" writes a file for each Frame, and its number takes the place of %d"_s);
    }
    QStringList files;
    for (qint32 i = 1; i <= context.workspace.Frames().Count(); ++i) {
        files += QString(name).replace(QLatin1String(Number), QString::number(i));
    }
    return files;
}

void saveAll(CommandContext& context, const QStringList& files) {
    // Frames that follow each other mostly show the same symbols, and are one job.
    constexpr qint32 FramesOfAJob = 10;
    std::vector<std::unique_ptr<ExportJob>> jobs;
    StillRequest request;
    for (qint32 frame = 1; frame <= files.size(); ++frame) {
        request.files.push_back({frame, modelPath(files[frame - 1])});
        if (request.files.size() == FramesOfAJob || frame == files.size()) {
            jobs.push_back(makeJob(context.workspace, std::exchange(request, {})));
        }
    }
    RemarkWatcher remarks;
    const ProgressGuard progress(context.shell, 0);
    parallelFor(
        jobs.size(),
        [&](std::size_t number) {
            const std::unique_ptr<ExportJob> job = std::move(jobs[number]);
            job->load();
            job->save(remarks);
        },
        [&](std::size_t done) {
            context.shell.setProgress(static_cast<int>(100 * done / jobs.size()));
        });
}

/// The format that `--format` names, or that of an ending.
QString formatFor(const CommandContext& context, const QString& name) {
    if (!ExportTarget::isStandardOutput(name)) {
        if (context.options.contains(u"--format"_s)) {
            throw Error(error_number::InvalidArgument, u"command line"_s,
                        u"--format is for the standard output alone."_s,
                        u"a file has the format that its name ends in"_s);
        }
        return {};
    }
    return context.options.value(u"--format"_s, u"png"_s);
}

}  // namespace

int runStill(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    const QString frame = context.arguments[1];
    const QString name = context.arguments[2];
    const bool all = frame == u"all";
    const ExportTarget target(name, formatFor(context, name));
    const QStringList files = all ? filesOfAll(context, name) : QStringList{name};
    try {
        if (all) {
            saveAll(context, files);
        } else {
            ConsoleWatcher watcher(context.shell);
            runExport(context.workspace,
                      StillRequest{{{frameNumber(context, frame), target.path()}}}, watcher);
        }
    } catch (const Error& error) {
        failSaving(error);
    }
    return all ? printWritten(files) : target.deliver();
}

}  // namespace nubivane
