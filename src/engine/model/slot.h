// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

namespace nubivane {

/// A property of a record: its name, and the place of its value in a project file. Each record has
/// one table of them, `forEachSlot`, which calls `visit(slot, value)` in the order of the slots.
/// The table serves whoever needs all properties: the reader and the writer of project files and
/// the JSON of `show`.
struct Slot {
    const char* name;
    const char* fileName = nullptr;  ///< of the attribute or child element that holds the value
    int place = -1;                  ///< position among the element's values, -1 in no file
    int readFrom = place;            ///< the position from which the reader takes it
    bool narrow = false;             ///< the file holds 16 bits where the member has 32
};

/// The number of values that the element of a record holds in a project file.
template <class Record>
int valuesInFile(const Record& record) {
    int count = 0;
    Record::forEachSlot(record, [&count](const Slot& slot, const auto&) {
        count = std::max(count, slot.place + 1);
    });
    return count;
}

/// Calls `visit(slot, value)` for each property that stands in a project file, in the order of
/// `position`: `&Slot::place` for writing, `&Slot::readFrom` for reading.
template <class Record, class Self, class Visitor>
void forEachValueInFile(Self& record, int Slot::*position, Visitor&& visit) {
    for (int i = 0, count = valuesInFile<Record>(record); i < count; ++i) {
        Record::forEachSlot(record, [&](const Slot& slot, auto& value) {
            if (slot.*position == i) {
                visit(slot, value);
            }
        });
    }
}

}  // namespace nubivane
