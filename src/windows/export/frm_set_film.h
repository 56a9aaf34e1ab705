// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_target.h"

namespace nubivane {

class ScrSpn;

/// Asks for the file of a film and how long each Frame stays.
class frmSetFilm : public ExportTargetDialog {
    Q_OBJECT

  public:
    frmSetFilm(Workspace& workspace, Shell& shell, QWidget* parent);

    /// Hundredths of a second.
    qint16 FrameInterval() const;

  protected:
    bool optionsAreValid() override;

  private:
    QLineEdit* txtInterval_;
    ScrSpn* scrlInterval_;
};

}  // namespace nubivane
