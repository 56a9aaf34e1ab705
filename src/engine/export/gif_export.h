// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_job.h"
#include "engine/gif/gif_colors.h"

#include <QString>

namespace nubivane {

class Workspace;

/// Writes a Frame as a GIF in which its Symbols move, for one pass of the longest animation.
/// `compression` is 1 to `MaxCompression`. The file takes its place when it is whole; that it could
/// not be made smaller after that is no failure. Raises `Error`.
std::unique_ptr<ExportJob> aniGifJob(Workspace& workspace, qint32 frame, const QString& GifFileName,
                                     int compression, GifQuality quality = GifQuality::Usual);

/// The same at once.
void saveAniGif(Workspace& workspace, qint32 frame, const QString& GifFileName, int compression,
                ExportWatcher& watcher, GifQuality quality = GifQuality::Usual);

/// What a film is made with.
struct FilmOptions {
    qint32 current = 1;        ///< the Frame that is current when the film is begun
    qint16 FrameInterval = 1;  ///< how long each Frame stays, in hundredths of a second
    GifQuality quality = GifQuality::Usual;
};
inline constexpr int MinFrameInterval = 1;
inline constexpr int MaxFrameInterval = 1000;

/// Writes all Frames as one GIF, one image for each. The first image shows the map of Frame 1 under
/// the sprites of the current Frame, every other one Frame as it is. Raises `Error`.
std::unique_ptr<ExportJob> filmJob(Workspace& workspace, const QString& GifFileName,
                                   const FilmOptions& options);

/// The same at once.
void saveFilm(Workspace& workspace, const QString& GifFileName, const FilmOptions& options,
              ExportWatcher& watcher);

}  // namespace nubivane
