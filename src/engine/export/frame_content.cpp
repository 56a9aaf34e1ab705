// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/frame_content.h"

#include "engine/export/export_watcher.h"
#include "engine/export/label_painter.h"
#include "engine/model/workspace.h"

#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String SymbolArray("gifSymbol");
constexpr QLatin1String LabelArray("lblTesto");

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

/// How a Label differs on a stage from the canvas: its border has the stage's colour, whatever its
/// own.
cLabel onStage(cLabel label) {
    label.BorderColor = 0;
    return label;
}

}  // namespace

FrameContent contentOf(const Workspace& workspace, qint32 frame) {
    const cSprites& sprites = workspace.Frames().Item(frame).Sprites();
    FrameContent content;
    content.number = frame;
    content.drawn = workspace.pctPanel.picture(frame);
    content.mapFile = workspace.Status.CurrentMap;
    content.symbolCount = sprites.Symbols().Count();
    SpriteArrays arrays;
    for (const cSymbol& symbol : sprites.Symbols()) {
        if (const auto index = arrays.add(symbol.Name)) {
            symbol.Index = *index;
            if (symbol.Name == QLatin1String(SymbolArray)) {
                content.symbols.push_back({{symbol.PosX, symbol.PosY}, symbol.PathFileGif});
            }
        }
    }
    for (const cLabel& label : sprites.Labels()) {
        if (const auto index = arrays.add(label.Name)) {
            label.Index = *index;
            if (label.Name == QLatin1String(LabelArray)) {
                content.labels.push_back(onStage(label));
            }
        }
    }
    return content;
}

void remarkMissingLetters(const FrameContent& frame, ExportWatcher& watcher) {
    for (const cLabel& label : frame.labels) {
        const QString letters = lettersWithoutFont(label);
        if (!letters.isEmpty()) {
            watcher.remark(u"Frame %1: no installed font has %2 of the label \"%3\"."_s.arg(
                QString::number(frame.number), letters, label.Text.simplified()));
        }
    }
}

}  // namespace nubivane
