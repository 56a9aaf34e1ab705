// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/web/site_files.h"

#include <QTemporaryDir>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A site of its own leaves no trace in the program folder, so the project's map goes elsewhere.
std::optional<QStringList> makeSite(CommandContext& context, const QString& folder,
                                    std::optional<PageType> type) {
    const QTemporaryDir maps;
    if (!maps.isValid()) {
        throw Error(error_number::FileAccess, u"command line"_s, u"Cannot write the file."_s,
                    maps.errorString());
    }
    openNamedProject(context, context.arguments[0], host_files::toModel(maps.path()));
    return createSite(context.editor(), folder, type);
}

std::optional<QStringList> makePage(CommandContext& context, std::optional<PageType> type) {
    openNamedProject(context, context.arguments[0]);
    return createPage(context.editor(), type);
}

}  // namespace

int runPage(CommandContext& context) {
    const auto type = context.options.constFind(u"--type"_s);
    const auto into = context.options.constFind(u"--into"_s);
    std::optional<PageType> pageType;
    if (type != context.options.cend()) {
        pageType = static_cast<PageType>(type->toInt());
    }
    const auto files = into == context.options.cend() ? makePage(context, pageType)
                                                      : makeSite(context, *into, pageType);
    if (!files) {
        return exit_code::Failed;
    }
    return streams::writeResult(files->join(u'\n').toUtf8() + '\n') ? exit_code::Done
                                                                    : exit_code::Failed;
}

}  // namespace nubivane
