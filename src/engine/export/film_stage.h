// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_stage.h"

namespace nubivane {

class ExportWatcher;

/// The stage of a film: it shows one Frame after the other, each for one interval before it is
/// taken, which decides how far its Symbols have played.
class FilmStage {
  public:
    /// Reads the Frames from the model, which it does not touch from then on; `current` is the one
    /// whose sprites stand on the first image, `interval` is in hundredths of a second. Raises
    /// `Error` (OutOfRange) when there is no such Frame.
    FilmStage(const Workspace& workspace, qint32 current, qint16 interval);

    /// Number of images.
    qint32 count() const { return static_cast<qint32>(frames_.size()); }
    /// Its size in pixels. Raises `Error` when its map cannot be read.
    QSize size(qint32 frame);
    /// The image of a Frame. Raises `Error` when its map cannot be read.
    Capture captureFrame(qint32 frame);

    /// Tells of letters without a font, Frame by Frame.
    void remarkMissingLetters(ExportWatcher& watcher) const;

  private:
    const FrameContent& frame(qint32 number) const {
        return frames_.at(static_cast<std::size_t>(number) - 1);
    }

    std::vector<FrameContent> frames_;
    ExportStage stage_;
    qint16 interval_;
};

}  // namespace nubivane
