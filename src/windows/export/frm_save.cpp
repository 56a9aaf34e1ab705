// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/export/frm_save.h"

#include "engine/core/shell.h"

#include <QProgressBar>

namespace nubivane {

frmSave::frmSave(Workspace& workspace, Shell& shell, const StillRequest& request, QWidget* parent)
    : ExportRunWindow("frmSave", workspace, shell, parent), request_(request) {
    setWindowTitle(tr(" Saving..."));
    progressBar().setValue(3);
}

void frmSave::Init() {
    // Long enough to be seen: the work itself is done in a moment.
    constexpr int Timer1_Interval = 200;
    run(request_, Timer1_Interval);
}

void frmSave::beforeSaving() {
    progressBar().setValue(30);
}

void frmSave::savingFailed(const Error& error) {
    progressBar().hide();
    shell().messageBox({tr("An error occurred while saving the file."), Icon::Critical, Buttons::Ok,
                        error.cause()});
}

}  // namespace nubivane
