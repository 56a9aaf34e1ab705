// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_job.h"
#include "engine/gif/gif_colors.h"

#include <QString>

namespace nubivane {

class Workspace;

enum class FilmFormat { Gif, Mp4 };

/// All Frames as one film, one image for each. The first image shows the map of Frame 1 under the
/// sprites of the current Frame, every other one Frame as it is. An MP4 has the size of the largest
/// map; smaller ones stand in the upper left corner of a white sheet.
struct FilmRequest {
    QString path = {};         ///< path text
    qint32 current = 1;        ///< the Frame that is current when the film is begun
    qint16 FrameInterval = 1;  ///< how long each Frame stays, in hundredths of a second
    FilmFormat format = FilmFormat::Gif;
    GifQuality quality = GifQuality::Usual;  ///< of a GIF
};
inline constexpr int MinFrameInterval = 1;
inline constexpr int MaxFrameInterval = 1000;

/// Raises `Error` (OutOfRange) when there is no current Frame.
std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const FilmRequest& request);

}  // namespace nubivane
