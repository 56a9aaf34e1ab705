// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/export_commands.h"

#include "engine/core/error.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/model/edits/unfinished_drawing.h"
#include "windows/commands/commands.h"
#include "windows/export/frm_save.h"
#include "windows/export/frm_save_avi.h"
#include "windows/export/frm_save_gif.h"
#include "windows/export/frm_set_ani_gif.h"
#include "windows/export/frm_set_avi.h"
#include "windows/export/frm_set_film.h"
#include "windows/panes/frame_canvas.h"

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

struct StillRow {
    Command command;
    const char* filter;
};

constexpr std::array stills = {
    StillRow{Command::subEsportaBmp,
             QT_TRANSLATE_NOOP("nubivane::ExportCommands", "bitmaps (*.bmp)|*.bmp|")},
    StillRow{Command::subEsportaGif,
             QT_TRANSLATE_NOOP("nubivane::ExportCommands", "gif (*.gif)|*.gif")},
    StillRow{Command::subEsportaJpg,
             QT_TRANSLATE_NOOP("nubivane::ExportCommands", "jpg (*.jpg)|*.jpg|")},
    StillRow{Command::subEsportaPng,
             QT_TRANSLATE_NOOP("nubivane::ExportCommands", "png (*.png)|*.png|")},
    StillRow{Command::subEsportaTif,
             QT_TRANSLATE_NOOP("nubivane::ExportCommands", "tif (*.tif)|*.tif|")},
};

}  // namespace

ExportCommands::ExportCommands(const CanvasContext& context)
    : QObject(&context.window),
      workspace_(context.workspace),
      shell_(context.shell),
      canvas_(context.canvas),
      window_(context.window) {
    for (const StillRow& row : stills) {
        context.commands.handle(row.command, [this, &row] { exportMap(tr(row.filter)); });
    }
    context.commands.handle(Command::subEsportaGifAni, [this] { subEsportaGifAni(); });
    context.commands.handle(Command::subEsportaFilm, [this] { subEsportaFilm(); });
    context.commands.handle(Command::subEsportaAvi, [this] { subEsportaAvi(); });
}

void ExportCommands::exportMap(const QString& filter) {
    const QString path = trimBlanks(shell_.saveFileName({.title = tr("Export map"),
                                                         .folder = workspace_.folder.path(),
                                                         .filter = filter,
                                                         .confirmOverwrite = true,
                                                         .peoplesOwn = true}));
    if (path.isEmpty()) {
        return;
    }
    workspace_.storeCurrentFrame();
    try {
        const qint32 frame = workspace_.Status.CurrentFrame;
        const Picture drawn = workspace_.pctPanel.picture(frame);
        const Picture map = drawn.isEmpty() ? workspace_.loadCurrentMap() : drawn;
        frmSave(workspace_, shell_, {{{frame, path, map}}}, &window_).Init();
    } catch (const Error& error) {
        shell_.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
    }
    restoreMapPicture();
}

/// What was being drawn is in the panel now, and so it is on the map.
void ExportCommands::restoreMapPicture() {
    commitUnfinishedDrawing(workspace_);
    const Picture picture = workspace_.pctPanel.picture(workspace_.Status.CurrentFrame);
    if (!picture.isEmpty()) {
        workspace_.pctMap.setPicture(picture);
        canvas_.widget().showPicture();
    }
}

void ExportCommands::subEsportaGifAni() {
    frmSetAniGif dialog(workspace_, shell_, &window_);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    workspace_.storeCurrentFrame();
    const AniGifRequest request{.frame = workspace_.Status.CurrentFrame,
                                .GifFileName = dialog.FileName(),
                                .compression = dialog.GifCompression()};
    frmSaveAniGif(workspace_, shell_, request, &window_).Init();
}

void ExportCommands::subEsportaFilm() {
    frmSetFilm dialog(workspace_, shell_, &window_);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    workspace_.storeCurrentFrame();
    const FilmRequest request{.path = dialog.FileName(),
                              .current = workspace_.Status.CurrentFrame,
                              .FrameInterval = dialog.FrameInterval()};
    frmSaveFilm(workspace_, shell_, request, &window_).Init();
}

void ExportCommands::subEsportaAvi() {
    frmSetAvi dialog(workspace_, shell_, &window_);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    workspace_.storeCurrentFrame();
    const VideoRequest request{.frame = workspace_.Status.CurrentFrame,
                               .path = dialog.FileName(),
                               .size = dialog.aviSize(),
                               .compression = dialog.AviCompression()};
    frmSaveAvi(workspace_, shell_, request, &window_).Init();
}

}  // namespace nubivane
