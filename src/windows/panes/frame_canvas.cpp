// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/frame_canvas.h"

#include "engine/model/edits/project_edits.h"
#include "windows/canvas/label_editor.h"

namespace nubivane {

FrameCanvas::FrameCanvas(Workspace& workspace, AnimationCache& animations, Shell& shell,
                         std::function<bool()> dropAllowed, QWidget* parent)
    : workspace_(workspace),
      sprites_(workspace, animations, [this] { return clock_.now(); }),
      selection_(workspace, sprites_),
      clock_(sprites_),
      mouse_(workspace, sprites_, selection_, shell),
      placement_(workspace, sprites_, selection_, shell),
      drawing_(workspace, sprites_, selection_, mouse_, shell),
      widget_(new MapCanvas(workspace, sprites_, selection_, mouse_, clock_, std::move(dropAllowed),
                            parent)),
      labelEditor_(new LabelEditor(workspace, sprites_, *widget_)) {
    QObject::connect(&sprites_, &SpriteStack::playingChanged, &clock_, &CanvasClock::schedule);
    QObject::connect(&sprites_, &SpriteStack::changed, widget_, &MapCanvas::updateMap);
    QObject::connect(&selection_, &Selection::changed, widget_, &MapCanvas::updateMap);
    QObject::connect(&mouse_, &SpriteMouse::changed, widget_, &MapCanvas::updateMap);
    QObject::connect(
        widget_, &MapCanvas::dropped, &clock_,
        [this](const QString& payload, QPoint position) { placement_.drop(payload, position); });
    drawing_.attach(*widget_);
    workspace_.edits().watch(*this);
}

FrameCanvas::~FrameCanvas() {
    workspace_.edits().unwatch(*this);
}

void FrameCanvas::resetDrawing() {
    labelEditor_->cancel();
    mouse_.cancel();
    drawing_.reset();
}

void FrameCanvas::framesWillChange() {
    resetDrawing();
    selection_.clearSelection();
    sprites_.unloadAllSprites();
}

void FrameCanvas::framesChanged() {
    widget_->showPicture();
    sprites_.loadFrameSprites(workspace_.Status.CurrentFrame);
}

void FrameCanvas::spriteAdded(qint32 frame, const SpriteId& id, Arrival arrival,
                              std::optional<int> depth) {
    if (isShown(frame)) {
        sprites_.loadSprite(frame, id, arrival, depth);
    }
}

void FrameCanvas::spriteWillGo(qint32 frame, const SpriteId& id) {
    SpriteControl* control = isShown(frame) ? sprites_.find(id) : nullptr;
    if (!control) {
        return;
    }
    mouse_.spriteWillGo();
    sprites_.discard(*control);
    selection_.forget(id);
}

void FrameCanvas::spritesReordered(qint32 frame) {
    if (isShown(frame)) {
        sprites_.restack(frame);
    }
}

void FrameCanvas::spriteChanged(qint32 frame, const SpriteRecord& before,
                                const SpriteRecord& after) {
    if (isShown(frame)) {
        sprites_.refresh(before, after);
        selection_.follow();
    }
}

void FrameCanvas::spritesWillBeReplaced(qint32 frame) {
    if (isShown(frame)) {
        selection_.clearSelection();
        sprites_.unloadAllSprites();
    }
}

void FrameCanvas::spritesReplaced(qint32 frame) {
    if (isShown(frame)) {
        sprites_.loadFrameSprites(frame);
    }
}

void FrameCanvas::pictureChanged(const QRect& area) {
    const MapSurface& map = workspace_.pctMap;
    if (area.width() >= map.ScaleWidth() && area.height() >= map.ScaleHeight()) {
        widget_->showPicture();
    } else {
        widget_->takeOver(area);
    }
}

}  // namespace nubivane
