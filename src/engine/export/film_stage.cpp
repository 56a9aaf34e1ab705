// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/film_stage.h"

#include "engine/model/workspace.h"

#include <utility>

namespace nubivane {

FilmStage::FilmStage(Workspace& workspace, const FilmOptions& options) : options_(options) {
    FrameContent first = contentOf(workspace, options.current);
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
    return stage_.capture(qint64{options_.FrameInterval} * MillisecondsPerHundredth);
}

}  // namespace nubivane
