// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/frame_canvas.h"

#include "engine/core/error.h"

namespace nubivane {

FrameCanvas::FrameCanvas(Workspace& workspace, AnimationCache& animations, Shell& shell,
                         QWidget* parent)
    : workspace_(workspace),
      sprites_(workspace, animations),
      selection_(workspace, sprites_),
      clock_(sprites_),
      mouse_(workspace, sprites_, selection_, shell),
      placement_(workspace, sprites_, selection_, shell),
      drawing_(workspace, sprites_, selection_, mouse_, shell),
      widget_(new MapCanvas(workspace, sprites_, selection_, mouse_, clock_, parent)) {
    sprites_.now = [this] { return clock_.now(); };
    sprites_.playingChanged = [this] { clock_.schedule(); };
    sprites_.changed = [this](const QRect& area) { widget_->updateMap(area); };
    selection_.changed = sprites_.changed;
    widget_->dropped = [this](const QString& payload, QPoint position) {
        placement_.drop(payload, position);
    };
    drawing_.attach(*widget_);
}

void FrameCanvas::resetDrawing() {
    mouse_.cancel();
    drawing_.reset();
}

void FrameCanvas::showFrame(qint32 frame) {
    Picture picture = workspace_.pctPanel.picture(frame);
    if (picture.isEmpty()) {
        try {
            picture = workspace_.loadCurrentMap();
        } catch (const Error&) {
            // Without its map the canvas keeps the picture that it shows.
            picture = workspace_.pctMap.image();
        }
    }
    workspace_.pctMap.setPicture(picture);
    widget_->showPicture();
    sprites_.loadFrameSprites(frame);
}

}  // namespace nubivane
