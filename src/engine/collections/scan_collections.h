// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/symbols_collection.h"

namespace nubivane {

class ProgramFolder;
class SettingsStore;

/// Makes the list match the folders under "\Symbols": new folders come in unchecked, vanished ones
/// go, known ones keep `Checked`.
void scanCollections(cSymbolsCollections& list, const ProgramFolder& folder);

/// Fills the list anew with one unchecked collection for each folder under "\Symbols".
void reloadCollections(cSymbolsCollections& list, const ProgramFolder& folder);

/// Stores the names of the checked collections, in order, for the next start.
void saveCheckedCollections(const cSymbolsCollections& list, SettingsStore& settings);

}  // namespace nubivane
