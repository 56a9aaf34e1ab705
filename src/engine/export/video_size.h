// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/video/video_writer.h"

#include <QSize>

namespace nubivane {

class ExportWatcher;

/// True for a map of which a video shows a smaller picture.
bool isTooLargeForVideo(QSize map);

/// The size of a video of a map where `asked` leaves sides open. A map that is larger than a video
/// may be is scaled down whole. What is not asked for is such that the format has it, but for the
/// map's own sides. Raises `Error` (OutOfRange) when the side that follows from the one asked for
/// is none of a video.
QSize sizeOfVideo(VideoFormat format, QSize asked, QSize map);

/// The size as near as the format has it, of which the watcher is told where it is another.
QSize sizeInFormat(VideoFormat format, QSize wanted, ExportWatcher& watcher);

}  // namespace nubivane
