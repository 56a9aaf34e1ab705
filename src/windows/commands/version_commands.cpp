// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/version_commands.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/replaced_file.h"
#include "engine/core/shell.h"
#include "engine/model/workspace.h"
#include "engine/project/kept_pair.h"
#include "engine/project/project_paths.h"
#include "windows/commands/commands.h"
#include "windows/commands/frm_versions.h"
#include "windows/commands/kept_projects.h"
#include "windows/commands/project_commands.h"

#include <QTemporaryDir>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Those of the project that is open; without a name, of all that had none.
QList<KeptVersion> versionsOf(const QString& project) {
    try {
        const VersionStore store = VersionStore::ofUser(VersionLimits{});
        if (project.isEmpty()) {
            return store.versionsOf({}, {});
        }
        return store.versionsOf(behindLinks(host_files::toHost(project)),
                                behindLinks(host_files::toHost(dataFileOf(project))));
    } catch (const Error&) {
        return {};  // a user without a home
    }
}

}  // namespace

VersionCommands::VersionCommands(Workspace& workspace, Shell& shell, ProjectCommands& projects,
                                 Commands& commands, QWidget* window)
    : workspace_(workspace), shell_(shell), projects_(projects), window_(window) {
    commands.handle(Command::mnuVersions, [this] { show(); });
}

void VersionCommands::show() {
    const QString& project = workspace_.Status.CurrentProject;
    frmVersions window(getFileName(project), versionsOf(project), window_);
    QObject::connect(
        &window, &frmVersions::pictureWanted, &window, [&](int row, const KeptVersion& version) {
            try {
                window.setPicture(row, KeptProject(version, workspace_.folder).firstFrame());
            } catch (const Error&) {
                // The row stays without; opening it tells why.
            }
        });
    QObject::connect(&window, &frmVersions::compareWanted, &window,
                     [&](const KeptVersion& version) { compare(window, version); });
    QObject::connect(&window, &frmVersions::saveWanted, &window,
                     [&](const KeptVersion& version) { save(version); });
    QObject::connect(&window, &frmVersions::openWanted, &window, [&](const KeptVersion& version) {
        if (open(version)) {
            window.accept();
        }
    });
    window.exec();
}

void VersionCommands::tellFailure(const QString& text, const Error& error) {
    shell_.messageBox({text, Icon::Critical, Buttons::Ok, error.cause()});
}

void VersionCommands::compare(frmVersions& window, const KeptVersion& version) {
    try {
        const HourglassGuard hourglass(shell_);
        window.showDifferences(
            differencesText(KeptProject(version, workspace_.folder), workspace_.Frames()));
    } catch (const Error& error) {
        tellFailure(tr("This version cannot be read."), error);
    }
}

bool VersionCommands::open(const KeptVersion& version) {
    const QTemporaryDir temporary;
    const QString copy = host_files::toModel(temporary.filePath(u"version.nvpf"_s));
    try {
        writeKeptPair(version.document, version.data, copy, workspace_.settings);
    } catch (const Error& error) {
        tellFailure(tr("This version cannot be read."), error);
        return false;
    }
    return projects_.openUnsaved(copy, {});
}

void VersionCommands::save(const KeptVersion& version) {
    FileRequest request;
    request.title = tr("Save version as");
    request.folder = getFolder(workspace_.Status.CurrentProject);
    request.peoplesOwn = true;
    request.filter = ProjectFilter;
    request.confirmOverwrite = true;
    const QString target = trimBlanks(shell_.saveFileName(request));
    if (target.isEmpty()) {
        return;
    }
    try {
        writeKeptPair(version.document, version.data, target, workspace_.settings);
    } catch (const Error& error) {
        tellFailure(tr("An error occurred while saving the project."), error);
    }
}

}  // namespace nubivane
