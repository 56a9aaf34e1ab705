// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/picture.h"
#include "windows/export/frm_export_run.h"

namespace nubivane {

/// Writes one Frame as an image file. Set what is to be written, then `Init`.
class frmSave : public ExportRunWindow {
    Q_OBJECT

  public:
    frmSave(Workspace& workspace, Shell& shell, QWidget* parent);

    Picture Map;          ///< the map picture for the stage
    qint16 Frame = 1;     ///< its number
    QString MapFileName;  ///< the file to write, a path text

    void Init();

  protected:
    void beforeSaving() override;
    void savingFailed(const Error& error) override;
};

}  // namespace nubivane
