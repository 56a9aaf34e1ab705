// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/film_stage.h"

#include "engine/model/workspace.h"

#include <utility>

namespace nubivane {

FilmStage::FilmStage(const Workspace& workspace, qint32 current, qint16 interval)
    : interval_(interval) {
    FrameContent first = contentOf(workspace, current);
    first.drawn = workspace.pctPanel.picture(1);
    frames_.push_back(std::move(first));
    for (qint32 i = 2; i <= workspace.Frames().Count(); ++i) {
        frames_.push_back(contentOf(workspace, i));
    }
}

QSize FilmStage::size(qint32 number) {
    return stage_.mapOf(frame(number)).size();
}

Capture FilmStage::captureFrame(qint32 number) {
    constexpr int MillisecondsPerHundredth = 10;
    stage_.loadMap(frame(number));
    stage_.loadStageSprites(frame(number));
    return stage_.capture(qint64{interval_} * MillisecondsPerHundredth);
}

void FilmStage::remarkMissingLetters(ExportWatcher& watcher) const {
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        // The sprites of the current Frame may stand on the first image and on their own.
        if (i == 0 || frames_[i].number != frames_.front().number) {
            nubivane::remarkMissingLetters(frames_[i], watcher);
        }
    }
}

}  // namespace nubivane
