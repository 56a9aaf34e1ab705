// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/frame_edits.h"

#include "engine/core/settings_store.h"
#include "engine/model/edits/edit_scene.h"
#include "engine/model/workspace.h"

#include <QCoreApplication>
#include <QSet>

#include <utility>

namespace nubivane {

namespace {

/// What a picture takes in memory.
qsizetype sizeOf(const Picture& picture) {
    const qsizetype encoded = picture.originalBytes().size();
    return encoded > 0 ? encoded : qsizetype{4} * picture.size().width() * picture.size().height();
}

}  // namespace

void nameNewProject(Workspace& workspace, const QString& label) {
    workspace.Project->Frames().Item(1).Texts().Label = label;
}

InsertFrame::InsertFrame(QString label)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Insert map"), Marks::Nothing, 0), label_(std::move(label)) {}

void InsertFrame::apply(EditScene& scene) {
    Workspace& workspace = scene.workspace;
    scene.framesWillChange();
    shownBefore_ = workspace.Status.CurrentFrame;
    at_ = workspace.Frames().Count() + 1;
    if (!frame_) {
        frame_ = std::make_unique<cFrame>();
        frame_->Texts().Label = label_;
    }
    workspace.Project->Frames().Insert(at_, std::move(frame_));
    workspace.pctPanel.insert(at_, std::exchange(picture_, Picture()));
    scene.framesChanged(at_);
}

void InsertFrame::revert(EditScene& scene) {
    Workspace& workspace = scene.workspace;
    scene.framesWillChange();
    frame_ = workspace.Project->Frames().Take(at_);
    picture_ = workspace.pctPanel.picture(at_);
    workspace.pctPanel.remove(at_);
    scene.framesChanged(shownBefore_);
}

RemoveFrame::RemoveFrame(qint32 number)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Remove map"), Marks::Nothing, 0), number_(number) {}

void RemoveFrame::apply(EditScene& scene) {
    Workspace& workspace = scene.workspace;
    scene.framesWillChange();
    frame_ = workspace.Project->Frames().Take(number_);
    picture_ = workspace.pctPanel.picture(number_);
    workspace.pctPanel.remove(number_);
    scene.framesChanged(1);
}

void RemoveFrame::revert(EditScene& scene) {
    Workspace& workspace = scene.workspace;
    scene.framesWillChange();
    workspace.Project->Frames().Insert(number_, std::move(frame_));
    workspace.pctPanel.insert(number_, std::exchange(picture_, Picture()));
    scene.framesChanged(number_);
}

qsizetype RemoveFrame::bytes() const {
    const qsizetype sprites = frame_ ? frame_->Sprites().Count() : 0;
    return Edit::bytes() + sizeOf(picture_) + 500 * sprites;
}

MoveFrame::MoveFrame(qint32 from, qint32 to)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Move map"), Marks::Project, 0), from_(from), to_(to) {}

namespace {

void move(EditScene& scene, qint32 from, qint32 to) {
    Workspace& workspace = scene.workspace;
    scene.framesWillChange();
    workspace.Project->Frames().Insert(to, workspace.Project->Frames().Take(from));
    const Picture picture = workspace.pctPanel.picture(from);
    workspace.pctPanel.remove(from);
    workspace.pctPanel.insert(to, picture);
    scene.framesChanged(to);
}

}  // namespace

void MoveFrame::apply(EditScene& scene) {
    move(scene, from_, to_);
}

void MoveFrame::revert(EditScene& scene) {
    move(scene, to_, from_);
}

RenameFrame::RenameFrame(qint32 number, QString label)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Rename map"), Marks::Project, number),
      after_(std::move(label)) {}

void RenameFrame::apply(EditScene& scene) {
    before_ = std::exchange(scene.frame(frame()).Texts().Label, after_);
    scene.captionChanged(frame());
}

void RenameFrame::revert(EditScene& scene) {
    scene.frame(frame()).Texts().Label = before_;
    scene.captionChanged(frame());
}

ChangeMap::ChangeMap(QString path, Picture map)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Select image"), Marks::Nothing, 0),
      path_(std::move(path)),
      picture_(std::move(map)) {}

void ChangeMap::exchange(EditScene& scene) {
    Workspace& workspace = scene.workspace;
    std::swap(workspace.Project, project_);
    std::swap(workspace.pctPanel, panels_);
    std::swap(workspace.Status.CurrentMap, path_);
    const Picture shown = workspace.pctMap.image();
    workspace.pctMap.setPicture(std::exchange(picture_, shown));
    workspace.settings.set(Setting::CurrentMap, workspace.Status.CurrentMap);
    scene.mapChanged();
}

void ChangeMap::apply(EditScene& scene) {
    Workspace& workspace = scene.workspace;
    scene.framesWillChange();
    shownBefore_ = workspace.Status.CurrentFrame;
    if (!project_) {
        project_ = std::make_unique<cWrapper>();
        for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
            project_->Frames().Add().Texts().Label = workspace.Frames().Item(i).Texts().Label;
        }
        panels_.reset(project_->Frames().Count());
    }
    exchange(scene);
    scene.framesChanged(1);
}

void ChangeMap::revert(EditScene& scene) {
    scene.framesWillChange();
    exchange(scene);
    scene.framesChanged(shownBefore_);
}

qsizetype ChangeMap::bytes() const {
    qsizetype sum = Edit::bytes() + sizeOf(picture_);
    QSet<const void*> counted;
    for (qint32 i = 1; i <= panels_.Count(); ++i) {
        const Picture picture = panels_.picture(i);
        if (!counted.contains(picture.identity())) {
            counted.insert(picture.identity());
            sum += sizeOf(picture);
        }
    }
    const qsizetype sprites = project_ ? project_->Frames().NumSprite() : 0;
    return sum + 500 * sprites;
}

}  // namespace nubivane
