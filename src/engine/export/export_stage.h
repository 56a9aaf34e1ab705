// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/frame_content.h"
#include "engine/gif/gif_colors.h"
#include "engine/picture/animation.h"
#include "engine/picture/animation_cache.h"

#include <QImage>

#include <memory>
#include <optional>
#include <vector>

namespace nubivane {

class Workspace;

/// How the Symbols on a stage move, in milliseconds. A `CapturePlan` is made from it.
struct StageTiming {
    qint32 symbols = 0;               ///< Symbols of the Frame, moving or not
    qint64 longestLoop = 0;           ///< the longest pass of any; 0 when none moves
    std::optional<int> shortestStep;  ///< the shortest time between two images of any
};

/// The private picture on which an export rebuilds a Frame: the map with what was drawn on it, the
/// Symbols in their own sizes, the Labels; nothing is scaled. The Frame's texts are not part of it.
///
/// All Symbols play on one clock, which starts when they are placed. A stage knows nothing of the
/// model: it may stand on any one thread.
class ExportStage {
  public:
    /// The map picture of a Frame: what was drawn on it, or else the bare map. Raises `Error`.
    Picture mapOf(const FrameContent& frame);

    /// Puts a Frame's map on the stage. Raises `Error`.
    void loadMap(const FrameContent& frame);
    /// Places a Frame's sprites. One that cannot be shown leaves a gap. Those of another Frame are
    /// taken off.
    void loadStageSprites(const FrameContent& frame);

    QSize size() const { return map_.size(); }
    StageTiming timing() const { return timing_; }

    /// The stage as it is a time (ms) after its sprites were placed (RGB32).
    QImage grabStage(qint64 time) const;
    /// The same with the map that lies under it.
    Capture capture(qint64 time) const { return {grabStage(time), map_}; }

  private:
    struct PlacedSymbol {
        QPoint position;
        std::shared_ptr<const Animation> animation;
    };

    AnimationCache cache_;
    Picture bareMap_;  ///< empty until a Frame shows it
    QString bareMapFile_;
    Picture mapPicture_;  ///< what stands on the stage, and its pixels
    QImage map_;
    std::vector<PlacedSymbol> symbols_;
    std::vector<cLabel> labels_;
    StageTiming timing_;
};

/// A Frame as it looks a time (ms) after its Symbols began to play. Raises `Error`.
QImage renderFrame(const Workspace& workspace, qint32 frame, qint64 time = 0);

}  // namespace nubivane
