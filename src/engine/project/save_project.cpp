// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/save_project.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/parallel.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/history/version_store.h"
#include "engine/model/editor_view.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/unfinished_drawing.h"
#include "engine/model/workspace.h"
#include "engine/picture/picture.h"
#include "engine/project/project_commit.h"
#include "engine/project/project_document.h"
#include "engine/project/project_pair.h"
#include "engine/project/project_paths.h"
#include "engine/project/project_writer.h"
#include "engine/project/recent_files.h"

#include <QFile>

#include <algorithm>
#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Frames encoded at a time: enough for all cores, few enough to bound the memory.
constexpr qint32 BatchSize = 32;
constexpr qint64 BatchPixels = 25'000'000;

QString askForName(Editor editor, bool saveAs) {
    FileRequest request;
    request.title = saveAs ? u"Save project as"_s : u"Save project"_s;
    request.folder = editor.workspace.folder.path();
    request.peoplesOwn = true;
    request.filter = ProjectFilter;
    request.confirmOverwrite = true;
    editor.shell.processEvents();
    return trimBlanks(editor.shell.saveFileName(request));
}

/// The panels' pictures in the format of the map. A picture is encoded once however many Frames
/// show it, and not at all when it was read in that format.
class PanelEncoder {
  public:
    PanelEncoder(const FramePanels& panels, PictureFormat format)
        : panels_(panels), format_(format) {}

    /// The encoded pictures of Frames `first` to `last`.
    std::vector<QByteArray> encode(qint32 first, qint32 last) {
        std::vector<Picture> work;
        for (qint32 i = first; i <= last; ++i) {
            const Picture picture = panels_.picture(i);
            const bool shared = i > first && picture.sharesContentWith(panels_.picture(i - 1));
            work.push_back(shared ? Picture() : picture);
        }
        if (work.front().sharesContentWith(lastPicture_)) {
            work.front() = Picture();
        }
        std::vector<QByteArray> encoded(work.size());
        parallelFor(work.size(), [&](std::size_t i) {
            if (!work[i].isEmpty()) {
                encoded[i] = work[i].encoded(format_);
            }
        });
        for (std::size_t i = 0; i < work.size(); ++i) {
            if (work[i].isEmpty()) {
                encoded[i] = lastBytes_;
            }
            lastBytes_ = encoded[i];
        }
        lastPicture_ = panels_.picture(last);
        return encoded;
    }

  private:
    const FramePanels& panels_;
    PictureFormat format_;
    Picture lastPicture_;
    QByteArray lastBytes_;
};

/// The last Frame of the batch that begins with `first`.
qint32 endOfBatch(const FramePanels& panels, qint32 first, qint32 frames) {
    qint64 pixels = 0;
    qint32 last = first;
    for (; last < frames && last - first + 1 < BatchSize; ++last) {
        const QSize size = panels.picture(last).size();
        pixels += qint64{size.width()} * size.height();
        if (pixels > BatchPixels) {
            break;
        }
    }
    return last;
}

/// Appends all blocks to the data file and returns their lengths, the map's first.
std::vector<qint64> writeImageStore(Workspace& workspace, ProjectCommit& files) {
    workspace.fillPanels();
    workspace.storeCurrentFrame();
    const QByteArray map = host_files::read(workspace.Status.CurrentMap, MaxPictureBytes);
    files.appendData(map);
    std::vector<qint64> sizes{map.size()};

    PanelEncoder encoder(workspace.pctPanel,
                         formatOfExtension(getExtension(workspace.Status.CurrentMap)));
    const qint32 frames = workspace.Frames().Count();
    for (qint32 first = 1, last = 0; first <= frames; first = last + 1) {
        last = endOfBatch(workspace.pctPanel, first, frames);
        for (const QByteArray& block : encoder.encode(first, last)) {
            files.appendData(block);
            sizes.push_back(block.size());
        }
    }
    return sizes;
}

void writeFiles(Editor editor, const QString& name) {
    const QString dataFile = requireDataFileOf(name);
    const std::optional<OpenedPair>& opened = editor.workspace.opened;
    const auto versions = VersionStore::ofUser(editor.workspace.settings);
    ProjectCommit::Rules rules;
    rules.versions = versions ? &*versions : nullptr;
    if (opened && opened->project == name) {
        rules.opened = opened->state;
    }
    ProjectCommit files(host_files::toHost(name), host_files::toHost(dataFile), rules);
    const std::vector<qint64> sizes = writeImageStore(editor.workspace, files);
    editor.shell.setProgress(30);
    editor.shell.processEvents();

    ProjectWriter writer(editor.workspace, sizes);
    const qint32 frames = editor.workspace.Frames().Count();
    for (qint32 i = 1; i <= frames; ++i) {
        writer.writeFrame(i);
        editor.shell.setProgress(30 + static_cast<int>(qint64{70} * i / frames));
        editor.shell.processEvents();
    }
    const QByteArray document = writer.finish();
    if (document.size() > MaxDocumentBytes) {
        throw Error(error_number::FileAccess, u"saveProject"_s, u"Cannot write the file."_s,
                    u"the project has more sprites and texts than could be opened again"_s);
    }
    editor.workspace.opened = OpenedPair{name, files.commit(document)};
}

/// The save itself, with the window locked meanwhile. Returns what went wrong.
std::optional<Error> tryToSave(Editor editor, const QString& name) {
    const HourglassGuard hourglass(editor.shell);
    const InputGuard noInput(editor.view);
    const ProgressGuard progress(editor.shell, 10);
    try {
        editor.shell.processEvents();
        editor.workspace.pctMap.wipeScratchLayer();
        editor.view.resetDrawing();
        writeFiles(editor, name);
    } catch (const Error& error) {
        return error;
    }
    addRecentFile(editor.workspace.settings, editor.view, name);
    editor.workspace.Status.CurrentProject = name;
    editor.view.setCaption(getFileName(name) + u" - "_s + ProgramTitle);
    editor.workspace.ProjectChanged = false;
    editor.workspace.edits().markSaved();
    return std::nullopt;
}

/// Whether the pair that would be replaced is another one than was read or written last.
bool changedOnDisk(Workspace& workspace, const QString& name) {
    std::optional<OpenedPair>& opened = workspace.opened;
    if (!opened || opened->project != name) {
        return false;
    }
    const QString document = host_files::toHost(name);
    const QString data = host_files::toHost(dataFileOf(name));
    return QFile::exists(document) && !(pairStateOf(document, data) == opened->state);
}

/// What another program has saved meanwhile is replaced only if the person wants it. Returns the
/// name under which to go on; nothing for not at all.
QString askAboutChange(Editor editor, const QString& name) {
    const Answer answer = editor.shell.messageBox(
        {getFileName(name) +
             u" has been changed on the disk since it was opened or saved here. Save over it ? "
             "What stands there now would be kept among the earlier versions."_s,
         Icon::Exclamation,
         Buttons::YesNoSaveAs,
         {},
         true});
    if (answer == Answer::SaveAs) {
        return askForName(editor, true);
    }
    if (answer != Answer::Yes) {
        return {};
    }
    // From here on what stands there is what may be replaced.
    editor.workspace.opened->state =
        pairStateOf(host_files::toHost(name), host_files::toHost(dataFileOf(name)));
    return name;
}

}  // namespace

bool saveProject(Editor editor, bool saveAs) {
    QString name = editor.workspace.Status.CurrentProject;
    if (name.isEmpty() || saveAs) {
        const QString chosen = askForName(editor, saveAs);
        // A cancelled "Save as" goes on to save under the old name.
        if (!chosen.isEmpty()) {
            name = chosen;
        }
    }
    if (!name.isEmpty() && changedOnDisk(editor.workspace, name)) {
        name = askAboutChange(editor, name);
    }
    if (name.isEmpty()) {
        return false;
    }

    if (const auto failure = tryToSave(editor, name)) {
        editor.shell.messageBox({u"An error occurred while saving the project."_s, Icon::Critical,
                                 Buttons::Ok, failure->cause()});
        return false;
    }
    return true;
}

void restorePersistentLayer(Editor editor) {
    commitUnfinishedDrawing(editor.workspace);
    editor.workspace.storeCurrentFrame();
    editor.workspace.pctMap.setPicture(
        editor.workspace.pctPanel.picture(editor.workspace.Status.CurrentFrame));
    editor.view.showPicture();
}

bool confirmLeavingProject(Editor editor) {
    if (!editor.workspace.ProjectChanged) {
        return true;
    }
    const Answer answer =
        editor.shell.messageBox({u"The project has been changed. Save file before closing ?"_s,
                                 Icon::Exclamation,
                                 Buttons::YesNoCancel,
                                 {}});
    if (answer == Answer::Yes) {
        const bool saved = saveProject(editor, false);
        restorePersistentLayer(editor);
        return saved;
    }
    return answer == Answer::No;
}

}  // namespace nubivane
