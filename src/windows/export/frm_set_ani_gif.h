// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_target.h"

namespace nubivane {

/// Asks for the file and the compression of an animated GIF.
class frmSetAniGif : public ExportTargetDialog {
    Q_OBJECT

  public:
    frmSetAniGif(Workspace& workspace, Shell& shell, QWidget* parent);

    qint16 GifCompression() const;

  private:
    QComboBox* cboCompression_;
};

}  // namespace nubivane
