#pragma once

#include "picture/picture.h"

#include <QImage>

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
    /// The scratch layer for drawing: transparent, of the size of the map.
    QImage& scratchLayer();
    void wipeScratchLayer() { scratch_ = QImage(); }

    /// `Image`: the composite of both layers. The very picture that was set while nothing has
    /// been drawn since.
    Picture image() const;

    /// Inner size: that of the picture.
    int ScaleWidth() const { return picture_.size().width(); }
    int ScaleHeight() const { return picture_.size().height(); }
    /// Outer size: with the frame of one pixel on each side.
    int Width() const { return ScaleWidth() + 2; }
    int Height() const { return ScaleHeight() + 2; }

  private:
    Picture picture_;
    QImage drawn_;    ///< the persistent layer once something was drawn on it, else null
    QImage scratch_;  ///< null while empty
};

}  // namespace nubivane
