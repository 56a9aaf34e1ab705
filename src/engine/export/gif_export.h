// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_job.h"
#include "engine/gif/gif_colors.h"

#include <QString>

namespace nubivane {

class Workspace;

/// A Frame as a GIF in which its Symbols move, for one pass of the longest animation. The file
/// takes its place when it is whole; that it could not be made smaller after that is no failure.
struct AniGifRequest {
    qint32 frame = 1;          ///< its number
    QString GifFileName = {};  ///< path text
    int compression = 1;       ///< 1 to `MaxCompression`
    GifQuality quality = GifQuality::Usual;
};

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const AniGifRequest& request);

}  // namespace nubivane
