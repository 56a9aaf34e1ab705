// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_save_avi.h"

#include "engine/core/shell.h"

namespace nubivane {

frmSaveAvi::frmSaveAvi(Workspace& workspace, Shell& shell, const VideoRequest& request,
                       QWidget* parent)
    : ExportRunWindow("frmSaveAvi", workspace, shell, parent), request_(request) {
    setWindowTitle(tr(" Creating frames - step 1 of 3"));
}

void frmSaveAvi::savingFailed(const Error& error) {
    shell().messageBox({tr("An error occurred while saving the file."), Icon::Exclamation,
                        Buttons::Ok, error.cause()});
}

}  // namespace nubivane
