// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/export/frm_export_run.h"

namespace nubivane {

/// What the two windows that write an animated GIF have in common.
class GifRunWindow : public ExportRunWindow {
    Q_OBJECT

  protected:
    GifRunWindow(const char* name, Workspace& workspace, Shell& shell, const QString& GifFileName,
                 QWidget* parent);

    void savingFailed(const Error& error) override;

  private:
    QString GifFileName_;  ///< the file to write, a path text
};

/// Writes a Frame as a GIF in which its Symbols move.
class frmSaveAniGif : public GifRunWindow {
    Q_OBJECT

  public:
    frmSaveAniGif(Workspace& workspace, Shell& shell, const AniGifRequest& request,
                  QWidget* parent);

    void Init() { run(request_); }

  private:
    AniGifRequest request_;
};

/// Writes all Frames as one GIF.
class frmSaveFilm : public GifRunWindow {
    Q_OBJECT

  public:
    frmSaveFilm(Workspace& workspace, Shell& shell, const FilmRequest& request, QWidget* parent);

    void Init() { run(request_); }

  private:
    FilmRequest request_;
};

}  // namespace nubivane
