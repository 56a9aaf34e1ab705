// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/film_export.h"
#include "engine/export/gif_export.h"
#include "engine/export/print_export.h"
#include "engine/export/still_export.h"
#include "engine/export/video_export.h"

#include <variant>

namespace nubivane {

/// All that can be made of a project's Frames, with what it is made with.
using ExportRequest =
    std::variant<StillRequest, AniGifRequest, FilmRequest, VideoRequest, PrintRequest>;

/// The job that does it. The canvas lags behind the model: whoever exports the Frame on it calls
/// `Workspace::storeCurrentFrame` first. Raises `Error` (OutOfRange) when there is no such Frame.
inline std::unique_ptr<ExportJob> makeJob(const Workspace& workspace,
                                          const ExportRequest& request) {
    return std::visit([&](const auto& kind) { return makeJob(workspace, kind); }, request);
}

/// Does all of it at once, on this thread. Raises `Error`, and whatever the watcher raises.
inline void runExport(const Workspace& workspace, const ExportRequest& request,
                      ExportWatcher& watcher) {
    const std::unique_ptr<ExportJob> job = makeJob(workspace, request);
    job->load();
    job->save(watcher);
}

}  // namespace nubivane
