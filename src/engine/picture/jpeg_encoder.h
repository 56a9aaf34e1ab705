// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

namespace nubivane {

/// Encodes a picture as JPEG (JFIF, 96 pixels to the inch) with its colours at full resolution, so
/// that thin coloured letters and lines do not fade. See-through places lie on white. `quality` is
/// 0 to 100. Raises `Error` (InvalidPicture) when the encoder fails.
QByteArray encodeJpegWithFullColor(const QImage& image, int quality);

}  // namespace nubivane
