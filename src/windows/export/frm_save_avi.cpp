// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_save_avi.h"

#include "engine/core/shell.h"
#include "engine/export/video_export.h"
#include "engine/model/workspace.h"

namespace nubivane {

frmSaveAvi::frmSaveAvi(Workspace& workspace, Shell& shell, QWidget* parent)
    : ExportRunWindow("frmSaveAvi", workspace, shell, parent) {
    setWindowTitle(tr(" Creating frames - step 1 of 3"));
}

void frmSaveAvi::Init() {
    run([this] {
        return aviJob(workspace(), workspace().Status.CurrentFrame, AviFileName,
                      {.size = {AviWidth, AviHeight}, .compression = AviCompression});
    });
}

void frmSaveAvi::savingFailed(const Error& error) {
    shell().messageBox({"An error occurred while saving the file.", Icon::Exclamation, Buttons::Ok,
                        error.cause()});
}

}  // namespace nubivane
