// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <vector>

namespace nubivane {

/// One picture of an animation (RGB32), and what lies under all that stands on it: the bare map,
/// of the same size.
struct Capture {
    QImage picture;
    QImage map;
};

/// What counts where a GIF cannot hold all colours.
enum class GifQuality {
    Usual,  ///< few bytes, and no bands in shaded areas
    Fine,   ///< above all, that each pixel is close to the picture's
};

/// Brings the pictures of an animation, one after the other, down to colours that a GIF can hold:
/// the first to 256, what changes in each later one to 255.
///
/// Nothing is lost where there are no more. Where there are, the map is dithered once and stands
/// still from then on, whatever moves over it; what stands on the map keeps its colours as far as
/// there is room, flat ones before all. A pixel that does not change in the animation does not
/// change in the result.
class GifColors {
  public:
    explicit GifColors(GifQuality quality = GifQuality::Usual) : quality_(quality) {}

    /// The next picture in its new colours (RGB32). All are of one size. Raises `Error`
    /// (InvalidPicture).
    QImage next(const Capture& capture);

  private:
    class Step;
    void forgetChangedMap(const QImage& map);

    GifQuality quality_;
    QImage picture_;   ///< the last picture as it was given
    QImage shown_;     ///< and as it came out
    QImage map_;       ///< the last map as it was given
    QImage shownMap_;  ///< and as it shows wherever nothing stands on it
};

}  // namespace nubivane
