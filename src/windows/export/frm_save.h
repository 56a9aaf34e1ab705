// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_run.h"

namespace nubivane {

/// Writes one Frame as an image file.
class frmSave : public ExportRunWindow {
    Q_OBJECT

  public:
    frmSave(Workspace& workspace, Shell& shell, const StillRequest& request, QWidget* parent);

    void Init();

  protected:
    void beforeSaving() override;
    void savingFailed(const Error& error) override;

  private:
    StillRequest request_;
};

}  // namespace nubivane
