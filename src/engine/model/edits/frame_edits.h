// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"
#include "engine/model/frame_panels.h"
#include "engine/model/frames.h"

#include <memory>

namespace nubivane {

class Workspace;

/// Gives the one Frame of a new project its caption; no edit.
void nameNewProject(Workspace& workspace, const QString& label);

/// A new Frame behind the others, which shows the bare map.
class InsertFrame : public Edit {
  public:
    explicit InsertFrame(QString label);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {at_, std::nullopt}; }
    EditPlace placeBefore() const override { return {shownBefore_, std::nullopt}; }

  private:
    QString label_;
    std::unique_ptr<cFrame> frame_;  ///< while it is not in the project
    Picture picture_;
    qint32 at_ = 0;
    qint32 shownBefore_ = 1;
};

/// A Frame that goes with its sprites, texts and drawings; the first one is shown then.
class RemoveFrame : public Edit {
  public:
    explicit RemoveFrame(qint32 number);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {1, std::nullopt}; }
    EditPlace placeBefore() const override { return {number_, std::nullopt}; }
    qsizetype bytes() const override;

  private:
    qint32 number_;
    std::unique_ptr<cFrame> frame_;
    Picture picture_;
};

/// A Frame that changes its place among the others.
class MoveFrame : public Edit {
  public:
    MoveFrame(qint32 from, qint32 to);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {to_, std::nullopt}; }
    EditPlace placeBefore() const override { return {from_, std::nullopt}; }
    bool isNothing() const override { return from_ == to_; }

  private:
    qint32 from_;
    qint32 to_;
};

/// A Frame that bears another caption.
class RenameFrame : public Edit {
  public:
    RenameFrame(qint32 number, QString label);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    bool isNothing() const override { return before_ == after_; }

  private:
    QString before_;
    QString after_;
};

/// Another map under all Frames: their sprites, texts and drawings go, their captions stay.
class ChangeMap : public Edit {
  public:
    /// `map` is the picture of the file.
    ChangeMap(QString path, Picture map);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {1, std::nullopt}; }
    EditPlace placeBefore() const override { return {shownBefore_, std::nullopt}; }
    qsizetype bytes() const override;

  private:
    void exchange(EditScene& scene);

    QString path_;     ///< of the map that is not in use
    Picture picture_;  ///< of that map, or what the canvas showed
    std::unique_ptr<cWrapper> project_;
    FramePanels panels_;
    qint32 shownBefore_ = 1;
};

}  // namespace nubivane
