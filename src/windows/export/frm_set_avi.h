// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_target.h"

#include <QSize>

namespace nubivane {

/// Asks for the file, the size and the compression of a video.
class frmSetAvi : public ExportTargetDialog {
    Q_OBJECT

  public:
    frmSetAvi(Workspace& workspace, Shell& shell, QWidget* parent);

    /// Pixels. Any width goes with any height.
    QSize aviSize() const;
    qint16 AviCompression() const;

  private:
    QComboBox* cboAviWidth_;
    QComboBox* cboAviHeight_;
    QComboBox* cboCompression_;
};

}  // namespace nubivane
