#include "export/film_stage.h"

#include "model/workspace.h"

namespace nubivane {

qint32 FilmStage::count() const {
    return workspace_.Frames().Count();
}

QSize FilmStage::size(qint32 frame) {
    return stage_.mapOf(frame).size();
}

Capture FilmStage::captureFrame(qint32 frame) {
    constexpr int MillisecondsPerHundredth = 10;
    stage_.loadMap(frame);
    stage_.loadStageSprites(frame == 1 ? options_.current : frame);
    return stage_.capture(qint64{options_.FrameInterval} * MillisecondsPerHundredth);
}

}  // namespace nubivane
