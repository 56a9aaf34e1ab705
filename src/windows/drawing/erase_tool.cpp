// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/erase_tool.h"

#include "engine/core/error.h"
#include "windows/drawing/map_drawing.h"
#include "windows/drawing/tool_pointers.h"

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
    go(position);
}

void EraseTool::go(QPoint position) {
    drawing().pen().copyBlock(pixels_, {position, QSize(BlockSize, BlockSize)});
}

void EraseTool::end() {
    drawing().commitStroke();
}

}  // namespace nubivane
