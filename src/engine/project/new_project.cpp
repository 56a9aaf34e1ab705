// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/new_project.h"

#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/history/version_store.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"
#include "engine/project/save_project.h"
#include "engine/project/work_snapshot.h"

namespace nubivane {

using namespace Qt::StringLiterals;

bool newProject(Editor editor) {
    if (!confirmLeavingProject(editor)) {
        return false;
    }
    Workspace& workspace = editor.workspace;
    const HourglassGuard hourglass(editor.shell);
    keepUnsavedWork(workspace, VersionCause::ClosedWithoutSaving);
    workspace.Status.CurrentProject.clear();
    editor.view.clearSelection();
    editor.view.unloadFrameSprites();
    workspace.resetProject();
    workspace.opened.reset();
    workspace.clearTempPicture();
    workspace.Status.CurrentFrame = 1;
    workspace.pctMap.setPicture(workspace.loadCurrentMap());
    workspace.Project->Frames().Item(1).Texts().Label = u"Map1"_s;
    editor.view.rebuildFrameTabs();
    editor.view.showMap();
    editor.view.selectFirstFrame();
    workspace.ProjectChanged = false;
    editor.view.setCaption(QStringLiteral("New project - ") + ProgramTitle);
    return true;
}

}  // namespace nubivane
