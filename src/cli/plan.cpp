// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/upload/upload_plan.h"

namespace nubivane {

using namespace Qt::StringLiterals;

int runPlan(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    const UploadPlan plan = buildUploadPlan(
        context.workspace, context.options.contains(u"--symbols"_s),
        context.options.contains(u"--maps"_s), context.options.contains(u"--html-page"_s));
    QString lines;
    for (const cUpload& step : plan) {
        lines += QStringList{nameOf(step.Command), step.Param1, step.Param2,
                             step.ErrorCauseStop ? QStringLiteral("1") : QStringLiteral("0")}
                     .join(u'\t') +
                 u'\n';
    }
    return streams::writeResult(lines.toUtf8()) ? exit_code::Done : exit_code::Failed;
}

}  // namespace nubivane
