// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/picture_edits.h"

#include "engine/core/error.h"
#include "engine/model/edits/edit_scene.h"
#include "engine/model/workspace.h"

#include <QCoreApplication>

#include <utility>

namespace nubivane {

namespace {

/// The picture of a Frame: that of the canvas, or the one in its panel, the bare map where it has
/// none.
Picture pictureOf(const Workspace& workspace, qint32 frame) {
    if (frame == workspace.Status.CurrentFrame) {
        return workspace.pctMap.image();
    }
    const Picture picture = workspace.pctPanel.picture(frame);
    return picture.isEmpty() ? workspace.loadCurrentMap() : picture;
}

void setPicture(EditScene& scene, qint32 frame, const Picture& picture) {
    Workspace& workspace = scene.workspace;
    workspace.pctPanel.setPicture(frame, picture);
    if (scene.isShown(frame)) {
        workspace.pctMap.setPicture(picture);
    }
    scene.pictureChanged(frame, {QPoint(), picture.size()});
}

/// Changes the pixels of a Frame. As long as the panel shares them, writing would copy them all.
template <class Write>
void writePixels(EditScene& scene, qint32 frame, const QRect& area, Write write) {
    Workspace& workspace = scene.workspace;
    if (scene.isShown(frame)) {
        workspace.pctPanel.setPicture(frame, Picture());
        write(workspace.pctMap.persistentLayer());
        workspace.storeCurrentFrame();
    } else {
        MapSurface surface;
        surface.setPicture(pictureOf(workspace, frame));
        workspace.pctPanel.setPicture(frame, Picture());
        write(surface.persistentLayer());
        workspace.pctPanel.setPicture(frame, surface.image());
    }
    scene.pictureChanged(frame, area);
}

/// Keeps a picture that takes no more room than its file; one of pixels is not kept whole.
Picture whereRead(const Picture& picture) {
    return picture.originalBytes().isEmpty() ? Picture() : picture;
}

}  // namespace

DrawOnFrame::DrawOnFrame(const char* name, Marks marks, qint32 frame, Snapshot snapshot)
    : Edit(name, marks, frame), snapshot_(snapshot) {}

void DrawOnFrame::apply(EditScene& scene) {
    if (!std::exchange(drawn_, true)) {
        draw(scene);
    } else {
        writePixels(scene, frame(), change_.area(),
                    [this](QImage& pixels) { change_.apply(pixels); });
    }
}

void DrawOnFrame::draw(EditScene& scene) {
    Workspace& workspace = scene.workspace;
    MapSurface& map = workspace.pctMap;
    const QRect area = map.scratchArea();
    if (snapshot_ == Snapshot::Now && map.ScaleWidth() > 0) {
        // As long as the last snapshot shares the pixels, drawing would copy the whole picture.
        workspace.pctPanel.setPicture(frame(), Picture());
    }
    if (!area.isEmpty()) {
        untouched_ = whereRead(map.untouched());
        const QImage before = map.persistentLayer().copy(area);
        map.commitScratchLayer();
        change_ = PixelChange(before, map.persistentLayer(), area.topLeft());
        if (change_.isEmpty() && !untouched_.isEmpty()) {
            map.setPicture(untouched_);  // its file is still as good
        }
        scene.pictureChanged(frame(), area);
    }
    if (snapshot_ == Snapshot::Now) {
        workspace.storeCurrentFrame();
    }
}

void DrawOnFrame::revert(EditScene& scene) {
    if (!untouched_.isEmpty()) {
        setPicture(scene, frame(), untouched_);
        return;
    }
    writePixels(scene, frame(), change_.area(), [this](QImage& pixels) { change_.revert(pixels); });
}

qsizetype DrawOnFrame::bytes() const {
    return Edit::bytes() + change_.bytes() + untouched_.originalBytes().size();
}

ClearDrawings::ClearDrawings(qint32 frame, Picture map)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Clear"), Marks::Nothing, frame), map_(std::move(map)) {}

void ClearDrawings::apply(EditScene& scene) {
    if (!std::exchange(done_, true)) {
        const Picture before = pictureOf(scene.workspace, frame());
        untouched_ = whereRead(before);
        if (before.size() != map_.size()) {
            untouched_ = before;  // another map lies there now
        } else if (untouched_.isEmpty()) {
            MapSurface drawings;
            drawings.setPicture(before);
            MapSurface bare;
            bare.setPicture(map_);
            change_ = PixelChange(drawings.persistentLayer(), bare.persistentLayer(), QPoint());
        }
    }
    setPicture(scene, frame(), map_);
}

void ClearDrawings::revert(EditScene& scene) {
    if (!untouched_.isEmpty()) {
        setPicture(scene, frame(), untouched_);
        return;
    }
    writePixels(scene, frame(), change_.area(), [this](QImage& pixels) { change_.revert(pixels); });
}

bool ClearDrawings::isNothing() const {
    return change_.isEmpty() && untouched_.originalBytes() == map_.originalBytes();
}

qsizetype ClearDrawings::bytes() const {
    return Edit::bytes() + change_.bytes() + map_.originalBytes().size() +
           untouched_.originalBytes().size();
}

}  // namespace nubivane
