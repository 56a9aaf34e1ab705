#pragma once

#include <QtGlobal>

namespace nubivane {

/// Pictures beyond these limits are refused from their header, before memory is taken.
inline constexpr int MaxPictureSide = 16384;            ///< pixels
inline constexpr qint64 MaxPicturePixels = 25'000'000;  ///< 100 MB decoded
/// Encoded: what the largest picture takes where nothing is compressed, so that all that can be
/// written can be read.
inline constexpr qint64 MaxPictureBytes = 4 * MaxPicturePixels + qint64{1024} * 1024;

/// Scans of a JPEG: each costs a walk over the whole picture.
inline constexpr int MaxJpegScans = 100;

}  // namespace nubivane
