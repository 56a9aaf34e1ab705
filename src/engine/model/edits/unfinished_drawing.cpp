// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/unfinished_drawing.h"

#include "engine/model/edits/picture_edits.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"

#include <QCoreApplication>

namespace nubivane {

void commitUnfinishedDrawing(Workspace& workspace) {
    if (!workspace.pctMap.scratchArea().isEmpty()) {
        workspace.edits().push(
            std::make_unique<DrawOnFrame>(QT_TRANSLATE_NOOP("Edits", "Draw"), Marks::Nothing,
                                          workspace.Status.CurrentFrame, Snapshot::Now));
    }
}

}  // namespace nubivane
