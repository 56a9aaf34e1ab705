// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"
#include "engine/model/edits/pixel_change.h"
#include "engine/picture/picture.h"

namespace nubivane {

/// When the Frame's panel takes a drawing over: a stroke at once, a figure when the Frame is left
/// or saved.
enum class Snapshot { Now, Later };

/// What lies on the scratch layer of the map becomes part of the current Frame's picture: a stroke,
/// a figure, what the eraser brought back.
class DrawOnFrame : public Edit {
  public:
    DrawOnFrame(const char* name, Marks marks, qint32 frame, Snapshot snapshot);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {frame(), std::nullopt, change_.area()}; }
    bool isNothing() const override { return change_.isEmpty(); }
    qsizetype bytes() const override;
    /// Which pixels it gave other colours.
    const PixelChange& change() const { return change_; }

  private:
    void draw(EditScene& scene);

    Snapshot snapshot_;
    bool drawn_ = false;
    PixelChange change_;
    Picture untouched_;  ///< the picture before, if it was still the one that had been read
};

/// The Frame shows the bare map again.
class ClearDrawings : public Edit {
  public:
    /// `map` is the picture of the map's file.
    ClearDrawings(qint32 frame, Picture map);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    bool isNothing() const override;
    qsizetype bytes() const override;

  private:
    Picture map_;
    PixelChange change_;  ///< from the drawings to the bare map
    Picture untouched_;   ///< as above
    bool done_ = false;
};

}  // namespace nubivane
