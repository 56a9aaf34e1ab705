// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/picture.h"

#include <QImage>
#include <QRect>

namespace nubivane {

/// The surface `pctMap`: a persistent layer (the map and every committed drawing) under a scratch
/// layer (what is being drawn). Sizes are pixels.
///
/// While nothing is drawn the surface keeps the picture it was given, so that showing a Frame and
/// leaving it again neither decodes nor encodes anything.
class MapSurface {
  public:
    /// Replaces the persistent layer and wipes the scratch layer.
    void setPicture(const Picture& picture);

    /// The persistent layer for drawing. Whoever asks is going to change it.
    QImage& persistentLayer();
    /// The persistent layer for looking at. A picture that is damaged behind its header is an empty
    /// sheet, and so is what a picture leaves transparent.
    QImage pixels() const;

    /// The scratch layer for drawing inside `area`: transparent, of the size of the map.
    QImage& scratchLayer(const QRect& area);
    QImage& scratchLayer() { return scratchLayer({QPoint(), picture_.size()}); }
    /// The scratch layer for looking at; what lies on it is inside `scratchArea`.
    const QImage& scratch() const { return scratch_; }
    const QRect& scratchArea() const { return scratchArea_; }
    /// Each costs what was drawn, not the map, and returns where that was.
    QRect wipeScratchLayer();
    /// Moves what was drawn down to the persistent layer.
    QRect commitScratchLayer();

    /// Both layers as they lie on each other.
    QImage composite() const;
    /// `Image`: the composite as a picture. The very one that was set while nothing has been drawn
    /// since.
    Picture image() const;

    /// The picture that was set, while nothing has been drawn since; else none.
    Picture untouched() const { return drawn_.isNull() ? picture_ : Picture(); }

    /// Inner size: that of the picture.
    int ScaleWidth() const { return picture_.size().width(); }
    int ScaleHeight() const { return picture_.size().height(); }
    /// Outer size: with the border of one pixel on each side.
    int Width() const { return ScaleWidth() + 2; }
    int Height() const { return ScaleHeight() + 2; }

  private:
    Picture picture_;
    QImage drawn_;    ///< the persistent layer once something was drawn on it, else null
    QImage scratch_;  ///< null until it is drawn on
    QRect scratchArea_;
};

}  // namespace nubivane
