// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

namespace nubivane {

/// One image as a GIF file (GIF89a): exact while it has at most 256 colours, otherwise with the
/// palette of 256 that suits it best. Half-transparent pixels become opaque, fully transparent ones
/// stay so. Raises `Error` (InvalidPicture) when encoding fails.
QByteArray encodeGifStill(const QImage& image);

}  // namespace nubivane
