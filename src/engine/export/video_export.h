// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_job.h"
#include "engine/video/video_writer.h"

#include <QSize>
#include <QString>

namespace nubivane {

class Workspace;

/// A Frame as a video, captured as for a moving GIF, each picture scaled to `size` without regard
/// to proportions. An AVI video has whole pictures a second, of which one without Symbols has
/// several; an MP4 shows each exactly as long as the step between captures, and loses a pixel of an
/// odd side, of which the watcher is told. An existing file is replaced when the new one is whole.
struct VideoRequest {
    qint32 frame = 1;   ///< its number
    QString path = {};  ///< path text
    VideoFormat format = VideoFormat::Avi;
    QSize size = {};      ///< pixels; a side that is not above 0 follows from the other in the
                          ///< map's proportions, both from the map
    int compression = 1;  ///< 1 to `MaxCompression`
};

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const VideoRequest& request);

/// Whole pictures a second at a step between them (ms), at least one.
int framesPerSecond(qint64 interval);

}  // namespace nubivane
