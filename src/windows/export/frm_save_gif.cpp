// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_save_gif.h"

#include "engine/core/host_files.h"

namespace nubivane {

GifRunWindow::GifRunWindow(const char* name, Workspace& workspace, Shell& shell,
                           const QString& GifFileName, QWidget* parent)
    : ExportRunWindow(name, workspace, shell, parent), GifFileName_(GifFileName) {
    setWindowTitle(tr(" Creating frames - step 1 of 4"));
}

/// A GIF that cannot be written ends the run as if all went well; but the old file, which the
/// person has given up, must not pass for the new one.
void GifRunWindow::savingFailed(const Error& error) {
    if (error.number() == error_number::FileAccess) {
        host_files::removeFile(GifFileName_);
    } else {
        tell(error);
    }
}

frmSaveAniGif::frmSaveAniGif(Workspace& workspace, Shell& shell, const AniGifRequest& request,
                             QWidget* parent)
    : GifRunWindow("frmSaveAniGif", workspace, shell, request.GifFileName, parent),
      request_(request) {}

frmSaveFilm::frmSaveFilm(Workspace& workspace, Shell& shell, const FilmRequest& request,
                         QWidget* parent)
    : GifRunWindow("frmSaveFilm", workspace, shell, request.path, parent), request_(request) {}

}  // namespace nubivane
