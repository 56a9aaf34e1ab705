// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/image_ex.h"

namespace nubivane {

class ExportWatcher;

/// Refuses, by an `Error` (OutOfRange), maps of which a moving GIF would take too much memory.
void checkGifSize(QSize size);

/// How far the captures are when one is done, in percent of the whole.
inline constexpr int ProgressOfCaptures = 70;

/// Writes a moving GIF and tells how far it is. The captures of `list` are taken while they are
/// written, one at a time, and shown to the watcher; `captured` tells how many are done.
void writeGif(FrameList list, const QString& path, GifQuality quality,
              const PictureProgress& captured, ExportWatcher& watcher);

}  // namespace nubivane
