#pragma once

#include "export/export_stage.h"
#include "export/gif_export.h"

namespace nubivane {

/// The stage of a film: it shows one Frame after the other, each for one interval before it is
/// taken, which decides how far its Symbols have played.
class FilmStage {
  public:
    FilmStage(Workspace& workspace, const FilmOptions& options)
        : workspace_(workspace), stage_(workspace), options_(options) {}

    /// Number of images.
    qint32 count() const;
    /// Its size in pixels. Raises `Error` when its map cannot be read.
    QSize size(qint32 frame);
    /// The image of a Frame. Raises `Error` when its map cannot be read.
    Capture captureFrame(qint32 frame);

  private:
    Workspace& workspace_;
    ExportStage stage_;
    FilmOptions options_;
};

}  // namespace nubivane
