// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/text_edits.h"

#include <functional>
#include <utility>

namespace nubivane {

class Workspace;

/// A record of the project as rows see it: they read it, and change it by an edit. Changes of one
/// series in a row are one edit.
template <class Record>
struct RecordDoor {
    std::function<Record()> read;
    std::function<void(const Record&, const QString& series)> write;

    template <class Mutate>
    void change(const QString& series, Mutate mutate) const {
        Record record = read();
        mutate(record);
        write(record, series);
    }
};

/// A record of the current Frame's forecast text; `name` is that of the edits.
template <class Record>
RecordDoor<Record> textDoor(Workspace& workspace, const TextId& id, const char* name);

}  // namespace nubivane
