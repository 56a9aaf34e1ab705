// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/export_stage.h"

#include "engine/core/host_files.h"
#include "engine/export/label_painter.h"
#include "engine/picture/sheet.h"

#include <QPainter>

#include <algorithm>

namespace nubivane {

namespace {

/// Sprites come from files: a position may be any number.
bool touches(QPoint position, QSize size, QSize stage) {
    return position.x() < stage.width() && position.y() < stage.height() &&
           qint64{position.x()} + size.width() > 0 && qint64{position.y()} + size.height() > 0;
}

void fold(StageTiming& timing, const Animation& animation) {
    timing.longestLoop = std::max(timing.longestLoop, animation.totalDuration());
    if (animation.moves()) {
        const int step = animation.shortestDuration();
        timing.shortestStep = std::min(timing.shortestStep.value_or(step), step);
    }
}

}  // namespace

Picture ExportStage::mapOf(const FrameContent& frame) {
    if (!frame.drawn.isEmpty()) {
        return frame.drawn;
    }
    if (bareMap_.isEmpty() || bareMapFile_ != frame.mapFile) {
        bareMap_ = Picture::fromEncoded(host_files::read(frame.mapFile, MaxPictureBytes));
        bareMapFile_ = frame.mapFile;
    }
    return bareMap_;
}

void ExportStage::loadMap(const FrameContent& frame) {
    const Picture picture = mapOf(frame);
    if (!picture.sharesContentWith(mapPicture_)) {
        map_ = onWhite(picture.image());
        mapPicture_ = picture;
    }
}

void ExportStage::loadStageSprites(const FrameContent& frame) {
    // The old sprites go last, so that files that both Frames show are decoded once.
    std::vector<PlacedSymbol> symbols;
    StageTiming timing;
    timing.symbols = frame.symbolCount;
    for (const FrameContent::Symbol& symbol : frame.symbols) {
        if (auto animation = cache_.get(symbol.file)) {
            fold(timing, *animation);
            symbols.push_back({symbol.position, std::move(animation)});
        }
    }
    symbols_.swap(symbols);
    labels_ = frame.labels;
    timing_ = timing;
}

QImage ExportStage::grabStage(qint64 time) const {
    QImage stage = map_;
    QPainter painter(&stage);
    for (const PlacedSymbol& symbol : symbols_) {
        const QImage& picture = symbol.animation->pictureAt(time);
        if (touches(symbol.position, picture.size(), stage.size())) {
            painter.drawImage(symbol.position, picture);
        }
    }
    for (const cLabel& label : labels_) {
        const QPoint position(label.PosX, label.PosY);
        const QSize size = labelSize(label);
        if (touches(position, size, stage.size())) {
            paintLabel(painter, label, QRect(position, size));
        }
    }
    return stage;
}

QImage renderFrame(const Workspace& workspace, qint32 frame, qint64 time) {
    const FrameContent content = contentOf(workspace, frame);
    ExportStage stage;
    stage.loadMap(content);
    stage.loadStageSprites(content);
    return stage.grabStage(time);
}

}  // namespace nubivane
