// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace nubivane {

/// A picture (RGB32) in the upper left corner of a white sheet; itself where it has that size.
QImage onSheet(const QImage& picture, QSize size);

/// A picture as it shows on a white sheet of its size (RGB32).
QImage onWhite(const QImage& picture);

}  // namespace nubivane
