// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/open_project.h"

#include "engine/collections/scan_collections.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/history/version_store.h"
#include "engine/model/editor_view.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"
#include "engine/project/data_file.h"
#include "engine/project/project_document.h"
#include "engine/project/project_error.h"
#include "engine/project/project_pair.h"
#include "engine/project/project_paths.h"
#include "engine/project/recent_files.h"
#include "engine/project/save_project.h"
#include "engine/project/work_snapshot.h"

#include <QFile>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int ReadingShare = 55;  ///< percent of the progress at which all Frames are read

QString askForName(Editor editor) {
    FileRequest request;
    request.title = u"Open project"_s;
    request.folder = editor.workspace.folder.path();
    request.peoplesOwn = true;
    request.filter = ProjectFilter;
    editor.shell.processEvents();
    return trimBlanks(editor.shell.openFileName(request));
}

ProjectDocument readDocument(Editor editor, QFile& file) {
    return readProjectDocument(file, editor.workspace.folder, [&](double part) {
        editor.shell.setProgress(static_cast<int>(part * ReadingShare));
        editor.shell.processEvents();
    });
}

/// Marks the collections that the project names and returns their folders in its order; one unknown
/// on this machine is passed over.
QStringList checkCollections(cSymbolsCollections& collections, const QStringList& names) {
    QStringList folders;
    for (const QString& name : names) {
        if (collections.contains(name) && !collections.Item(name).Checked) {
            collections.Item(name).Checked = true;
            folders += collections.Item(name).Path;
        }
    }
    return folders;
}

/// Replaces the open project by the file's. The progress shows from where the file is one that can
/// be read. Returns whether Symbols were dropped.
bool replaceProject(Editor editor, const QString& name, const QString& mapsFolder,
                    std::optional<ProgressGuard>& progress) {
    if (!isValidProjectFile(name)) {
        throw damagedProject(u"the project or its data file \""_s + dataFileOf(name) +
                             u"\" is missing, or the name has not the extension nvpf"_s);
    }
    Workspace& workspace = editor.workspace;
    progress.emplace(editor.shell, 1);
    editor.shell.processEvents();
    const ProjectPair pair =
        openProjectPair(host_files::toHost(name), host_files::toHost(dataFileOf(name)));
    ProjectDocument document = readDocument(editor, *pair.document);

    keepUnsavedWork(workspace, VersionCause::BeforeOpening);
    workspace.Status.CurrentMap = mapsFolder + u'\\' + document.map;
    editor.view.unloadFrameSprites();
    workspace.Project = std::move(document.model);
    workspace.edits().clear();
    reloadCollections(workspace.Status.SymbolsCollection(), workspace.folder);
    editor.view.rebuildPalette(
        checkCollections(workspace.Status.SymbolsCollection(), document.collections));
    if (document.damage) {
        throw *document.damage;
    }
    const DataBlocks blocks =
        readDataBlocks(*pair.data, document.sizes, document.frames, workspace.Frames().Count());
    editor.shell.setProgress(70);
    editor.shell.processEvents();
    // The map travels with the project and back into the folder of maps at every opening.
    host_files::makeFolder(mapsFolder);
    host_files::writeOver(workspace.Status.CurrentMap, blocks.map, MaxPictureBytes);
    workspace.clearTempPicture();
    for (std::size_t i = 0; i < blocks.frames.size(); ++i) {
        workspace.pctPanel.setPicture(static_cast<qint32>(i) + 1, blocks.frames[i]);
    }
    editor.shell.setProgress(85);
    workspace.opened = OpenedPair{name, pair.state};
    return document.missingSymbols;
}

/// What could be read of a damaged project stays open: tabs and panels follow it, so that one can
/// go on.
void keepWhatWasRead(Editor editor) {
    Workspace& workspace = editor.workspace;
    workspace.clearTempPicture();
    editor.view.rebuildFrameTabs();
    workspace.Status.CurrentFrame = 1;
}

void showOpenedProject(Editor editor, const QString& name) {
    Workspace& workspace = editor.workspace;
    editor.view.rebuildFrameTabs();
    workspace.Status.CurrentFrame = 1;
    workspace.Status.CurrentProject = name;
    workspace.pctMap.setPicture(workspace.pctPanel.picture(1));
    editor.view.showMap();
    editor.view.selectFirstFrame();
    addRecentFile(workspace.settings, editor.view, name);
}

}  // namespace

void OpenProject(Editor editor, const std::optional<QString>& file,
                 const std::optional<QString>& mapsFolder) {
    if (!confirmLeavingProject(editor)) {
        return;
    }
    const QString name = file ? *file : askForName(editor);
    if (trimBlanks(name).isEmpty()) {
        editor.shell.processEvents();
        return;
    }

    bool missingSymbols = false;
    {
        const HourglassGuard hourglass(editor.shell);
        const InputGuard noInput(editor.view);
        std::optional<ProgressGuard> progress;
        const cWrapper* const before = editor.workspace.Project.get();
        if (projectStands(host_files::toHost(name))) {
            try {
                missingSymbols = replaceProject(
                    editor, name, mapsFolder.value_or(editor.workspace.folder.maps()), progress);
            } catch (const Error& error) {
                if (editor.workspace.Project.get() != before) {
                    keepWhatWasRead(editor);
                }
                throw error.number() == error_number::UnsupportedVersion
                    ? error
                    : damagedProject(error.cause());
            }
        } else {
            keepUnsavedWork(editor.workspace, VersionCause::BeforeOpening);
            editor.workspace.clearTempPicture();
            editor.workspace.edits().clear();
        }
        showOpenedProject(editor, name);
        if (progress) {
            editor.shell.setProgress(100);
            editor.shell.processEvents();
        }
        editor.view.setCaption(getFileName(name) + u" - "_s + ProgramTitle);
        editor.workspace.ProjectChanged = false;
        editor.workspace.edits().markSaved();
    }
    if (missingSymbols) {
        editor.shell.messageBox(
            {u"Cannot load some symbols: they refer to a location on a hard "
             "drive that is unavailable."_s,
             Icon::Exclamation,
             Buttons::Ok,
             {}});
        editor.shell.processEvents();
    }
}

}  // namespace nubivane
