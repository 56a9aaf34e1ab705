// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/keyed_list.h"

#include <QString>

namespace nubivane {

/// A folder of symbols under "\Symbols".
struct cSymbolsCollection {
    QString Path = {};  ///< full path of the folder
    QString Name = {};
    QString Key = {};
    bool Checked = false;  ///< the palette shows it
};

/// The collections on disk, keyed by `Key`. A second collection of one key raises `Error`
/// (InvalidArgument).
class cSymbolsCollections : public KeyedList<cSymbolsCollection> {
  public:
    cSymbolsCollection& Add(const QString& path, const QString& name) {
        return Add2(name, name, path);
    }
    cSymbolsCollection& Add2(const QString& name, const QString& key, const QString& path);
    void Clear();

    /// Something that the palette shows has changed.
    bool IsChanged = false;
};

/// A new list with the same entries in the order of their names by character code: "Zeta" stands
/// before "alpha".
cSymbolsCollections sortCollections(const cSymbolsCollections& list);

}  // namespace nubivane
