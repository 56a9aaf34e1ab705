// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace nubivane {

class SiteFolder;
class Workspace;

/// Writes the responsive page of the open project, whose panels are filled, with all that it needs:
/// "<Filename>.htm", ".css", ".js" and ".json", and pictures in "Web". The page comes last, so that
/// it never shows what is not there yet. `waiting` runs on the calling thread now and then. Raises
/// `Error`.
void writeResponsiveSite(Workspace& workspace, SiteFolder& site,
                         const std::function<void()>& waiting);

}  // namespace nubivane
