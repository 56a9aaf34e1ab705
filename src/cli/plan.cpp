// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/upload/unsendable_names.h"
#include "engine/upload/upload_outlook.h"
#include "engine/upload/upload_plan.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QString stepsOf(const UploadPlan& plan) {
    QString lines;
    for (const cUpload& step : plan) {
        lines += QStringList{nameOf(step.Command), step.Param1, step.Param2,
                             step.ErrorCauseStop ? QStringLiteral("1") : QStringLiteral("0")}
                     .join(u'\t') +
                 u'\n';
    }
    return lines;
}

QString filesOf(const UploadOutlook& outlook) {
    QString lines;
    for (const UploadOutlook::File& file : outlook.files) {
        lines += u"send\t%1\t%2\n"_s.arg(file.name).arg(file.bytes);
    }
    return lines + outlook.summary() + u'\n';
}

}  // namespace

int runPlan(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    const auto chosen = [&](const char* option) {
        return context.options.contains(QLatin1String(option));
    };
    const UploadGroups groups{chosen("--symbols"), chosen("--maps"), chosen("--html-page")};
    const QString lines = chosen("--bytes")
                              ? filesOf(outlookOf(context.workspace, groups, chosen("--all")))
                              : stepsOf(buildUploadPlan(context.workspace, groups.symbols,
                                                        groups.maps, groups.htmlPage));
    if (!streams::writeResult(lines.toUtf8())) {
        return exit_code::Failed;
    }
    for (const QString& name : unsendableNames(context.workspace, groups)) {
        streams::printError(u"Cannot send "_s + name);
    }
    return exit_code::Done;
}

}  // namespace nubivane
