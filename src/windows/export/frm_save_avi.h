// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_run.h"

namespace nubivane {

/// Writes a Frame as a video.
class frmSaveAvi : public ExportRunWindow {
    Q_OBJECT

  public:
    frmSaveAvi(Workspace& workspace, Shell& shell, const VideoRequest& request, QWidget* parent);

    void Init() { run(request_); }

  protected:
    void savingFailed(const Error& error) override;

  private:
    VideoRequest request_;
};

}  // namespace nubivane
