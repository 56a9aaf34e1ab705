// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/c_upload.h"

namespace nubivane {

class Workspace;

/// The steps that send the chosen groups of files, in their order. The server's folders are made
/// anew whatever is chosen, so that nothing need be known of the server; without any group there
/// is no step.
///
/// The page is looked for under the name that the preview uses. Names on the local disk that could
/// not be told from a path are left out; `unsendableNames` lists them.
UploadPlan buildUploadPlan(const Workspace& workspace, bool symbols, bool maps, bool htmlPage);

}  // namespace nubivane
