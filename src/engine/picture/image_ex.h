// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/gif/gif_colors.h"
#include "engine/picture/image_codec.h"

#include <QString>

#include <functional>
#include <vector>

namespace nubivane {

/// One capture of an animation. It is made when it is asked for, and made anew each time, so that
/// an animation of any length needs the memory of a few pictures.
struct FrameColumn {
    double hundredths;  ///< how long it stays, in hundredths of a second
    QSize size;
    std::function<Capture()> capture;
};

/// What an animation is made of, in order.
using FrameList = std::vector<FrameColumn>;

/// Told after each picture: how many are done, of how many.
using PictureProgress = std::function<void(int done, int count)>;

/// Writes pictures as files, still and moving ones. Paths are path texts; a file appears under its
/// name only when it is whole. Everything raises `Error`.
class ImageEx {
  public:
    /// Writes a picture. Coloured letters on a JPEG need colour as fine as brightness, which it has
    /// here; the pages' maps have always done without, and their bytes are kept.
    static void SaveImage(const QImage& picture, const QString& path, PictureFormat format);

    /// Writes an endless GIF. Captures smaller than the largest stand in the upper left corner of a
    /// white sheet. Delays that are no whole hundredths are spread so that the sum is right; an
    /// image that would then show for no time is left out.
    static void AssembleGif(const FrameList& list, const QString& path,
                            const PictureProgress& progress = {},
                            GifQuality quality = GifQuality::Usual);

    /// Writes a GIF again with fewer bytes and the same colours and times. A file that cannot be
    /// made smaller, has see-through places or is damaged is passed on as it is. Only with `mode` 2
    /// everything is tried.
    static void OptimizeGif(const QString& source, const QString& target, int mode,
                            const PictureProgress& progress = {});
};

/// Whole hundredths whose sum is, at each place of the list, as near as can be to the sum of what
/// was asked for.
std::vector<qint64> spreadDelays(const FrameList& list);

}  // namespace nubivane
