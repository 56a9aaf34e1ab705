// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/project_commands.h"

#include "engine/core/error.h"
#include "engine/core/shell.h"
#include "engine/project/new_project.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "engine/web/site_files.h"
#include "windows/commands/commands.h"

namespace nubivane {

ProjectCommands::ProjectCommands(Editor editor, Commands& commands) : editor_(editor) {
    commands.handle("mnuNewProject", [this] { createNew(); });
    commands.handle("mnuOpenProject", [this] { open({}); });
    commands.handle("mnuSaveProject", [this] { save(false); });
    commands.handle("mnuSaveProjectAs", [this] { save(true); });
    commands.handle("mnuCrea", [this] { createPage(editor_); });
    commands.handle("mnuPreview", [this] { mnuPreview(editor_); });
}

void ProjectCommands::open(const QString& file) {
    try {
        OpenProject(editor_, file.isEmpty() ? std::nullopt : std::optional(file));
    } catch (const Error& error) {
        editor_.shell.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
    }
}

void ProjectCommands::createNew() {
    try {
        newProject(editor_);
    } catch (const Error& error) {
        editor_.shell.messageBox(
            {"An error occurred while initializing. The application will be terminated.",
             Icon::Critical, Buttons::Ok, QString::fromUtf8(error.what())});
        terminate();
    }
}

void ProjectCommands::save(bool saveAs) {
    if (saveProject(editor_, saveAs)) {
        restorePersistentLayer(editor_);
    }
}

}  // namespace nubivane
