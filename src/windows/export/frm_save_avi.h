// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_run.h"

namespace nubivane {

/// Writes the current Frame as a video. Set what is to be written, then `Init`.
class frmSaveAvi : public ExportRunWindow {
    Q_OBJECT

  public:
    frmSaveAvi(Workspace& workspace, Shell& shell, QWidget* parent);

    qint32 AviWidth = 0;  ///< pixels
    qint32 AviHeight = 0;
    QString AviFileName;        ///< the file to write, a path text
    qint16 AviCompression = 1;  ///< 1 to `MaxCompression`

    void Init();

  protected:
    void savingFailed(const Error& error) override;
};

}  // namespace nubivane
