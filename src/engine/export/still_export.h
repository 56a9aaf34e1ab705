// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_job.h"
#include "engine/picture/picture.h"

#include <QString>

#include <vector>

namespace nubivane {

class Workspace;

/// Frames as image files, each in the format that the last three characters of its path (in any
/// case) name: bmp, gif, jpg, png or tif. Another ending is an `Error` (`UnsupportedFormat`). What
/// the Frames share is decoded once.
struct StillRequest {
    struct File {
        qint32 frame;      ///< its number
        QString path;      ///< path text
        Picture map = {};  ///< shown in place of the Frame's own map, where there is one
    };
    std::vector<File> files;
};

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const StillRequest& request);

}  // namespace nubivane
