// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/project_commands.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/model/editor_view.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"
#include "engine/project/new_project.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "engine/web/site_files.h"
#include "windows/commands/commands.h"

namespace nubivane {

using namespace Qt::StringLiterals;

ProjectCommands::ProjectCommands(Editor editor, Commands& commands) : editor_(editor) {
    commands.handle(Command::mnuNewProject, [this] { createNew(); });
    commands.handle(Command::mnuOpenProject, [this] { open({}); });
    commands.handle(Command::mnuSaveProject, [this] { save(false); });
    commands.handle(Command::mnuSaveProjectAs, [this] { save(true); });
    commands.handle(Command::mnuCrea, [this] { create(); });
    commands.handle(Command::mnuSaveSite, [this] { saveSite(); });
    commands.handle(Command::mnuPreview, [this] { mnuPreview(editor_); });
}

void ProjectCommands::open(const QString& file) {
    try {
        OpenProject(editor_, file.isEmpty() ? std::nullopt : std::optional(file));
    } catch (const Error& error) {
        editor_.shell.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
    }
}

bool ProjectCommands::openUnsaved(const QString& copy, const Origin& origin) {
    Workspace& workspace = editor_.workspace;
    const QStringList recent = workspace.settings.list(SettingList::RecentFiles);
    open(copy);
    workspace.settings.setList(SettingList::RecentFiles, recent);
    if (!workspace.opened || workspace.opened->project != copy) {
        return false;
    }
    workspace.opened.reset();
    if (origin.opened && !origin.project.isEmpty()) {
        workspace.opened = OpenedPair{origin.project, *origin.opened};
    }
    workspace.Status.CurrentProject = origin.project;
    workspace.ProjectChanged = true;
    workspace.edits().markUnsaved();
    editor_.view.setCaption(
        (origin.project.isEmpty() ? QStringLiteral("New project") : getFileName(origin.project)) +
        QStringLiteral(" - ") + QLatin1String(ProgramTitle));
    return true;
}

void ProjectCommands::createNew() {
    try {
        newProject(editor_);
    } catch (const Error& error) {
        editor_.shell.messageBox(
            {tr("An error occurred while initializing. The application will be terminated."),
             Icon::Critical, Buttons::Ok, QString::fromUtf8(error.what())});
        Q_EMIT terminate();
    }
}

void ProjectCommands::create() {
    if (const auto files = createPage(editor_)) {
        Q_EMIT pageMade(pageAmong(*files));
    }
}

/// The folder of the last site is where the next one is looked for.
void ProjectCommands::saveSite() {
    Shell& shell = editor_.shell;
    const QString folder = shell.chooseFolder(
        {tr("Save site as"),
         siteFolder_.isEmpty() ? getFolder(editor_.workspace.Status.CurrentProject) : siteFolder_,
         {}});
    if (folder.isEmpty()) {
        return;
    }
    siteFolder_ = folder;
    if (const auto files = createSite(editor_, host_files::toHost(folder))) {
        shell.openInBrowser(pageAmong(*files));
    }
}

void ProjectCommands::save(bool saveAs) {
    if (saveProject(editor_, saveAs)) {
        restorePersistentLayer(editor_);
    }
}

}  // namespace nubivane
