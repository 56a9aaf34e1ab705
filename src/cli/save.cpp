// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "engine/project/save_project.h"

namespace nubivane {

int runSave(CommandContext& context) {
    openNamedProject(context, context.arguments[0]);
    if (context.arguments.size() > 1) {
        context.workspace.Status.CurrentProject = modelPath(context.arguments[1]);
    }
    return saveProject(context.editor(), false) ? exit_code::Done : exit_code::Failed;
}

}  // namespace nubivane
