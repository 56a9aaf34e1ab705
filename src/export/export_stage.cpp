#include "export/export_stage.h"

#include "export/label_painter.h"
#include "model/workspace.h"

#include <QPainter>

#include <algorithm>

namespace nubivane {

namespace {

constexpr char SymbolArray[] = "gifSymbol";
constexpr char LabelArray[] = "lblTesto";

/// The two arrays of on-screen elements, as far as they are filled.
class SpriteArrays {
  public:
    /// The number of a new element in the array of a name; nothing for another name.
    std::optional<qint32> add(const QString& name) {
        if (name == QLatin1String(SymbolArray)) {
            return ++symbols_;
        }
        if (name == QLatin1String(LabelArray)) {
            return ++labels_;
        }
        return std::nullopt;
    }

  private:
    qint32 symbols_ = 0;
    qint32 labels_ = 0;
};

/// Sprites come from files: a position may be any number.
bool touches(QPoint position, QSize size, QSize stage) {
    return position.x() < stage.width() && position.y() < stage.height() &&
           qint64{position.x()} + size.width() > 0 && qint64{position.y()} + size.height() > 0;
}

/// A map with see-through places lies on white.
QImage opaque(const QImage& image) {
    if (!image.hasAlphaChannel()) {
        return image.convertToFormat(QImage::Format_RGB32);
    }
    QImage sheet(image.size(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter(&sheet).drawImage(0, 0, image);
    return sheet;
}

/// How a Label differs here from the canvas: its border has the stage's colour, whatever its own.
cLabel onStage(cLabel label) {
    label.BorderColor = 0;
    return label;
}

void fold(StageTiming& timing, const Animation& animation) {
    timing.longestLoop = std::max(timing.longestLoop, animation.totalDuration());
    if (animation.moves()) {
        const int step = animation.shortestDuration();
        timing.shortestStep = std::min(timing.shortestStep.value_or(step), step);
    }
}

}  // namespace

Picture ExportStage::mapOf(qint32 frame) {
    const Picture drawn = workspace_.pctPanel.picture(frame);
    if (!drawn.isEmpty()) {
        return drawn;
    }
    if (bareMap_.isEmpty()) {
        bareMap_ = workspace_.loadCurrentMap();
    }
    return bareMap_;
}

void ExportStage::loadMap(qint32 frame) {
    const Picture picture = mapOf(frame);
    if (!picture.sharesContentWith(mapPicture_)) {
        map_ = opaque(picture.image());
        mapPicture_ = picture;
    }
}

void ExportStage::loadStageSprites(qint32 frame) {
    const cSprites& sprites = workspace_.Frames().Item(frame).Sprites();
    SpriteArrays arrays;
    // The old sprites go last, so that files that both Frames show are decoded once.
    std::vector<PlacedSymbol> symbols;
    std::vector<cLabel> labels;
    StageTiming timing;
    timing.symbols = sprites.Symbols().Count();
    for (cSymbol& symbol : sprites.Symbols()) {
        const auto index = arrays.add(symbol.Name);
        if (!index) {
            continue;
        }
        symbol.Index = *index;
        if (symbol.Name != QLatin1String(SymbolArray)) {
            continue;
        }
        if (auto animation = cache_.get(symbol.PathFileGif)) {
            fold(timing, *animation);
            symbols.push_back({{symbol.PosX, symbol.PosY}, std::move(animation)});
        }
    }
    for (cLabel& label : sprites.Labels()) {
        const auto index = arrays.add(label.Name);
        if (!index) {
            continue;
        }
        label.Index = *index;
        if (label.Name == QLatin1String(LabelArray)) {
            labels.push_back(onStage(label));
        }
    }
    symbols_.swap(symbols);
    labels_.swap(labels);
    timing_ = timing;
}

void ExportStage::clearStageSprites() {
    symbols_.clear();
    labels_.clear();
    timing_ = {};
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

QImage renderFrame(Workspace& workspace, qint32 frame, qint64 time) {
    ExportStage stage(workspace);
    stage.loadMap(frame);
    stage.loadStageSprites(frame);
    return stage.grabStage(time);
}

}  // namespace nubivane
