// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/upload_outlook.h"

#include "engine/model/workspace.h"
#include "engine/upload/server_memory.h"
#include "engine/upload/site_contents.h"
#include "engine/upload/upload_plan.h"

namespace nubivane {

using namespace Qt::StringLiterals;

QString UploadOutlook::summary() const {
    const auto count = static_cast<qsizetype>(files.size());
    return u"%1 of %2 files, %3 bytes"_s.arg(count).arg(count + unchanged).arg(bytes);
}

UploadOutlook outlookOf(const Workspace& workspace, const UploadGroups& groups, bool everything) {
    const UploadPlan plan =
        buildUploadPlan(workspace, groups.symbols, groups.maps, groups.htmlPage);
    SiteContents contents = SiteContents::of(plan);
    contents.readFiles([] { return false; });
    const ServerMemory memory(
        ServerMemory::placeOf(uploadServer(workspace.settings), workspace.settings));
    UploadOutlook outlook;
    for (const PlannedFile& file : contents.files) {
        const auto sent = memory.site.files.constFind(file.name);
        if (!everything && !memory.everything && sent != memory.site.files.constEnd() &&
            *sent == file.content) {
            ++outlook.unchanged;
        } else {
            outlook.files.push_back({file.name, file.content.size});
            outlook.bytes += file.content.size;
        }
    }
    return outlook;
}

}  // namespace nubivane
