// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/symbols_collection.h"

#include <algorithm>

namespace nubivane {

cSymbolsCollection& cSymbolsCollections::Add2(const QString& name, const QString& key,
                                              const QString& path) {
    return append(key, {.Path = path, .Name = name, .Key = key});
}

void cSymbolsCollections::Clear() {
    for (qint32 i = Count(); i >= 1; --i) {
        Remove(i);
    }
}

cSymbolsCollections sortCollections(const cSymbolsCollections& list) {
    std::vector<const cSymbolsCollection*> rows;
    for (const cSymbolsCollection& collection : list) {
        rows.push_back(&collection);
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto* a, const auto* b) { return a->Name < b->Name; });
    cSymbolsCollections sorted;
    for (const cSymbolsCollection* row : rows) {
        sorted.Add2(row->Name, row->Key, row->Path).Checked = row->Checked;
    }
    return sorted;
}

}  // namespace nubivane
