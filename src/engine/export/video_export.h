// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/gif_export.h"
#include "engine/video/video_writer.h"

#include <QSize>
#include <QString>

namespace nubivane {

/// What a video of a Frame is made with.
struct VideoOptions {
    QSize size;           ///< pixels; a side that is not above 0 follows from the other in the
                          ///< map's proportions, both from the map
    int compression = 1;  ///< 1 to `MaxCompression`
};

/// Writes a Frame as an AVI video of whole pictures a second, captured as for a moving GIF, each
/// scaled to `size` without regard to proportions. An existing file is replaced when the new one is
/// whole. Raises `Error`.
std::unique_ptr<ExportJob> aviJob(Workspace& workspace, qint32 frame, const QString& AviFileName,
                                  const VideoOptions& options);

/// The same at once.
void saveAvi(Workspace& workspace, qint32 frame, const QString& AviFileName,
             const VideoOptions& options, ExportWatcher& watcher);

/// The same as MP4, captured as a moving GIF in every case, with each picture shown exactly as long
/// as the step between captures. Odd sides lose a pixel, of which the watcher is told.
void saveMp4(Workspace& workspace, qint32 frame, const QString& path, const VideoOptions& options,
             ExportWatcher& watcher);

/// A film as MP4, in the size of the largest map. Smaller ones stand in the upper left corner of a
/// white sheet.
void saveFilmMp4(Workspace& workspace, const QString& path, const FilmOptions& options,
                 ExportWatcher& watcher);

/// The size of a video of a map where `asked` leaves sides open. A map that is larger than a video
/// may be is scaled down whole. What is not asked for is such that the format has it, but for the
/// map's own sides. Raises `Error` (OutOfRange) when the side that follows from the one asked for
/// is none of a video.
QSize sizeOfVideo(VideoFormat format, QSize asked, QSize map);

/// Whole pictures a second at a step between them (ms), at least one.
int framesPerSecond(qint64 interval);

}  // namespace nubivane
