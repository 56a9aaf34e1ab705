// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_save_gif.h"

#include "engine/core/host_files.h"
#include "engine/export/gif_export.h"
#include "engine/model/workspace.h"

namespace nubivane {

GifRunWindow::GifRunWindow(const char* name, Workspace& workspace, Shell& shell, QWidget* parent)
    : ExportRunWindow(name, workspace, shell, parent) {
    setWindowTitle(tr(" Creating frames - step 1 of 4"));
}

/// A GIF that cannot be written ends the run as if all went well; but the old file, which the
/// person has given up, must not pass for the new one.
void GifRunWindow::savingFailed(const Error& error) {
    if (error.number() == error_number::FileAccess) {
        host_files::removeFile(GifFileName);
    } else {
        tell(error);
    }
}

frmSaveAniGif::frmSaveAniGif(Workspace& workspace, Shell& shell, QWidget* parent)
    : GifRunWindow("frmSaveAniGif", workspace, shell, parent) {}

void frmSaveAniGif::Init() {
    run([this] {
        return aniGifJob(workspace(), workspace().Status.CurrentFrame, GifFileName, GifCompression);
    });
}

frmSaveFilm::frmSaveFilm(Workspace& workspace, Shell& shell, QWidget* parent)
    : GifRunWindow("frmSaveFilm", workspace, shell, parent) {}

void frmSaveFilm::Init() {
    run([this] {
        return filmJob(
            workspace(), GifFileName,
            {.current = workspace().Status.CurrentFrame, .FrameInterval = FrameInterval});
    });
}

}  // namespace nubivane
