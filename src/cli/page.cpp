// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/web/site_files.h"

namespace nubivane {

int runPage(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    std::optional<PageType> type;
    if (context.options.contains("--type")) {
        type = static_cast<PageType>(context.options.value("--type").toInt());
    }
    const auto files = createPage(context.editor(), type);
    if (!files) {
        return exit_code::Failed;
    }
    return streams::writeResult(files->join(u'\n').toUtf8() + '\n') ? exit_code::Done
                                                                    : exit_code::Failed;
}

}  // namespace nubivane
