// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_run.h"

namespace nubivane {

/// What the two windows that write an animated GIF have in common.
class GifRunWindow : public ExportRunWindow {
    Q_OBJECT

  public:
    QString GifFileName;  ///< the file to write, a path text

  protected:
    GifRunWindow(const char* name, Workspace& workspace, Shell& shell, QWidget* parent);

    void savingFailed(const Error& error) override;
};

/// Writes the current Frame as a GIF in which its Symbols move. Set what is to be written, then
/// `Init`.
class frmSaveAniGif : public GifRunWindow {
    Q_OBJECT

  public:
    frmSaveAniGif(Workspace& workspace, Shell& shell, QWidget* parent);

    qint16 GifCompression = 1;  ///< 1 to `MaxCompression`

    void Init();
};

/// Writes all Frames as one GIF. Set what is to be written, then `Init`.
class frmSaveFilm : public GifRunWindow {
    Q_OBJECT

  public:
    frmSaveFilm(Workspace& workspace, Shell& shell, QWidget* parent);

    qint16 FrameInterval = 1;  ///< hundredths of a second

    void Init();
};

}  // namespace nubivane
