// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/record_door.h"

#include "engine/model/edits/project_edits.h"
#include "engine/model/workspace.h"

namespace nubivane {

template <class Record>
RecordDoor<Record> textDoor(Workspace& workspace, const TextId& id, const char* name) {
    const qint32 frame = workspace.Status.CurrentFrame;
    return {
        [&workspace, id, frame] {
            return std::get<Record>(textOf(workspace.Frames().Item(frame), id));
        },
        [&workspace, id, frame, name](const Record& record, const QString& series) {
            workspace.edits().push(std::make_unique<ChangeText>(name, frame, id, record, series));
        }};
}

template RecordDoor<cDiv> textDoor<cDiv>(Workspace&, const TextId&, const char*);
template RecordDoor<TextLine> textDoor<TextLine>(Workspace&, const TextId&, const char*);
template RecordDoor<TextItem> textDoor<TextItem>(Workspace&, const TextId&, const char*);

}  // namespace nubivane
