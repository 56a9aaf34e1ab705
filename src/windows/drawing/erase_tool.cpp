// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/erase_tool.h"

#include "engine/core/error.h"
#include "windows/drawing/map_drawing.h"
#include "windows/drawing/tool_pointers.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>

namespace nubivane {

EraseTool::EraseTool(MapDrawing& drawing) : PenTool(drawing, toolPointer("erasecur")) {}

void EraseTool::chosen() {
    load();
}

/// Another Frame may have another map under it.
void EraseTool::cancel() {
    pctEraser_.setPicture(Picture());
    pixels_ = QImage();
}

void EraseTool::load() {
    cancel();
    try {
        pctEraser_.setPicture(drawing().workspace().loadCurrentMap());
    } catch (const Error&) {
        // Without its map there is nothing to bring back.
    }
}

void EraseTool::begin(QPoint position) {
    if (pctEraser_.ScaleWidth() <= 0) {
        load();
    }
    if (pixels_.isNull()) {
        pixels_ = pctEraser_.pixels();
    }
    drawing().points().penDown = true;
    outside_.reset();
    last_ = position;
    sweep(position);
}

/// Block by block, so that a fast stroke leaves no gaps.
void EraseTool::sweep(QPoint to) {
    const QPoint way = to - last_;
    const int steps = std::max({1, std::abs(way.x()), std::abs(way.y())});
    for (int i = 1; i <= steps; ++i) {
        const QPoint at = last_ + way * (static_cast<double>(i) / steps);
        drawing().pen().copyBlock(pixels_, {at, QSize(BlockSize, BlockSize)});
    }
    last_ = to;
}

void EraseTool::go(QPoint position) {
    if (outside_) {
        last_ = drawing().borderBetween(position, *outside_);
        outside_.reset();
    }
    sweep(position);
}

void EraseTool::goOut(QPoint position) {
    if (!outside_) {
        sweep(drawing().borderBetween(last_, position));
    }
    outside_ = position;
}

void EraseTool::end() {
    drawing().commitStroke(QT_TRANSLATE_NOOP("Edits", "Erase"));
}

}  // namespace nubivane
