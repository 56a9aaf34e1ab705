// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_job.h"
#include "engine/export/frame_content.h"

namespace nubivane {

class ExportStage;

/// Writes a Frame as one image file, in the format that the last three characters of the path (in
/// any case) name: bmp, gif, jpg, png or tif. Raises `Error`: `UnsupportedFormat` for another
/// ending, FileAccess and others as they come. Nothing half written is left.
std::unique_ptr<ExportJob> mapFileJob(FrameContent frame, const QString& path);

/// The same at once.
void saveMapFile(Workspace& workspace, qint32 frame, const QString& path, ExportWatcher& watcher);

/// The same on a stage that serves for several Frames: what they share is decoded once.
void saveMapFile(ExportStage& stage, const FrameContent& frame, const QString& path,
                 ExportWatcher& watcher);

}  // namespace nubivane
